// Recognises the lines that a command puts into a module as a whole: separators and the parts of an
// error handler.
#pragma once

#include <string>
#include <string_view>

#include "cli/allowance.h"
#include "cli/code_lines.h"
#include "cli/line_matcher.h"

namespace brimwork {

class InsertedLines {
 public:
  InsertedLines(const CodeLines& after, const Allowance& allowance)
      : after_(after), allowance_(allowance), matcher_(allowance) {}

  // Each gives the number of lines of what starts at line, 0 when it does not start there.

  /// A separator; one that stands beside its equal is a copy, which no command makes.
  int SeparatorAt(int line) const;
  /// The statement at the top of a handled body.
  int JumpAt(int line) const;
  /// The block in front of a closing line, from the empty line above its Exit on.
  int HandlerBlockAt(int line) const;

 private:
  bool Holds(int line, std::string_view expected) const;
  bool HoldsExit(int line) const;
  bool HoldsTemplate(int firstLine) const;
  std::string ProcedurePathIn(int firstLine) const;
  bool IsCopy(int line) const;

  const CodeLines& after_;
  const Allowance& allowance_;
  LineMatcher matcher_;
};

}  // namespace brimwork
