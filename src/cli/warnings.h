// What a command did to the letter and the user may not expect: jumps that lose their line number,
// labels on conditional compilation, handlers that do not fit.
#pragma once

#include <functional>
#include <string>
#include <vector>

#include "cli/alignment.h"
#include "cli/code_lines.h"

namespace brimwork {

struct Warning {
  int line = 0;  // of the module before the command
  std::string text;

  bool operator==(const Warning&) const = default;
};

/// A procedure of the module behind the command.
struct ProcedureSpan {
  std::string name;
  std::string word;   // Sub, Function or Property, as its declaration writes it
  int startLine = 0;  // first line, attached comment and blank lines included
  int bodyLine = 0;   // line of the declaration
  int endLine = 0;    // last line
};

/// One module before and behind a command.
struct ChangedModule {
  const CodeLines& before;
  const CodeLines& after;
  const Alignment& alignment;
  const std::vector<ProcedureSpan>& procedures;  // from the top down
  /// The number that the user knows a line of before by (hidden lines counted); empty: its own.
  std::function<int(int)> shownLine;
};

/// For a command that adds or removes line numbers: # lines and jump targets whose label came or
/// went. In the order of the lines.
std::vector<Warning> LabelWarnings(const ChangedModule& module);

/// For a command that inserts error handlers: a second ErrorTrap in one procedure and an Exit that
/// does not fit its procedure. In the order of the lines.
std::vector<Warning> HandlerWarnings(const ChangedModule& module);

}  // namespace brimwork
