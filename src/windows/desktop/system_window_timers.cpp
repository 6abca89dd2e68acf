#include "windows/desktop/system_window_timers.h"

#include <algorithm>

#include "environment/dialog_windows.h"
#include "windows/desktop/handles.h"

namespace brimwork::windows {

SystemWindowTimers::SystemWindowTimers() : window_([this](UINT_PTR number) { Fire(number); }) {}

TimerId SystemWindowTimers::SetTimer(WindowHandle window, TimerId id, std::uint32_t milliseconds,
                                     TimerProcedure procedure) {
  if (window != 0 && !IsWindow(AsHwnd(window))) return 0;
  const UINT_PTR number = latestNumber_ + 1;
  const Key key(window, window == 0 ? number : id);
  End(Find(key));
  if (::SetTimer(window_.Handle(), number, milliseconds, nullptr) == 0) return 0;
  timers_[number] = {key, std::move(procedure)};
  latestNumber_ = number;
  return key.second;
}

bool SystemWindowTimers::KillTimer(WindowHandle window, TimerId id) {
  const bool wasSet = End(Find({window, id}));
  return wasSet && (window == 0 || IsWindow(AsHwnd(window)));
}

SystemWindowTimers::Timers::iterator SystemWindowTimers::Find(const Key& key) {
  return std::ranges::find_if(timers_, [&](const auto& timer) { return timer.second.key == key; });
}

bool SystemWindowTimers::End(Timers::iterator timer) {
  if (timer == timers_.end()) return false;
  ::KillTimer(window_.Handle(), timer->first);
  timers_.erase(timer);
  return true;
}

// The procedure may set and end timers, this one included, or end all of them.
void SystemWindowTimers::Fire(UINT_PTR number) {
  const auto timer = timers_.find(number);
  if (timer == timers_.end()) return;  // its last message was under way when it ended
  const Timer fired = timer->second;
  const auto& [window, id] = fired.key;
  if (window != 0 && !IsWindow(AsHwnd(window))) {
    End(timer);
    return;
  }
  fired.procedure(window, window_message::kTimer, id, GetTickCount());
}

}  // namespace brimwork::windows
