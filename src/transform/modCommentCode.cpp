#include "transform/modCommentCode.h"

#include <optional>

#include "environment/basic_lines.h"
#include "environment/text.h"
#include "settings/setting_keys.h"
#include "transform/borrowed_clipboard.h"
#include "transform/code_source.h"
#include "transform/procedure_bounds.h"

namespace brimwork {
namespace {

bool IsEmptyLine(CodeModule& module, int line) { return IsBlankLine(module.Lines(line, 1)); }

/// The lines of one procedure as they are at the moment; every edit may move them.
struct ProcedureLines {
  CodeModule& module;
  std::string_view name;
  ProcKind kind;

  int Start() const { return module.ProcStartLine(name, kind); }
  int Body() const { return module.ProcBodyLine(name, kind); }
  int Behind() const { return Start() + module.ProcCountLines(name, kind); }
};

/// The first of the procedure's own lines: below the blank lines and separators it starts with.
int FirstOwnLine(const ProcedureLines& procedure, std::string_view separator) {
  const int body = procedure.Body();
  int line = procedure.Start();
  while (line < body &&
         (IsEmptyLine(procedure.module, line) || procedure.module.Lines(line, 1) == separator)) {
    ++line;
  }
  return line;
}

/// Deletes the blank lines directly above line, not above firstLine, and returns where line stands
/// now.
int DeleteBlankLinesAbove(CodeModule& module, int line, int firstLine) {
  for (; line > firstLine && IsEmptyLine(module, line - 1); --line) module.DeleteLines(line - 1, 1);
  return line;
}

/// Deletes the run of empty lines that starts at line. At the end of the module one of them stays.
void DeleteEmptyLinesAt(CodeModule& module, int line) {
  while (line <= module.CountOfLines() && Trim(module.Lines(line, 1)).empty()) {
    module.DeleteLines(line, 1);
    if (line >= module.CountOfLines()) return;
  }
}

std::string Labelled(std::string_view closingLine, std::string_view signature) {
  const auto comment = closingLine.find('\'');
  const std::string_view code =
      comment == std::string_view::npos ? closingLine : TrimRight(closingLine.substr(0, comment));
  return std::string(code).append(" '").append(signature);
}

void LabelClosingLine(const ProcedureLines& procedure, int closingLine,
                      std::string_view signature) {
  CodeModule& module = procedure.module;
  const std::string text = module.Lines(closingLine, 1);
  if (closingLine == procedure.Body() || IsContinued(text)) return;
  module.ReplaceLine(closingLine, Labelled(text, signature));
}

/// Below a line that asks to be continued the separator would become part of it.
void PutSeparatorBelow(CodeModule& module, int line, std::string_view separator) {
  if (IsContinued(module.Lines(line, 1)) || module.Lines(line + 1, 1) == separator) return;
  module.InsertLines(line + 1, separator);
}

/// Blank lines behind the procedure make way for the separator; the closing line gets its label.
void CloseFrame(const ProcedureLines& procedure, std::string_view separator,
                std::string_view signature) {
  CodeModule& module = procedure.module;
  const auto closing = FindClosing(module, procedure.Body(), procedure.Behind() - 1);
  if (!closing) return;
  DeleteEmptyLinesAt(module, closing->statementEnd + 1);
  LabelClosingLine(procedure, closing->line, signature);
  PutSeparatorBelow(module, closing->statementEnd, separator);
}

void OpenFrame(CodeModule& module, int firstOwnLine, std::string_view separator) {
  if (firstOwnLine > 1 && module.Lines(firstOwnLine - 1, 1) == separator) return;
  module.InsertLines(firstOwnLine, separator);
}

}  // namespace

int CommentProcedure(Context& context, std::string_view procName, ProcKind procKind,
                     std::string_view signature) {
  int lineBehind = 0;
  WithCodeSource(context.environment, [&](CodeModule& module) {
    if (procName.empty()) return;
    const ProcedureLines procedure{module, procName, procKind};
    const std::string separator = GetCommandSetting(context.environment, setting::kSeparator);
    const int firstOwnLine =
        DeleteBlankLinesAbove(module, FirstOwnLine(procedure, separator), procedure.Start());
    CloseFrame(procedure, separator, signature);
    OpenFrame(module, firstOwnLine, separator);
    lineBehind = procedure.Behind() + 1;
  });
  return lineBehind;
}

std::string HeaderText(Environment& environment, std::string_view headerKind) {
  const bool adapted = headerKind == header_kind::kAdapted;
  const std::string text =
      GetCommandSetting(environment, adapted ? setting::kAdaptedHeader : setting::kHeader);
  constexpr std::string_view kDatePlaceholder = "Release Date";
  if (!Contains(text, kDatePlaceholder)) return text;
  return Replace(text, kDatePlaceholder, environment.clock.ShortDate());
}

void InsertHeader(Context& context, std::string_view headerKind) {
  WithCodeSource(context.environment, [&](CodeModule& module) {
    module.InsertLines(1, HeaderText(context.environment, headerKind));
  });
}

std::string TimeStampText(Environment& environment) {
  return " ' " + environment.clock.GeneralDate() + ' ';
}

void InsertTimeStamp(Context& context) {
  Environment& environment = context.environment;
  const std::string stamp = TimeStampText(environment);
  const BorrowedClipboard borrowed(environment.clipboard);
  environment.clipboard.Clear();
  environment.clipboard.SetText(stamp);
  environment.keyboard.SendKeys("^(v)", true);
}

}  // namespace brimwork
