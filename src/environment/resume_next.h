// "On Error Resume Next" at the one place that means it: a run-time error ends the step, not the
// caller. Everything else (a broken invariant, no memory) goes on up.
#pragma once

#include <optional>
#include <utility>

#include "environment/run_time_error.h"

namespace brimwork {

/// Runs step; returns the run-time error that ended it early, or nothing when it ran to its end.
template <class Step>
std::optional<RunTimeError> ResumeNext(Step&& step) {
  try {
    std::forward<Step>(step)();
    return std::nullopt;
  } catch (const RunTimeError& error) {
    return error;
  }
}

/// Runs a step that puts the user's things back (pointer, clipboard, redraw lock). Another program
/// may hold them for a moment, so the step is tried again before it is given up.
template <class Step>
void Insist(Step&& step) {
  constexpr int kAttempts = 3;
  for (int attempt = 0; attempt < kAttempts; ++attempt) {
    if (!ResumeNext(step)) return;
  }
}

}  // namespace brimwork
