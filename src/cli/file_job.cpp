#include "cli/file_job.h"

#include <exception>
#include <utility>

#include "cli/module_session.h"
#include "cli/source_input.h"

namespace brimwork {
namespace {

/// True when every line is as it was read; what the editor hides never changes.
bool IsAsRead(const SourceFile& file, const ModuleText& text) {
  OriginalLines lines = file.LinesAsRead();
  for (int line = 1; line <= text.Count(); ++line) {
    if (!lines.Next() || lines.Line() != text.Line(line)) return false;
  }
  return !lines.Next();
}

class FileJob {
 public:
  FileJob(const RunOptions& options, const InputFile& input, Console& console)
      : options_(options),
        input_(input),
        console_(console),
        path_(ShownPath(input.path, options)) {}

  void Run(FileReport& report, const std::function<void(const frmInfo&)>& showProgress) {
    SourceInput source = ReadInput(input_.path);
    SourceFile file = SourceFile::Parse(std::move(source.bytes), path_, options_.encoding);
    ModuleSession session(options_, file, input_.projectName);
    session.OnProgress(showProgress);
    report.lacksProcedure = session.Run(options_.command) == 0;
    report.wouldChange = !IsAsRead(file, session.Text());
    Deliver(report, file, session, source);
  }

 private:
  void Deliver(FileReport& report, const SourceFile& file, const ModuleSession& session,
               const SourceInput& source) {
    const auto compose = [&](const ByteSink& sink) { file.Compose(session.Text(), sink); };
    if (options_.PrintsResult()) {
      compose([](std::string_view) {});
      compose([&](std::string_view bytes) { console_.Out(bytes); });
      return;
    }
    if (!report.wouldChange) {
      report.detail = path_ + ": unchanged";
      return;
    }
    if (options_.check) report.output += path_ + '\n';
    if (options_.write) WriteWholeFile(input_.path, *source.snapshot, compose);
  }

  const RunOptions& options_;
  const InputFile& input_;
  Console& console_;
  std::string path_;
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
