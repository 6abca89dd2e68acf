// Holds what a command wrote against what it was given: the tokens must be the same but for what
// the command was asked to add and remove, so that a fault of a command never reaches a file.
#pragma once

#include <optional>
#include <string>

#include "cli/alignment.h"
#include "cli/allowance.h"
#include "cli/code_lines.h"

namespace brimwork {

/// The first place where the texts differ otherwise. A line of Count() + 1 is the end of the text,
/// its text "".
struct Difference {
  int beforeLine = 0;
  int afterLine = 0;
  std::string beforeText;
  std::string afterText;
};

/// Nothing when after is before with nothing but the allowance added and removed. alignment, when
/// wanted, gets the lines that stand for each other, up to the difference when there is one.
std::optional<Difference> Vouch(const CodeLines& before, const CodeLines& after,
                                const Allowance& allowance, Alignment* alignment = nullptr);

}  // namespace brimwork
