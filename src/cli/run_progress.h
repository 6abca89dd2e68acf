// How far a run is, on the terminal: a short run shows nothing.
#pragma once

#include <atomic>
#include <chrono>
#include <cstdint>
#include <string>

#include "cli/console.h"
#include "core/frmInfo.h"

namespace brimwork {

/// Several threads may use one at the same time.
class RunProgress {
 public:
  RunProgress(Console& console, std::size_t files) : console_(console), files_(files) {}

  void FileDone() { ++done_; }

  /// Called at each repaint of the progress window of the file at path.
  void Show(const std::string& path, const frmInfo& window);

 private:
  static constexpr std::int64_t kFirstAfterMilliseconds = 1000;

  bool IsDue();

  Console& console_;
  std::size_t files_;
  std::atomic<std::size_t> done_ = 0;
  std::chrono::steady_clock::time_point started_ = std::chrono::steady_clock::now();
  std::atomic<std::int64_t> nextDue_ = kFirstAfterMilliseconds;
};

}  // namespace brimwork
