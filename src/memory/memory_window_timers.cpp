#include "memory/memory_window_timers.h"

#include <algorithm>
#include <utility>

namespace brimwork {

TimerId MemoryWindowTimers::SetTimer(WindowHandle window, TimerId id, std::uint32_t milliseconds,
                                     TimerProcedure procedure) {
  if (window == 0) {
    id = ++latestOwnId_;
  } else if (!windows_.IsWindow(window)) {
    return 0;
  }
  KillTimer(window, id);
  started_.push_back({window, id, milliseconds});
  const std::uint32_t interval = std::max(milliseconds, kShortestInterval);
  timers_.push_back({window, id, interval, now_ + interval, std::move(procedure)});
  return id;
}

bool MemoryWindowTimers::KillTimer(WindowHandle window, TimerId id) {
  const auto timer = Find(window, id);
  if (timer == timers_.end()) return false;
  timers_.erase(timer);
  return true;
}

std::optional<std::uint32_t> MemoryWindowTimers::NextDue() {
  const auto next = Next();
  if (next == timers_.end()) return std::nullopt;
  return next->due;
}

// The procedure may set and kill timers, this one included.
void MemoryWindowTimers::FireNext() {
  const auto next = Next();
  if (next == timers_.end()) return;
  now_ = std::max(now_, next->due);
  next->due = now_ + next->interval;
  const WindowTimer fired = *next;
  fired.procedure(fired.window, window_message::kTimer, fired.id, now_);
}

void MemoryWindowTimers::PassUntil(std::uint32_t time) {
  for (auto due = NextDue(); due && *due <= time; due = NextDue()) FireNext();
  now_ = std::max(now_, time);
}

MemoryWindowTimers::Timers::iterator MemoryWindowTimers::Find(WindowHandle window, TimerId id) {
  return std::ranges::find_if(
      timers_, [&](const auto& timer) { return timer.window == window && timer.id == id; });
}

MemoryWindowTimers::Timers::iterator MemoryWindowTimers::Next() {
  std::erase_if(timers_, [&](const auto& timer) {
    return timer.window != 0 && !windows_.IsWindow(timer.window);
  });
  const auto earliest = std::ranges::min_element(timers_, {}, &WindowTimer::due);
  if (earliest == timers_.end() || tie == Tie::kEarliestSetFirst) return earliest;
  const auto isDueThen = [&](const auto& timer) { return timer.due == earliest->due; };
  return std::prev(std::find_if(timers_.rbegin(), timers_.rend(), isDueThen).base());
}

}  // namespace brimwork
