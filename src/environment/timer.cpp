#include "environment/timer.h"

#include "environment/form.h"

namespace brimwork {

bool Timer::IsRunning() const { return Parent().IsLoaded() && Enabled && Interval > 0; }

void Timer::Design(const ControlLayout& layout) {
  Control::Design(layout);
  Interval.Preset(layout.interval);
}

}  // namespace brimwork
