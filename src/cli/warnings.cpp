#include "cli/warnings.h"

#include <algorithm>
#include <string_view>

#include "cli/line_label.h"
#include "environment/basic_lines.h"
#include "environment/text.h"

namespace brimwork {
namespace {

/// What a procedure's lines hold of error handlers.
struct HandlerLines {
  int traps = 0;
  bool hasNewTrap = false;
  std::string wrongExit;  // the word of an inserted Exit that does not fit
};

bool SameWord(std::string_view a, std::string_view b) {
  return a.size() == b.size() && std::equal(a.begin(), a.end(), b.begin(), [](char x, char y) {
           return ToUpperAscii(x) == ToUpperAscii(y);
         });
}

bool IsErrorTrap(std::string_view statement) {
  constexpr std::string_view kName = "ERRORTRAP";
  return StartsWithIgnoringCase(statement, kName) &&
         TrimBlanksAndTabs(statement.substr(kName.size())).starts_with(':');
}

/// The word behind Exit; "" when the statement is no Exit from a procedure.
std::string_view ExitWord(std::string_view statement) {
  constexpr std::string_view kExit = "Exit ";
  if (!statement.starts_with(kExit)) return {};
  const std::string_view word = statement.substr(kExit.size());
  return word == "Sub" || word == "Function" || word == "Property" ? word : std::string_view();
}

HandlerLines ReadHandlerLines(const ChangedModule& module, const ProcedureSpan& procedure) {
  HandlerLines found;
  Continues above = Continues::kNothing;
  for (int line = procedure.bodyLine; line <= procedure.endLine; ++line) {
    const std::string_view text = TrimBlanksAndTabs(module.after.Line(line));
    if (above == Continues::kNothing) {
      const auto split = SplitNumericLabel(text);
      const std::string_view statement = split ? split->rest : text;
      const std::string_view exitWord = ExitWord(statement);
      const bool isTrap = IsErrorTrap(statement);
      const bool isNew = (isTrap || !exitWord.empty()) && module.alignment.BeforeLine(line) == 0;
      if (isTrap) ++found.traps;
      if (isTrap && isNew) found.hasNewTrap = true;
      if (isNew && !exitWord.empty() && !SameWord(exitWord, procedure.word)) {
        found.wrongExit = exitWord;
      }
    }
    above = ContinuedBelow(text, above);
  }
  return found;
}

}  // namespace

std::vector<Warning> HandlerWarnings(const ChangedModule& module) {
  std::vector<Warning> warnings;
  for (const ProcedureSpan& procedure : module.procedures) {
    const HandlerLines found = ReadHandlerLines(module, procedure);
    const int line = std::max(1, module.alignment.BeforeLine(procedure.bodyLine));
    const std::string whose = procedure.word + " " + procedure.name;
    if (found.traps > 1 && found.hasNewTrap) {
      warnings.push_back({line, whose + " had an ErrorTrap label already and has " +
                                    std::to_string(found.traps) +
                                    " now, which does not compile: remove one of the handlers"});
    }
    if (!found.wrongExit.empty()) {
      warnings.push_back({line, "Exit " + found.wrongExit + " was put into " + whose +
                                    ", where it does not compile: change it to Exit " +
                                    procedure.word});
    }
  }
  return warnings;
}

}  // namespace brimwork
