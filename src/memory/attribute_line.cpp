#include "memory/attribute_line.h"

#include "environment/text.h"

namespace brimwork {
namespace {

constexpr std::string_view kBlanks = " \t";

/// What stands behind the word Attribute and its blanks; "" when the line has no such word.
std::string_view BehindAttribute(std::string_view line) {
  constexpr std::string_view kWord = "ATTRIBUTE";
  const std::string_view text = TrimLeft(line, kBlanks);
  if (!StartsWithIgnoringCase(text, kWord)) return {};
  const std::string_view rest = text.substr(kWord.size());
  const std::string_view name = TrimLeft(rest, kBlanks);
  return name.size() < rest.size() ? name : std::string_view();
}

bool NamesAnAttribute(std::string_view text) {
  return StartsWithIgnoringCase(text, "VB_") && Contains(text, "=");
}

}  // namespace

bool IsModuleAttribute(std::string_view line) { return NamesAnAttribute(BehindAttribute(line)); }

bool IsMemberAttribute(std::string_view line) {
  const std::string_view text = BehindAttribute(line);
  const auto nameEnd = text.find_first_of(". \t=\"'");
  if (nameEnd == 0 || nameEnd == std::string_view::npos || text[nameEnd] != '.') return false;
  return NamesAnAttribute(text.substr(nameEnd + 1));
}

std::string ModuleNameIn(std::string_view line) {
  constexpr std::string_view kName = "VB_NAME";
  const std::string_view text = BehindAttribute(line);
  if (!StartsWithIgnoringCase(text, kName)) return {};
  std::string_view value = TrimLeft(text.substr(kName.size()), kBlanks);
  if (!value.starts_with('=')) return {};
  value = TrimLeft(value.substr(1), kBlanks);
  if (!value.starts_with('"')) return {};
  return std::string(value.substr(1, value.find('"', 1) - 1));
}

}  // namespace brimwork
