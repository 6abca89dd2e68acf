#include "cli/run_files.h"

#include <algorithm>
#include <atomic>
#include <chrono>
#include <condition_variable>
#include <mutex>
#include <optional>
#include <string>
#include <thread>
#include <vector>

#include "cli/app.h"
#include "cli/file_job.h"
#include "cli/inputs.h"
#include "cli/source_input.h"

namespace brimwork {
namespace {

using SteadyClock = std::chrono::steady_clock;

void CheckModes(const RunOptions& options) {
  if (options.paths.empty()) {
    throw UsageError("no files given: name files, folders or projects, or - for standard input");
  }
  if (options.write && options.check) {
    throw UsageError("--check writes nothing: leave out --write or --check");
  }
  if (options.write && std::ranges::count(options.paths, kStandardInputPath) > 0) {
    throw UsageError("standard input cannot be written back: leave out --write");
  }
}

void CheckOneResult(const RunOptions& options, const Inputs& inputs) {
  if (!options.PrintsResult() || inputs.namesOneFile) return;
  throw UsageError(
      "more than one file needs a mode: --write changes the files, --check lists those that would "
      "change, --diff shows the changes");
}

/// Shows how far a long run is; a short one shows nothing.
class RunProgress {
 public:
  RunProgress(Console& console, std::size_t files) : console_(console), files_(files) {}

  void FileDone() { ++done_; }

  void Show(const std::string& path, const frmInfo& window) {
    if (!console_.ShowsProgress() || !window.Visible || !IsDue()) return;
    const std::string count =
        files_ > 1 ? std::to_string(done_ + 1) + " of " + std::to_string(files_) + ": " : "";
    console_.Progress(count + path + ": " + window.lblInfo.Caption + ' ' + window.picProgress.Text);
  }

 private:
  static constexpr std::int64_t kFirstAfterMilliseconds = 1000;
  static constexpr std::int64_t kEveryMilliseconds = 100;

  bool IsDue() {
    const std::int64_t now =
        std::chrono::duration_cast<std::chrono::milliseconds>(SteadyClock::now() - started_)
            .count();
    std::int64_t due = nextDue_.load();
    return now >= due && nextDue_.compare_exchange_strong(due, now + kEveryMilliseconds);
  }

  Console& console_;
  std::size_t files_;
  std::atomic<std::size_t> done_ = 0;
  SteadyClock::time_point started_ = SteadyClock::now();
  std::atomic<std::int64_t> nextDue_ = kFirstAfterMilliseconds;
};

/// Works on the files side by side and hands out the reports in the files' order.
class FileQueue {
 public:
  FileQueue(const RunOptions& options, Console& console, const std::vector<InputFile>& files)
      : options_(options),
        console_(console),
        files_(files),
        reports_(files.size()),
        progress_(console, files.size()) {}

  template <class Take>
  void Run(Take take) {
    const std::size_t jobs = std::min<std::size_t>(options_.jobs, files_.size());
    if (jobs <= 1) {
      for (const InputFile& file : files_) take(RunOn(file));
      return;
    }
    std::vector<std::jthread> workers;
    for (std::size_t i = 0; i < jobs; ++i) workers.emplace_back([this] { Work(); });
    for (std::size_t i = 0; i < files_.size(); ++i) take(WaitFor(i));
  }

 private:
  void Work() {
    for (std::size_t i = next_++; i < files_.size(); i = next_++) {
      FileReport report = RunOn(files_[i]);
      const std::lock_guard lock(mutex_);
      reports_[i] = std::move(report);
      reported_.notify_one();
    }
  }

  FileReport RunOn(const InputFile& file) {
    FileReport report = RunOnFile(options_, file, console_, [&](const frmInfo& window) {
      progress_.Show(ShownPath(file.path, options_), window);
    });
    progress_.FileDone();
    return report;
  }

  FileReport WaitFor(std::size_t i) {
    std::unique_lock lock(mutex_);
    reported_.wait(lock, [&] { return reports_[i].has_value(); });
    return std::move(*reports_[i]);
  }

  const RunOptions& options_;
  Console& console_;
  const std::vector<InputFile>& files_;
  std::vector<std::optional<FileReport>> reports_;
  RunProgress progress_;
  std::atomic<std::size_t> next_ = 0;
  std::mutex mutex_;
  std::condition_variable reported_;
};

struct Totals {
  int files = 0;
  int changed = 0;
  int failed = 0;
  int withoutProcedure = 0;
};

void Tell(const FileReport& report, Console& console) {
  console.Progress("");
  for (const std::string& warning : report.warnings) console.Warning(warning);
  for (const std::string& error : report.errors) console.Error(error);
  if (!report.output.empty()) console.Out(report.output);
  if (!report.summary.empty()) console.Note(report.summary);
  if (!report.detail.empty()) console.Detail(report.detail);
}

void Add(Totals& totals, const FileReport& report) {
  ++totals.files;
  totals.changed += report.wouldChange;
  totals.failed += !report.errors.empty();
  totals.withoutProcedure += report.lacksProcedure;
}

std::string Counted(int count, const std::string& noun) {
  return std::to_string(count) + ' ' + noun + (count == 1 ? "" : "s");
}

void TellTotals(const RunOptions& options, const Totals& totals, Console& console) {
  if (totals.files < 2) return;
  const std::string verb = options.write ? " changed" : " would change";
  std::string line = Counted(totals.files, "file") + ", " + std::to_string(totals.changed) + verb;
  if (totals.failed > 0) line += ", " + std::to_string(totals.failed) + " failed";
  console.Note(line);
}

int ExitCodeOf(const RunOptions& options, const Totals& totals) {
  if (totals.failed > 0) return exit_code::kError;
  return options.check && totals.changed > 0 ? exit_code::kWouldChange : exit_code::kDone;
}

}  // namespace

int RunFiles(const RunOptions& options, Console& console) {
  CheckModes(options);
  const Inputs inputs = CollectInputs(options.paths, options.stdinFileName, options.encoding);
  for (const std::string& note : inputs.notes) console.Note(note);
  for (const std::string& error : inputs.errors) console.Error(error);
  CheckOneResult(options, inputs);

  Totals totals;
  totals.failed = static_cast<int>(inputs.errors.size());
  FileQueue queue(options, console, inputs.files);
  queue.Run([&](const FileReport& report) {
    Tell(report, console);
    Add(totals, report);
  });
  const bool nowhereFound = totals.files > 0 && totals.withoutProcedure == totals.files;
  if (nowhereFound) {
    const std::string where = totals.files == 1
                                  ? ShownPath(inputs.files[0].path, options) + ": there is no"
                                  : std::string("no file has a");
    console.Error(where + " procedure \"" + *options.command.place.procedure + '"');
    ++totals.failed;
  }
  TellTotals(options, totals, console);
  return ExitCodeOf(options, totals);
}

}  // namespace brimwork
