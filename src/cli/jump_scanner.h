// Finds the jumps that aim at line numbers: GoTo, GoSub, Resume, On ... GoTo lists, and a number
// behind Then or Else.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "environment/basic_lines.h"

namespace brimwork {

struct NumericJump {
  std::string_view target;  // digits without leading zeros
  std::string_view word;    // GoTo, GoSub, Resume, Then or Else
  int line = 0;
};

class JumpScanner {
 public:
  /// Adds the jumps of one line; the lines of a procedure come in order. text must outlive what is
  /// read from jumps.
  void Scan(std::string_view text, int line, std::vector<NumericJump>& jumps);

  /// What the next line continues.
  Continues Below() const { return above_; }

 private:
  void ScanTokens(std::string_view text, int line, std::vector<NumericJump>& jumps);
  void EndStatement();
  bool TakeWord(std::string_view name);

  Continues above_ = Continues::kNothing;
  // Within a statement, which may go on in the next line:
  std::string_view word_;      // the jump word whose target may come next
  std::string_view previous_;  // the token in front
  bool isList_ = false;        // more targets may follow behind commas
  bool isErrorTrap_ = false;   // behind On Error, where 0 is no line
};

}  // namespace brimwork
