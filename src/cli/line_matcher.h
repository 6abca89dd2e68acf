// When one line behind a change stands for a line before it.
#pragma once

#include <string_view>

#include "cli/allowance.h"
#include "environment/basic_lines.h"
#include "environment/text.h"

namespace brimwork {

/// Equal but for blanks and tabs around them.
inline bool EqualTrimmed(std::string_view a, std::string_view b) {
  // Mostly only the indent differs, and each line of a module comes through here.
  a = TrimLeft(a, " \t");
  b = TrimLeft(b, " \t");
  return a == b || TrimRight(a, " \t") == TrimRight(b, " \t");
}

class LineMatcher {
 public:
  explicit LineMatcher(const Allowance& allowance) : allowance_(allowance) {}

  /// True when both lines hold the same tokens, the labels aside that may come and go. afterLine:
  /// the number of the line behind the change; above: what both lines continue.
  bool SameCode(std::string_view before, std::string_view after, int afterLine,
                Continues above) const;

  /// The same for a line that closes a procedure, whose comment may have changed as well.
  bool SameClosingCode(std::string_view before, std::string_view after, int afterLine,
                       Continues above) const;

  /// The same as SameCode for a line in which literals and the comment may be spelled otherwise.
  bool SameCodeRespelled(std::string_view before, std::string_view after, int afterLine,
                         Continues above) const;

  /// True when after is before with the stamp put somewhere into it.
  bool IsStamped(std::string_view before, std::string_view after) const;

 private:
  template <class Same>
  bool AnyLabelling(std::string_view before, std::string_view after, int afterLine, Continues above,
                    Same same) const;

  const Allowance& allowance_;
};

}  // namespace brimwork
