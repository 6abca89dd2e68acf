// Works on numbered things side by side and hands out what came of them in their order.
#pragma once

#include <algorithm>
#include <atomic>
#include <condition_variable>
#include <functional>
#include <mutex>
#include <optional>
#include <thread>
#include <utility>
#include <vector>

namespace brimwork {

template <class Report>
class FileQueue {
 public:
  /// work: called with each index below count, on several threads at the same time; throws nothing.
  FileQueue(std::size_t count, std::function<Report(std::size_t)> work)
      : work_(std::move(work)), reports_(count) {}

  /// Calls take with each report, in order and on this thread. With one job, or for one thing, it
  /// is also worked on here. Without a number of jobs there is one a processor.
  template <class Take>
  void Run(std::optional<int> jobs, Take take) {
    const std::size_t workersWanted = WorkersFor(jobs);
    if (workersWanted <= 1) {
      for (std::size_t i = 0; i < reports_.size(); ++i) take(work_(i));
      return;
    }
    std::vector<std::jthread> workers;
    for (std::size_t i = 0; i < workersWanted; ++i) workers.emplace_back([this] { Work(); });
    for (std::size_t i = 0; i < reports_.size(); ++i) take(WaitFor(i));
  }

 private:
  /// The system is asked for its processors only where there is work for them.
  std::size_t WorkersFor(std::optional<int> jobs) const {
    if (reports_.size() <= 1) return reports_.size();
    const std::size_t wanted =
        jobs ? static_cast<std::size_t>(*jobs) : std::max(1u, std::thread::hardware_concurrency());
    return std::min(wanted, reports_.size());
  }

  void Work() {
    for (std::size_t i = next_++; i < reports_.size(); i = next_++) {
      Report report = work_(i);
      const std::lock_guard lock(mutex_);
      reports_[i] = std::move(report);
      reported_.notify_one();
    }
  }

  Report WaitFor(std::size_t i) {
    std::unique_lock lock(mutex_);
    reported_.wait(lock, [&] { return reports_[i].has_value(); });
    return std::move(*reports_[i]);
  }

  std::function<Report(std::size_t)> work_;
  std::vector<std::optional<Report>> reports_;
  std::atomic<std::size_t> next_ = 0;
  std::mutex mutex_;
  std::condition_variable reported_;
};

}  // namespace brimwork
