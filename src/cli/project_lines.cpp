#include "cli/project_lines.h"

#include <algorithm>
#include <span>

#include "environment/text.h"
#include "memory/raw_line.h"
#include "memory/source_text.h"

namespace brimwork {
namespace {

constexpr std::string_view kModuleKeys[] = {"Module"};
constexpr std::string_view kComponentKeys[] = {
    "Module", "Class", "Form", "UserControl", "PropertyPage", "UserDocument", "Designer"};
constexpr std::string_view kLeadingKeys[] = {"Type", "Reference", "Object"};

struct KeyLine {
  std::string_view key;
  std::string_view value;
  std::string_view lineEnd;  // "" for a last line that is not ended
  std::size_t behind = 0;    // offset of the next line
};

/// The `key=value` lines above the first [section]: what stands in sections belongs to other tools.
std::vector<KeyLine> KeyLinesOf(std::string_view bytes) {
  std::vector<KeyLine> lines;
  std::string_view rest = bytes;
  if (rest.starts_with(kByteOrderMark)) rest.remove_prefix(kByteOrderMark.size());
  while (!rest.empty()) {
    const RawLine raw = TakeLine(rest);
    const std::string_view text = TrimBlanksAndTabs(raw.text);
    if (text.starts_with('[')) break;
    const auto equals = text.find('=');
    if (equals == std::string_view::npos) continue;
    const std::size_t behind = bytes.size() - rest.size();
    lines.push_back({TrimBlanksAndTabs(text.substr(0, equals)),
                     TrimBlanksAndTabs(text.substr(equals + 1)),
                     bytes.substr(behind - raw.EndSize(), raw.EndSize()), behind});
  }
  return lines;
}

bool HasKeyOf(const KeyLine& line, std::span<const std::string_view> keys) {
  return std::ranges::any_of(keys, [&](std::string_view key) { return EqualNames(key, line.key); });
}

/// The line that a module's line goes behind; null when there is none.
const KeyLine* PlaceForModule(const std::vector<KeyLine>& lines) {
  const std::span<const std::string_view> places[] = {kModuleKeys, kComponentKeys, kLeadingKeys};
  for (const auto keys : places) {
    const auto last = std::ranges::find_if(
        lines.rbegin(), lines.rend(), [&](const KeyLine& line) { return HasKeyOf(line, keys); });
    if (last != lines.rend()) return &*last;
  }
  return nullptr;
}

std::string_view FirstLineEnd(std::string_view bytes) {
  const auto lineFeed = bytes.find('\n');
  const bool isBare =
      lineFeed == 0 || (lineFeed != std::string_view::npos && bytes[lineFeed - 1] != '\r');
  return isBare ? "\n" : "\r\n";
}

std::string_view Unquoted(std::string_view value) {
  const bool isQuoted = value.size() > 1 && value.starts_with('"') && value.ends_with('"');
  return isQuoted ? value.substr(1, value.size() - 2) : value;
}

}  // namespace

bool IsProjectText(std::string_view bytes) {
  return !Contains(bytes, std::string_view("\0", 1)) && PlaceForModule(KeyLinesOf(bytes));
}

std::vector<ListedComponent> ListedComponents(std::string_view bytes) {
  std::vector<ListedComponent> components;
  for (const KeyLine& line : KeyLinesOf(bytes)) {
    if (!HasKeyOf(line, kComponentKeys)) continue;
    const std::string_view value = Unquoted(line.value);
    const auto semicolon = value.find(';');
    const bool isNamed = semicolon != std::string_view::npos;
    const std::string_view file = isNamed ? value.substr(semicolon + 1) : value;
    components.push_back({isNamed ? TrimBlanksAndTabs(value.substr(0, semicolon)) : "",
                          Unquoted(TrimBlanksAndTabs(file))});
  }
  return components;
}

std::string WithModuleLine(std::string_view bytes, std::string_view name, std::string_view file) {
  const std::vector<KeyLine> lines = KeyLinesOf(bytes);
  const KeyLine& above = *PlaceForModule(lines);
  std::string line = std::string("Module=").append(name).append("; ").append(file);
  if (above.lineEnd.empty()) {
    line.insert(0, FirstLineEnd(bytes));
  } else {
    line += above.lineEnd;
  }
  return std::string(bytes).insert(above.behind, line);
}

}  // namespace brimwork
