// Calls its form again and again, each time its interval has passed. It is not seen.
#pragma once

#include <functional>

#include "environment/control.h"

namespace brimwork {

class Timer : public Control {
 public:
  using Control::Control;
  ControlKind Kind() const override { return ControlKind::kTimer; }

  /// Whether the host is to count its time.
  bool IsRunning() const;

  /// For the host: the interval has passed.
  void Tick() {
    if (IsRunning()) Raise(OnTimer);
  }

  Property<int> Interval{*this, PropertyId::kInterval};  // in milliseconds; 0 never passes

  std::function<void()> OnTimer;

 protected:
  void Design(const ControlLayout& layout) override;
};

}  // namespace brimwork
