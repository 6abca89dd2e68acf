#include "cli/export_files.h"

#include <filesystem>
#include <optional>

#include "cli/app.h"
#include "cli/export_folder.h"
#include "cli/export_job.h"
#include "cli/export_names.h"
#include "cli/export_targets.h"
#include "cli/run_inputs.h"
#include "cli/run_progress.h"
#include "cli/source_input.h"
#include "export/modExportCode.h"
#include "settings/setting_keys.h"

namespace brimwork {
namespace {

namespace fs = std::filesystem;

void CheckFilesAndPlace(const ExportRequest& request, const Inputs& inputs) {
  if (inputs.namesOneFile) return;
  if (request.quick) {
    throw UsageError("--quick exports one file: name one file, not a folder or a project");
  }
  if (request.lines) throw UsageError("--lines are lines of one file: name one file");
  if (request.PrintsResult()) {
    throw UsageError("more than one file needs a folder to write to: give --output FOLDER");
  }
}

void HintAtKeywords(const ExportRequest& request, Console& console) {
  if (request.format.name == kTextExport.name) return;
  if (request.run.settings.contains(setting::kKeyWordList)) return;
  console.Note(
      "the keyword list is empty, so this export has no keyword colours: give --keywords builtin, "
      "or store a list with \"brimwork settings set KeyWordList WORD,WORD,...\"");
}

/// A path that ends in a slash, or that is a folder, takes the file in it.
std::string TargetPath(const ExportRequest& request, const InputFile& input) {
  const std::string& output = *request.output;
  std::error_code unknown;
  if (!output.ends_with('/') && !fs::is_directory(output, unknown)) return output;
  return fs::path(output) /
         ExportName(SourceName(input.path, request.run), request.format.extension);
}

/// The path in the file's folder; Quick Export has a backslash before its name.
std::string QuickPath(const ExportedModule& module) {
  if (module.quickFolder.empty()) {
    throw UsageError(
        "the folder for Quick Export is not known: set HOME, or \"brimwork settings set "
        "QuickExportPath FOLDER\"");
  }
  RequireFolder(module.quickFolder,
                "make it, or name another with \"brimwork settings set QuickExportPath FOLDER\"");
  return fs::path(module.quickFolder) / kQuickExportFile.substr(1);
}

class OneFileExport {
 public:
  OneFileExport(const ExportRequest& request, const InputFile& input, Console& console)
      : request_(request), input_(input), console_(console) {}

  int Run() {
    std::optional<ExportTarget> target;
    if (request_.output && !request_.PrintsResult()) target = CheckedTarget();
    const ExportedModule module = Export();
    console_.Progress("");
    for (const std::string& error : module.errors) console_.Error(error);
    if (!module.errors.empty()) return exit_code::kError;
    if (request_.quick) target = CheckedTargetAt(QuickPath(module));
    Deliver(module, target);
    console_.Detail(LinesAndEncoding(path_, module));
    return exit_code::kDone;
  }

 private:
  bool MakesFolder() const { return request_.output && request_.output->ends_with('/'); }

  ExportTarget CheckedTargetAt(const std::string& path) {
    return CheckedTargets({path}, {input_}, request_.mayReplace).front();
  }

  ExportTarget CheckedTarget() {
    const std::string path = TargetPath(request_, input_);
    const std::string folder = fs::path(path).parent_path();
    if (!MakesFolder() && !folder.empty()) RequireFolder(folder, "make it first");
    return CheckedTargetAt(path);
  }

  ExportedModule Export() {
    if (!console_.ShowsProgress()) return ExportModule(request_, input_, {});
    RunProgress progress(console_, 1);
    return ExportModule(request_, input_,
                        [&](const frmInfo& window) { progress.Show(path_, window); });
  }

  void Deliver(const ExportedModule& module, const std::optional<ExportTarget>& target) {
    if (!target) {
      console_.Out(*module.bytes);
      return;
    }
    if (MakesFolder()) MakeFolder(*request_.output);
    WriteTarget(*target, *module.bytes);
    console_.Note(path_ + ": exported to " + target->path);
  }

  const ExportRequest& request_;
  const InputFile& input_;
  Console& console_;
  std::string path_ = ShownPath(input_.path, request_.run);
};

}  // namespace

int ExportFiles(const ExportRequest& request, Console& console) {
  RequirePaths(request.run);
  const Inputs inputs = CollectAndTell(request.run, console);
  CheckFilesAndPlace(request, inputs);
  if (inputs.files.empty()) return inputs.errors.empty() ? exit_code::kDone : exit_code::kError;
  const int exitCode = inputs.namesOneFile
                           ? OneFileExport(request, inputs.files.front(), console).Run()
                           : ExportToFolder(request, inputs, console);
  if (exitCode == exit_code::kDone) HintAtKeywords(request, console);
  return exitCode;
}

}  // namespace brimwork
