// The system's timers, with functions as their procedures.
#pragma once

#include <windows.h>

#include <map>
#include <utility>

#include "environment/window_timers.h"
#include "windows/desktop/timer_window.h"

namespace brimwork::windows {

/// Timers end with this object, and each with its window. They fire in the thread that made the
/// object, whichever message loop runs there.
class SystemWindowTimers : public WindowTimers {
 public:
  SystemWindowTimers();

  TimerId SetTimer(WindowHandle window, TimerId id, std::uint32_t milliseconds,
                   TimerProcedure procedure) override;
  bool KillTimer(WindowHandle window, TimerId id) override;

 private:
  using Key = std::pair<WindowHandle, TimerId>;
  struct Timer {
    Key key;
    TimerProcedure procedure;
  };
  using Timers = std::map<UINT_PTR, Timer>;  // by the number of the system's timer

  Timers::iterator Find(const Key& key);
  bool End(Timers::iterator timer);
  void Fire(UINT_PTR number);

  Timers timers_;
  UINT_PTR latestNumber_ = 0;
  // All timers of the system are this window's: its procedure can tell whose they are.
  TimerWindow window_;
};

}  // namespace brimwork::windows
