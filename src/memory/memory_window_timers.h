// The system's timers as plain data, over a clock that stands still until somebody lets time pass.
#pragma once

#include <cstdint>
#include <optional>
#include <vector>

#include "environment/window_timers.h"
#include "memory/memory_native_windows.h"

namespace brimwork {

class MemoryWindowTimers : public WindowTimers {
 public:
  static constexpr std::uint32_t kShortestInterval = 10;  // milliseconds

  /// Which of several timers that are due at the same moment goes first.
  enum class Tie { kLatestSetFirst, kEarliestSetFirst };

  explicit MemoryWindowTimers(MemoryNativeWindows& windows) : windows_(windows) {}

  TimerId SetTimer(WindowHandle window, TimerId id, std::uint32_t milliseconds,
                   TimerProcedure procedure) override;
  bool KillTimer(WindowHandle window, TimerId id) override;

  /// Milliseconds since the start.
  std::uint32_t Now() const { return now_; }

  /// When the next timer is due, nothing when none is set. A timer goes with its window.
  std::optional<std::uint32_t> NextDue();

  /// Lets time pass until the next timer is due, and calls its procedure.
  void FireNext();

  /// Lets time pass and calls what is due up to its end.
  void PassUntil(std::uint32_t time);
  void Pass(std::uint32_t milliseconds) { PassUntil(now_ + milliseconds); }

  /// Lets time pass without looking at the timers.
  void SetNow(std::uint32_t time) { now_ = time; }

  /// A timer as it was asked for.
  struct StartedTimer {
    WindowHandle window = 0;
    TimerId id = 0;
    std::uint32_t milliseconds = 0;
    bool operator==(const StartedTimer&) const = default;
  };

  /// Every timer that was ever set, in the order of the calls.
  const std::vector<StartedTimer>& Started() const { return started_; }

  /// How many timers are set.
  std::size_t Count() const { return timers_.size(); }

  /// The system promises nothing about ties; as a rule it takes the timer set last.
  Tie tie = Tie::kLatestSetFirst;

 private:
  struct WindowTimer {
    WindowHandle window = 0;
    TimerId id = 0;
    std::uint32_t interval = 0;
    std::uint32_t due = 0;
    TimerProcedure procedure;
  };
  using Timers = std::vector<WindowTimer>;  // in the order in which they were set

  Timers::iterator Find(WindowHandle window, TimerId id);
  Timers::iterator Next();

  MemoryNativeWindows& windows_;
  Timers timers_;
  std::vector<StartedTimer> started_;
  std::uint32_t now_ = 0;
  TimerId latestOwnId_ = 0;
};

}  // namespace brimwork
