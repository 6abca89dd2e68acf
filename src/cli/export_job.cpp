#include "cli/export_job.h"

#include <exception>
#include <utility>

#include "cli/module_session.h"
#include "cli/source_input.h"
#include "environment/text.h"
#include "export/modExportCode.h"
#include "memory/source_error.h"
#include "settings/setting_keys.h"

namespace brimwork {
namespace {

/// An export is read by other programs, so one in UTF-16 or the like becomes UTF-8.
TextCodec& CodecOfExport(const SourceFile& file, TextCodec& utf8) {
  return file.Codec().IsAsciiCompatible() ? file.Codec() : utf8;
}

class ExportJob {
 public:
  ExportJob(const ExportRequest& request, const InputFile& input)
      : request_(request),
        path_(ShownPath(input.path, request.run)),
        file_(SourceFile::Parse(ReadInput(input.path).bytes, path_, request.run.encoding)),
        session_(request.run, file_, input.projectName) {
    session_.Memory().textFiles.SetCodec(CodecOfExport(file_, utf8_));
  }

  void Run(ExportedModule& result, const std::function<void(const frmInfo&)>& showProgress) {
    session_.OnProgress(showProgress);
    if (request_.lines) Select(*request_.lines);
    const std::string written = AnswerWhereTo(result);
    session_.Run(request_.run.command);
    CollectErrors(written, result.errors);
    if (result.errors.empty()) result.bytes = session_.Memory().textFiles.TakeShared(written);
    result.name = file_.ForDisplay(file_.ModuleName());
    result.encoding = file_.Encoding();
    result.lines = file_.LineCount();
  }

 private:
  /// Selects what the editor shows of these lines of the file.
  void Select(const LineRange& lines) {
    int first = file_.ModuleLineOf(lines.first);
    int last = file_.ModuleLineOf(lines.last);
    if (file_.LineCount() > 0) {
      if (file_.FileLineOf(first) < lines.first) ++first;
      if (file_.FileLineOf(last) > lines.last) --last;
    }
    if (first > last || last > file_.LineCount()) {
      throw SourceError(path_, lines.first, 0, "the editor hides these lines, so there is no code");
    }
    firstLine_ = first;
    session_.SelectLines(first, last);
  }

  /// Answers the question where to save; returns the path that the command will write to.
  std::string AnswerWhereTo(ExportedModule& result) {
    if (request_.quick) {
      result.quickFolder = GetCommandSetting(session_.Parts(), setting::kQuickExportPath);
      return result.quickFolder + std::string(kQuickExportFile);
    }
    const std::string name = std::string("export").append(request_.format.extension);
    session_.Memory().dialogs.SaveTo(name);
    return name;
  }

  void CollectErrors(const std::string& written, std::vector<std::string>& errors) {
    for (const ShownMessage& message : session_.Memory().dialogs.Messages()) {
      errors.push_back(path_ + ": " + Replace(message.prompt, "\r\n", ": "));
    }
    for (const RunTimeError& error : session_.SkippedErrors()) {
      const int line = FileLineOf(error.Line());
      errors.push_back(SourceError(path_, line, 0, error.what() + WhatToDo(error)).what());
    }
    if (errors.empty() && !session_.Memory().textFiles.Exists(written)) {
      errors.push_back(path_ + ": the command wrote nothing");
    }
  }

  /// The file's line of a line of the exported text, 0 for none.
  int FileLineOf(int exportedLine) const {
    const int line = firstLine_ + exportedLine - 1;
    return exportedLine >= 1 && line <= file_.LineCount() ? file_.FileLineOf(line) : 0;
  }

  /// Only rich text asks something of the code itself.
  std::string WhatToDo(const RunTimeError& error) const {
    if (request_.format.name != kRtfExport.name || error.Line() == 0) return {};
    return ", so this makes no rich text; close the quote, or export as text or html";
  }

  const ExportRequest& request_;
  std::string path_;
  SourceFile file_;
  TextCodec utf8_{"UTF-8"};
  ModuleSession session_;
  int firstLine_ = 1;  // of the module, at which the exported text starts
};

}  // namespace

ExportedModule ExportModule(const ExportRequest& request, const InputFile& input,
                            const std::function<void(const frmInfo&)>& showProgress) {
  ExportedModule result;
  try {
    ExportJob(request, input).Run(result, showProgress);
  } catch (const std::exception& error) {
    result.errors.push_back(error.what());
  }
  return result;
}

std::string LinesAndEncoding(const std::string& path, const ExportedModule& module) {
  return path + ": " + std::to_string(module.lines) + (module.lines == 1 ? " line" : " lines") +
         ", read as " + module.encoding;
}

}  // namespace brimwork
