#include "support/kept_lines.h"

#include <algorithm>
#include <vector>

#include "environment/basic_lines.h"
#include "environment/text.h"

namespace brimwork {
namespace {

std::string_view WithoutComment(std::string_view line) {
  return TrimBlanksAndTabs(line.substr(0, line.find('\'')));
}

}  // namespace

std::string_view WithoutNumber(std::string_view line) {
  const std::string_view code = TrimBlanksAndTabs(line);
  const auto colon = code.find_first_not_of("0123456789");
  if (colon == 0 || colon == std::string_view::npos || code[colon] != ':') return code;
  return TrimBlanksAndTabs(code.substr(colon + 1));
}

bool IsSameLine(std::string_view before, std::string_view after) {
  const std::string_view codeBefore = WithoutNumber(before);
  const std::string_view codeAfter = WithoutNumber(after);
  if (codeBefore == codeAfter) return true;
  return ClosesProcedure(codeBefore, Continues::kNothing) &&
         WithoutComment(codeBefore) == WithoutComment(codeAfter);
}

std::optional<std::string> FirstLostLine(std::string_view before, std::string_view after) {
  const std::vector<std::string_view> linesAfter = SplitLines(after);
  auto next = linesAfter.begin();
  for (const std::string_view line : SplitLines(before)) {
    if (WithoutNumber(line).empty()) continue;
    const auto kept = std::find_if(next, linesAfter.end(), [&](std::string_view candidate) {
      return IsSameLine(line, candidate);
    });
    if (kept == linesAfter.end()) return std::string(line);
    next = kept + 1;
  }
  return std::nullopt;
}

int CountWrittenLines(std::string_view text) {
  const std::vector<std::string_view> lines = SplitLines(text);
  return static_cast<int>(std::count_if(lines.begin(), lines.end(), [](std::string_view line) {
    return !WithoutNumber(line).empty();
  }));
}

}  // namespace brimwork
