// The system's timers: each belongs to a window, bears a number of its owner's choice and calls a
// procedure, again and again until it is killed. Every operation may raise RunTimeError.
#pragma once

#include <cstdint>
#include <functional>

#include "environment/desktop.h"

namespace brimwork {

using TimerId = std::uintptr_t;

/// Called from the message loop, that of a message box included. message is
/// window_message::kTimer; time is the system's running time in milliseconds. Raises nothing.
using TimerProcedure =
    std::function<void(WindowHandle window, std::uint32_t message, TimerId id, std::uint32_t time)>;

class WindowTimers {
 public:
  virtual ~WindowTimers() = default;

  /// Starts a timer, in place of the window's timer of that number if there is one. An interval
  /// below the system's shortest is the shortest. Without a window (0) the system gives the timer a
  /// number of its own. Returns the number, 0 when there is no such window.
  virtual TimerId SetTimer(WindowHandle window, TimerId id, std::uint32_t milliseconds,
                           TimerProcedure procedure) = 0;

  /// Ends a timer. False when the window has no timer of that number.
  virtual bool KillTimer(WindowHandle window, TimerId id) = 0;
};

}  // namespace brimwork
