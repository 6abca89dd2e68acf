#include "cli/line_label.h"

#include "environment/text.h"

namespace brimwork {
namespace {

constexpr std::string_view kDigits = "0123456789";
constexpr std::size_t kLabelWidth = 7;

}  // namespace

std::optional<LabelledLine> SplitNumericLabel(std::string_view line) {
  const std::string_view text = TrimBlanksAndTabs(line);
  if (text.empty() || !IsOneOf(text[0], "0123456789+-.&")) return std::nullopt;
  const auto colon = text.find(':');
  if (colon == std::string_view::npos) return std::nullopt;
  const std::string_view head = text.substr(0, colon);
  const bool isPlainNumber = head.find_first_not_of(kDigits) == std::string_view::npos;
  if (!isPlainNumber && (colon >= kLabelWidth || !IsNumeric(head))) return std::nullopt;
  return LabelledLine{head, TrimBlanksAndTabs(text.substr(colon + 1))};
}

std::string_view LineNumberOf(std::string_view line) {
  const std::string_view text = TrimBlanksAndTabs(line);
  if (text.empty() || text[0] < '0' || text[0] > '9') return {};
  const auto end = text.find_first_not_of(kDigits);
  if (end != std::string_view::npos && !IsOneOf(text[end], ": \t")) return {};
  return WithoutLeadingZeros(text.substr(0, end));
}

std::string_view WithoutLeadingZeros(std::string_view digits) {
  const auto first = digits.find_first_not_of('0');
  return first == std::string_view::npos ? digits.substr(0, 1) : digits.substr(first);
}

}  // namespace brimwork
