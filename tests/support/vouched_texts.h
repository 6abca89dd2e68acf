// Checks of a command's result against what the command was given, as short as a test wants them.
#pragma once

#include <optional>
#include <string>
#include <utility>
#include <vector>

#include "cli/vouch.h"

namespace brimwork {

using Lines = std::vector<std::string>;

inline const std::string kSeparator = "'" + std::string(89, '=');

inline std::optional<Difference> Check(const Lines& before, const Lines& after,
                                       const Allowance& allowance = {}) {
  return Vouch(VectorLines(before), VectorLines(after), allowance);
}

/// "3/4" for a difference at those lines, "" for none.
inline std::string Where(const Lines& before, const Lines& after, const Allowance& allowance = {}) {
  const auto difference = Check(before, after, allowance);
  if (!difference) return "";
  return std::to_string(difference->beforeLine) + "/" + std::to_string(difference->afterLine);
}

inline Allowance Numbering() {
  Allowance allowance;
  allowance.labelsMayGo = allowance.labelsMayCome = true;
  return allowance;
}

inline Allowance Unnumbering() {
  Allowance allowance;
  allowance.labelsMayGo = true;
  return allowance;
}

inline Allowance Commenting() {
  Allowance allowance;
  allowance.separatorLines = {kSeparator};
  allowance.blankLinesMayGo = allowance.closingCommentsMayChange = true;
  return allowance;
}

inline Allowance Handling(Lines templateLines = {"TEST HANDLE"}) {
  Allowance allowance;
  allowance.handler = HandlerAllowance{std::move(templateLines), "PLACE", "P.M."};
  return allowance;
}

inline Allowance Heading(Lines header) {
  Allowance allowance;
  allowance.headerLines = std::move(header);
  return allowance;
}

inline const Lines kPlain = {"Sub A()", "x = 1", "End Sub"};
inline const Lines kHandled = {
    "Sub A()", "On Error GoTo ErrorTrap", "x = 1", "", "Exit Sub", "", "ErrorTrap:", "TEST HANDLE",
    "End Sub"};

}  // namespace brimwork
