// Numeric labels at the start of a line: what a numbering command writes and takes, and what a jump
// can aim at.
#pragma once

#include <optional>
#include <string_view>

namespace brimwork {

struct LabelledLine {
  std::string_view label;  // what stands in front of the colon
  std::string_view rest;   // behind the colon, trimmed of blanks and tabs
};

/// The line as a numbering command takes it apart: a number of any kind and a colon, the colon
/// within the first 7 characters or directly behind plain digits. line continues nothing.
std::optional<LabelledLine> SplitNumericLabel(std::string_view line);

/// The line number that a jump can aim at ("100" in "100: x", "100 x" and "0100"), without leading
/// zeros; "" when the line has none. line continues nothing.
std::string_view LineNumberOf(std::string_view line);

/// Digits without leading zeros, so that equal numbers are equal texts.
std::string_view WithoutLeadingZeros(std::string_view digits);

}  // namespace brimwork
