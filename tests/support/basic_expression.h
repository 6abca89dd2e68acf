// Evaluates the expressions of one line of Visual Basic code from left to right.
#pragma once

#include <string_view>
#include <utility>
#include <vector>

#include "support/basic_execution.h"

namespace brimwork {

class BasicExpression {
 public:
  BasicExpression(BasicExecution& execution, const BasicLine& line, std::size_t at)
      : execution_(execution), line_(line), at_(at) {}

  BasicValue Evaluate();

  /// The arguments of a call that stands as a statement, or of one in brackets.
  struct CallArguments {
    std::vector<BasicValue> values;
    std::vector<bool> byVal;
  };
  CallArguments EvaluateArguments();

  /// Where the rest of the line starts.
  std::size_t At() const { return at_; }
  bool AtEnd() const { return at_ == line_.size(); }
  void Expect(std::string_view word);

 private:
  BasicValue Conjunction();
  BasicValue Comparison();
  BasicValue Sum();
  BasicValue Product();
  BasicValue Factor();
  BasicValue Named();
  BasicValue MembersOf(BasicValue value);
  BasicValue CallNamed(std::string_view name);
  CallArguments BracketedArguments();

  bool IsNext(std::string_view word) const;
  bool TakeIf(std::string_view word);
  const BasicToken& Take();

  BasicExecution& execution_;
  const BasicLine& line_;
  std::size_t at_;
};

}  // namespace brimwork
