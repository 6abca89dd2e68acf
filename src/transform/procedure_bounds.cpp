#include "transform/procedure_bounds.h"

#include "environment/basic_lines.h"
#include "environment/run_time_error.h"
#include "environment/text.h"

namespace brimwork {
namespace {

/// The declaration from the name on; the bare name when the declaration goes on in the next line.
std::string SignatureOf(const std::string& declaration, const std::string& name) {
  const auto start = declaration.find(name);
  const std::string signature = start == std::string::npos ? name : declaration.substr(start);
  return signature.ends_with('_') ? name : signature;
}

int LineBehindDeclaration(CodeModule& module, int bodyLine) {
  int line = bodyLine;
  while (module.Lines(line, 1).ends_with('_')) ++line;
  return line + 1;
}

/// The line behind the #End If that closes the block in which `line` stands, nothing when no #End
/// If down to lastLine does.
std::optional<int> LineBehindConditionalBlock(CodeModule& module, int line, int lastLine) {
  int depth = 1;
  for (; line <= lastLine; ++line) {
    const ConditionalLine kind = ConditionalLineOf(module.Lines(line, 1));
    if (kind == ConditionalLine::kIf) ++depth;
    if (kind == ConditionalLine::kEndIf && --depth == 0) return line + 1;
  }
  return std::nullopt;
}

/// A declaration may be one of several heads that conditional compilation chooses from; the body
/// then starts behind the block that holds them.
int SkipAlternativeHeads(CodeModule& module, int firstBodyLine, int lastLine) {
  Continues above = Continues::kNothing;
  for (int line = firstBodyLine; line <= lastLine; ++line) {
    const std::string text = module.Lines(line, 1);
    if (!IsBlankLine(text) && !IsCommentLine(text, above)) {
      const ConditionalLine kind = ConditionalLineOf(text);
      if (kind != ConditionalLine::kElse && kind != ConditionalLine::kEndIf) return firstBodyLine;
      return LineBehindConditionalBlock(module, line, lastLine).value_or(lastLine + 1);
    }
    above = ContinuedBelow(text, above);
  }
  return firstBodyLine;
}

CurrentProcedure ReadBounds(CodeModule& module, const ProcedureName& found) {
  CurrentProcedure procedure;
  const auto& [name, kind] = found;
  procedure.module = module.Identity();
  procedure.CurrentProcName = name;
  procedure.CurrentProcKind = kind;
  procedure.CurrentProcStart = module.ProcStartLine(name, kind);
  procedure.CurrentProcEnd = procedure.CurrentProcStart + module.ProcCountLines(name, kind) - 1;
  const int bodyLine = module.ProcBodyLine(name, kind);
  procedure.CurrentProcDeclaration = module.Lines(bodyLine, 1);
  procedure.CurrentProcSignature = SignatureOf(procedure.CurrentProcDeclaration, name);
  procedure.FirstBodyLine = SkipAlternativeHeads(module, LineBehindDeclaration(module, bodyLine),
                                                 procedure.CurrentProcEnd);
  const auto closingLine = FindClosingLine(module, bodyLine, procedure.CurrentProcEnd);
  procedure.LastBodyLine = closingLine ? *closingLine - 1 : procedure.FirstBodyLine - 1;
  return procedure;
}

std::optional<int> ClosingLineWithin(CodeModule& module, int statementStart, int statementEnd) {
  Continues above = Continues::kNothing;
  for (int line = statementStart; line <= statementEnd; ++line) {
    const std::string text = module.Lines(line, 1);
    if (ClosesProcedure(text, above)) return line;
    above = ContinuedBelow(text, above);
  }
  return std::nullopt;
}

bool CanStandBelowProcedures(const std::string& line) {
  return IsBlankLine(line) || IsCommentLine(line, Continues::kNothing) ||
         IsConditionalCompilationLine(line);
}

}  // namespace

int GetProcedureBounds(Context& context, CodeModule& module, int line) {
  CurrentProcedure& record = context.procedure;
  try {
    const ProcedureName found = module.ProcOfLine(line);
    if (!found.name.empty()) {
      record = ReadBounds(module, found);
    } else {
      if (record.module != module.Identity()) record = {};
      record.CurrentProcName.clear();
      record.CurrentProcKind = found.kind;
    }
  } catch (const RunTimeError&) {
    record = {};
    throw;
  }
  return record.CurrentProcEnd + 1;
}

std::optional<ClosingLine> FindClosing(CodeModule& module, int firstLine, int lastLine) {
  for (int end = lastLine; end >= firstLine;) {
    const int start = StatementStart(module, end, firstLine);
    if (const auto line = ClosingLineWithin(module, start, end)) return ClosingLine{*line, end};
    if (!CanStandBelowProcedures(module.Lines(start, 1))) return std::nullopt;
    end = start - 1;
  }
  return std::nullopt;
}

std::optional<int> FindClosingLine(CodeModule& module, int firstLine, int lastLine) {
  const auto closing = FindClosing(module, firstLine, lastLine);
  if (!closing) return std::nullopt;
  return closing->line;
}

int StatementStart(CodeModule& module, int line, int firstLine) {
  while (line > firstLine && IsContinued(module.Lines(line - 1, 1))) --line;
  return line;
}

}  // namespace brimwork
