#include "transform/modErrorHandling.h"

#include <algorithm>
#include <optional>
#include <string>

#include "environment/text.h"
#include "settings/setting_keys.h"
#include "transform/code_source.h"
#include "transform/procedure_bounds.h"

namespace brimwork {
namespace {

/// The line behind the statement or comment that starts at line.
int LineBehindStatement(CodeModule& module, int line) {
  while (IsContinued(module.Lines(line, 1))) ++line;
  return line + 1;
}

/// Skips the statements that start with prefix; the jump must not split one of them.
int SkipStatements(CodeModule& module, int line, int lastLine, std::string_view prefix) {
  while (line <= lastLine && Trim(module.Lines(line, 1)).starts_with(prefix)) {
    line = LineBehindStatement(module, line);
  }
  return line;
}

std::string ProcedurePath(Environment& environment, CodeModule& module, std::string_view procName) {
  const auto project = environment.vbe.ActiveVBProject();
  const std::string projectName = project ? project->Name() : std::string();
  return projectName + '.' + module.Name() + '.' + std::string(procName);
}

std::string HandlerText(Environment& environment, CodeModule& module, std::string_view procName) {
  const std::string handler = GetCommandSetting(environment, setting::kErrorHandling);
  if (!Contains(handler, kPathPlaceholder)) return handler;
  return Replace(handler, kPathPlaceholder, ProcedurePath(environment, module, procName));
}

std::string HandlerBlock(std::string_view kindWord, std::string_view handler) {
  return "\r\nExit " + std::string(kindWord) + "\r\n\r\nErrorTrap:\r\n" + std::string(handler);
}

void InsertResume(CodeModule& module, int firstLine, int lastLine) {
  const int count = std::max(1, lastLine - firstLine);
  if (Contains(module.Lines(firstLine, count), "On Error")) return;
  module.InsertLines(firstLine, "On Error Resume Next");
}

/// The first line of the statement with the procedure's closing line, before which a handler goes;
/// nothing when the procedure has no closing line.
std::optional<int> ClosingStatement(CodeModule& module, std::string_view procName,
                                    ProcKind procKind) {
  const int start = module.ProcStartLine(procName, procKind);
  const int end = start + module.ProcCountLines(procName, procKind) - 1;
  const int declaration = module.ProcBodyLine(procName, procKind);
  const auto closing = FindClosingLine(module, declaration, end);
  if (!closing) return std::nullopt;
  return StatementStart(module, *closing, declaration);
}

/// The first line of the body that is neither a leading comment nor a Dim statement.
int FirstLineBehindDims(CodeModule& module, int firstLine, int lastLine) {
  firstLine = SkipStatements(module, firstLine, lastLine, "'");
  return SkipStatements(module, firstLine, lastLine, "Dim");
}

}  // namespace

void InsertErrorHandling(Context& context, bool useDefaultHandler, int& firstLine, int& lastLine,
                         std::string_view procName, ProcKind procKind, std::string_view kindWord) {
  WithCodeSource(context.environment, [&](CodeModule& module) {
    const bool hasBody = firstLine <= lastLine + 1;
    if (procName.empty() || !hasBody) return;
    const auto closing = ClosingStatement(module, procName, procKind);
    if (useDefaultHandler && !closing) return;
    const int behindBody = closing.value_or(lastLine + 1);
    firstLine = std::min(FirstLineBehindDims(module, firstLine, lastLine), behindBody);
    if (!useDefaultHandler) {
      InsertResume(module, firstLine, lastLine);
      return;
    }
    const std::string handler = HandlerText(context.environment, module, procName);
    module.InsertLines(firstLine, "On Error GoTo ErrorTrap");
    lastLine = behindBody + 1;
    module.InsertLines(lastLine, HandlerBlock(kindWord, handler));
  });
}

}  // namespace brimwork
