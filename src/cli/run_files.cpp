#include "cli/run_files.h"

#include <algorithm>
#include <string>
#include <vector>

#include "cli/app.h"
#include "cli/file_job.h"
#include "cli/file_queue.h"
#include "cli/run_inputs.h"
#include "cli/run_progress.h"
#include "cli/source_input.h"

namespace brimwork {
namespace {

void CheckModes(const RunOptions& options) {
  RequirePaths(options);
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

struct Totals {
  int files = 0;
  int changed = 0;
  int failed = 0;
  int withoutProcedure = 0;
  int listed = 0;
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
  totals.listed += report.listed;
}

std::string Counted(int count, const std::string& noun) {
  return std::to_string(count) + ' ' + noun + (count == 1 ? "" : "s");
}

void TellTotals(const RunOptions& options, const Totals& totals, Console& console) {
  if (totals.files < 2) return;
  const std::string verb = options.write ? " changed" : " would change";
  std::string line = Counted(totals.files, "file") + ", " +
                     (options.lists ? Counted(totals.listed, "misspelled word")
                                    : std::to_string(totals.changed) + verb);
  if (totals.failed > 0) line += ", " + std::to_string(totals.failed) + " failed";
  console.Note(line);
}

int ExitCodeOf(const RunOptions& options, const Totals& totals) {
  if (totals.failed > 0) return exit_code::kError;
  const int found = options.lists ? totals.listed : options.check ? totals.changed : 0;
  return found > 0 ? exit_code::kWouldChange : exit_code::kDone;
}

}  // namespace

int RunFiles(const RunOptions& options, Console& console) {
  CheckModes(options);
  const Inputs inputs = CollectAndTell(options, console);
  CheckOneResult(options, inputs);

  Totals totals;
  totals.failed = static_cast<int>(inputs.errors.size());
  RunProgress progress(console, inputs.files.size());
  FileQueue<FileReport> queue(inputs.files.size(), [&](std::size_t i) {
    const InputFile& file = inputs.files[i];
    FileReport report = RunOnFile(options, file, console, [&](const frmInfo& window) {
      progress.Show(ShownPath(file.path, options), window);
    });
    progress.FileDone();
    return report;
  });
  queue.Run(options.jobs, [&](const FileReport& report) {
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
