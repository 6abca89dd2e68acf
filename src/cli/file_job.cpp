#include "cli/file_job.h"

#include <exception>
#include <optional>
#include <utility>

#include "cli/allowance_for.h"
#include "cli/file_diff.h"
#include "cli/module_checks.h"
#include "cli/module_session.h"
#include "cli/source_input.h"
#include "environment/text.h"

namespace brimwork {
namespace {

/// True when every line is as it was read; what the editor hides never changes.
bool IsAsRead(const CodeLines& before, const CodeLines& after) {
  if (before.Count() != after.Count()) return false;
  for (int line = 1; line <= after.Count(); ++line) {
    if (before.Line(line) != after.Line(line)) return false;
  }
  return true;
}

class FileJob {
 public:
  FileJob(const RunOptions& options, const InputFile& input, Console& console)
      : options_(options),
        console_(console),
        path_(ShownPath(input.path, options)),
        input_(input),
        source_(ReadInput(input.path)),
        originalBytes_(options.diff ? source_.bytes : std::string()),
        file_(SourceFile::Parse(std::move(source_.bytes), path_, options.encoding)),
        session_(options, file_, input.projectName) {}

  void Run(FileReport& report, const std::function<void(const frmInfo&)>& showProgress) {
    session_.OnProgress(showProgress);
    report.lacksProcedure = session_.Run(options_.command) == 0;
    if (report.lacksProcedure || !TakeSpelling(report)) return;
    const LinesAsRead before(file_);
    report.wouldChange = !IsAsRead(before, LinesNow(session_.Text()));
    if (!Check(before, report)) return;
    Deliver(before, report);
  }

 private:
  /// False when the spell check leaves nothing to be written: it failed, or was to list only.
  bool TakeSpelling(FileReport& report) {
    if (session_.Spelling() == nullptr) return true;
    for (const ShownMessage& message : session_.Memory().dialogs.Messages()) {
      report.errors.push_back(path_ + ": " + Replace(message.prompt, "\r\n", ". "));
    }
    if (options_.lists) {
      report.output = session_.Spelling()->List();
      report.listed = session_.Spelling()->ListedWords();
    }
    return report.errors.empty() && !options_.lists;
  }

  /// Vouches for the result and collects the warnings; false when the file must be left alone.
  bool Check(const LinesAsRead& before, FileReport& report) {
    const LinesNow after(session_.Text());
    const Allowance allowance = AllowanceFor(options_.command.caption, session_.Parts());
    const bool warns = options_.warnings && (allowance.labelsMayGo || allowance.handler ||
                                             !session_.SkippedErrors().empty());
    const bool needsAlignment = warns || !options_.PrintsResult();
    const auto difference = Vouch(before, after, allowance, needsAlignment ? &alignment_ : nullptr);
    if (difference && !options_.isUnsafe) {
      report.errors.push_back(FaultMessage(file_, *difference));
      report.wouldChange = false;
      return false;
    }
    if (warns) report.warnings = WarningsOf(file_, session_, allowance, before, alignment_);
    return true;
  }

  void Deliver(const LinesAsRead& before, FileReport& report) {
    if (options_.PrintsResult()) {
      PrintResult();
      return;
    }
    if (!report.wouldChange) {
      report.detail = path_ + ": unchanged";
      return;
    }
    if (options_.diff) report.output = Diff();
    if (options_.check) {
      (options_.diff ? report.summary : report.output) += path_ + (options_.diff ? "" : "\n");
    }
    if (options_.write) {
      WriteWholeFile(input_.path, *source_.snapshot, [&](const ByteSink& sink) { Compose(sink); });
      report.summary = path_ + ": " + ChangeSummary(before, LinesNow(session_.Text()), alignment_);
    }
  }

  /// Nothing is printed of a result that cannot be encoded whole.
  void PrintResult() {
    file_.RequireEncodable(session_.Text());
    Compose([&](std::string_view bytes) { console_.Out(bytes); });
  }

  std::string Diff() {
    std::string bytes;
    Compose([&](std::string_view piece) { bytes += piece; });
    return FileDiff({path_, originalBytes_, bytes, file_, session_.Text(), alignment_,
                     console_.OutIsTerminal(), console_.ColorsOut()});
  }

  void Compose(const ByteSink& sink) const { file_.Compose(session_.Text(), sink); }

  const RunOptions& options_;
  Console& console_;
  std::string path_;
  const InputFile& input_;
  SourceInput source_;
  std::string originalBytes_;  // for the diff only
  SourceFile file_;
  ModuleSession session_;
  Alignment alignment_;
};

}  // namespace

FileReport RunOnFile(const RunOptions& options, const InputFile& input, Console& console,
                     const std::function<void(const frmInfo&)>& showProgress) {
  FileReport report;
  try {
    FileJob(options, input, console).Run(report, showProgress);
  } catch (const std::exception& error) {
    report.errors.push_back(error.what());
    report.wouldChange = false;
  }
  return report;
}

}  // namespace brimwork
