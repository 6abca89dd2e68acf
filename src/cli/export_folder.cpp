#include "cli/export_folder.h"

#include <filesystem>
#include <optional>
#include <utility>

#include "cli/app.h"
#include "cli/export_index.h"
#include "cli/export_job.h"
#include "cli/export_names.h"
#include "cli/export_targets.h"
#include "cli/file_queue.h"
#include "cli/run_progress.h"
#include "cli/source_input.h"
#include "memory/source_error.h"

namespace brimwork {
namespace {

namespace fs = std::filesystem;

constexpr std::string_view kIndexName = "index.htm";

/// What came of one file, to be told in the order of the files.
struct Outcome {
  std::vector<std::string> errors;
  std::string note;
  std::string detail;
  IndexEntry entry;
};

class FolderExport {
 public:
  FolderExport(const ExportRequest& request, const Inputs& inputs, Console& console)
      : request_(request),
        inputs_(inputs),
        console_(console),
        hasIndex_(request.format.name == kHtmlExport.name),
        names_(NamesOf(inputs)),
        targets_(CheckedTargets(Paths(), inputs.files, request.mayReplace)),
        progress_(console, inputs.files.size()) {}

  int Run() {
    MakeFolder(*request_.output);
    FileQueue<Outcome> queue(inputs_.files.size(), [this](std::size_t i) { return Export(i); });
    queue.Run(request_.run.jobs, [this](Outcome outcome) { Take(std::move(outcome)); });
    if (hasIndex_ && !entries_.empty()) WriteIndex();
    TellTotals();
    return failed_ > 0 || !inputs_.errors.empty() ? exit_code::kError : exit_code::kDone;
  }

 private:
  std::vector<std::string> NamesOf(const Inputs& inputs) const {
    std::vector<std::string> sources;
    for (const InputFile& input : inputs.files)
      sources.push_back(SourceName(input.path, request_.run));
    return ExportNames(sources, request_.format.extension, hasIndex_ ? kIndexName : "");
  }

  std::vector<std::string> Paths() const {
    std::vector<std::string> paths;
    for (const std::string& name : names_) paths.push_back(fs::path(*request_.output) / name);
    if (hasIndex_) paths.push_back(fs::path(*request_.output) / kIndexName);
    return paths;
  }

  Outcome Export(std::size_t i) {
    const InputFile& input = inputs_.files[i];
    const std::string path = ShownPath(input.path, request_.run);
    std::function<void(const frmInfo&)> show;
    if (console_.ShowsProgress()) {
      show = [&](const frmInfo& window) { progress_.Show(path, window); };
    }
    const ExportedModule module = ExportModule(request_, input, show);
    progress_.FileDone();
    return Written(i, path, module);
  }

  Outcome Written(std::size_t i, const std::string& path, const ExportedModule& module) const {
    Outcome outcome;
    outcome.errors = module.errors;
    if (!module.errors.empty()) return outcome;
    try {
      WriteTarget(targets_[i], *module.bytes);
    } catch (const SourceError& error) {
      outcome.errors.push_back(error.what());
      return outcome;
    }
    outcome.note = path + ": exported to " + targets_[i].path;
    outcome.detail = LinesAndEncoding(path, module);
    outcome.entry = {names_[i], module.name, PathInIndex(request_.run, path), module.lines};
    return outcome;
  }

  void Take(Outcome outcome) {
    console_.Progress("");
    for (const std::string& error : outcome.errors) console_.Error(error);
    if (!outcome.errors.empty()) {
      ++failed_;
      return;
    }
    console_.Note(outcome.note);
    console_.Detail(outcome.detail);
    entries_.push_back(std::move(outcome.entry));
  }

  void WriteIndex() {
    const std::string page = HtmlIndex({IndexTitle(request_.run, inputs_), entries_});
    try {
      WriteTarget(targets_.back(), page);
      isIndexWritten_ = true;
    } catch (const SourceError& error) {
      console_.Error(error.what());
      ++failed_;
    }
  }

  void TellTotals() {
    const std::size_t exported = entries_.size();
    std::string line = std::to_string(exported) + (exported == 1 ? " file" : " files") +
                       " exported to " + *request_.output;
    if (failed_ > 0) line += ", " + std::to_string(failed_) + " failed";
    if (isIndexWritten_) line += "; the index page is " + targets_.back().path;
    console_.Note(line);
  }

  const ExportRequest& request_;
  const Inputs& inputs_;
  Console& console_;
  bool hasIndex_;
  std::vector<std::string> names_;     // of the files, in the folder
  std::vector<ExportTarget> targets_;  // of the files, then of the index page
  RunProgress progress_;
  std::vector<IndexEntry> entries_;
  int failed_ = 0;
  bool isIndexWritten_ = false;
};

}  // namespace

int ExportToFolder(const ExportRequest& request, const Inputs& inputs, Console& console) {
  std::error_code unknown;
  if (fs::exists(*request.output, unknown)) {
    RequireFolder(*request.output, "more than one file needs a folder to write to");
  }
  return FolderExport(request, inputs, console).Run();
}

}  // namespace brimwork
