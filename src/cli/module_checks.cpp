#include "cli/module_checks.h"

#include <algorithm>

#include "cli/warnings.h"
#include "environment/basic_lines.h"

namespace brimwork {
namespace {

std::vector<ProcedureSpan> ProceduresOf(MemoryCodeModule& module) {
  std::vector<ProcedureSpan> procedures;
  int line = module.CountOfDeclarationLines() + 1;
  while (line <= module.CountOfLines()) {
    const auto [name, kind] = module.ProcOfLine(line);
    if (name.empty()) break;
    ProcedureSpan span;
    span.name = name;
    span.startLine = module.ProcStartLine(name, kind);
    span.bodyLine = module.ProcBodyLine(name, kind);
    span.endLine = span.startLine + module.ProcCountLines(name, kind) - 1;
    if (const auto declaration = ParseDeclaration(module.Text().Line(span.bodyLine))) {
      span.word = declaration->word;
    }
    line = span.endLine + 1;
    procedures.push_back(std::move(span));
  }
  return procedures;
}

/// The line before the command that a line behind it came from, or the nearest one above.
int LineBefore(const Alignment& alignment, int afterLine) {
  for (int line = afterLine; line > 0; --line) {
    if (const int before = alignment.BeforeLine(line)) return before;
  }
  return 1;
}

std::vector<Warning> StepWarnings(const std::vector<RunTimeError>& errors,
                                  const Alignment& alignment) {
  std::vector<Warning> warnings;
  for (const RunTimeError& error : errors) {
    if (error.Number() == error_number::kInvalidProcedureCall && error.Line() > 0) {
      warnings.push_back({LineBefore(alignment, error.Line()),
                          std::string("indenting stopped here: ") + error.what() +
                              "; the rest of the procedure keeps its indent"});
    } else {
      warnings.push_back({error.Line() > 0 ? LineBefore(alignment, error.Line()) : 1,
                          std::string("a step of the command was left out: ") + error.what()});
    }
  }
  return warnings;
}

void Append(std::vector<Warning>& all, std::vector<Warning> more) {
  all.insert(all.end(), more.begin(), more.end());
}

std::string Count(int count, const std::string& done) { return std::to_string(count) + ' ' + done; }

}  // namespace

std::string FaultMessage(const SourceFile& file, const Difference& difference) {
  const int lines = file.LineCount();
  const int line = std::clamp(difference.beforeLine, 1, std::max(1, lines));
  const std::string place =
      lines == 0 ? file.Path() : file.Path() + ':' + std::to_string(file.FileLineOf(line));
  return place +
         ": this is a fault of brimwork: the command would change code that it must keep, so "
         "the file is left alone; \"" +
         file.ForDisplay(difference.beforeText) + "\" would become \"" +
         file.ForDisplay(difference.afterText) + "\" (--unsafe writes all the same)";
}

std::vector<std::string> WarningsOf(const SourceFile& file, ModuleSession& session,
                                    const Allowance& allowance, const LinesAsRead& before,
                                    const Alignment& alignment) {
  const LinesNow after(session.Text());
  const std::vector<ProcedureSpan> procedures = ProceduresOf(session.Module());
  const ChangedModule module{before, after, alignment, procedures,
                             [&](int line) { return file.FileLineOf(line); }};
  std::vector<Warning> warnings = StepWarnings(session.SkippedErrors(), alignment);
  if (allowance.labelsMayGo || allowance.labelsMayCome) Append(warnings, LabelWarnings(module));
  if (allowance.handler) Append(warnings, HandlerWarnings(module));
  std::ranges::stable_sort(warnings, {}, &Warning::line);
  std::vector<std::string> lines;
  for (const Warning& warning : warnings) {
    lines.push_back(file.Path() + ':' + std::to_string(file.FileLineOf(warning.line)) +
                    ": warning: " + file.ForDisplay(warning.text));
  }
  return lines;
}

std::string ChangeSummary(const CodeLines& before, const CodeLines& after,
                          const Alignment& alignment) {
  int kept = 0;
  int changed = 0;
  for (const AlignedStretch& stretch : alignment.Stretches()) {
    kept += stretch.count;
    for (int i = 0; i < stretch.count; ++i) {
      changed += before.Line(stretch.before + i) != after.Line(stretch.after + i);
    }
  }
  return Count(changed, changed == 1 ? "line changed, " : "lines changed, ") + Count(after.Count() - kept, "added, ") +
         Count(before.Count() - kept, "removed");
}

}  // namespace brimwork
