#include "memory/project_lines.h"

#include <algorithm>
#include <span>

#include "environment/text.h"
#include "memory/raw_line.h"
#include "memory/source_text.h"

namespace brimwork {
namespace {

constexpr std::string_view kComponentKeys[] = {
    "Module", "Class", "Form", "UserControl", "PropertyPage", "UserDocument", "Designer"};
constexpr std::string_view kLeadingKeys[] = {"Type", "Reference", "Object"};

bool HasKeyOf(const ProjectLine& line, std::span<const std::string_view> keys) {
  return std::ranges::any_of(keys, [&](std::string_view key) { return EqualNames(key, line.key); });
}

/// The line that a component's line goes behind; null when there is none.
const ProjectLine* PlaceFor(std::string_view key, const std::vector<ProjectLine>& lines) {
  const std::string_view ownKeys[] = {key};
  const std::span<const std::string_view> places[] = {ownKeys, kComponentKeys, kLeadingKeys};
  for (const auto keys : places) {
    const auto last =
        std::ranges::find_if(lines.rbegin(), lines.rend(),
                             [&](const ProjectLine& line) { return HasKeyOf(line, keys); });
    if (last != lines.rend()) return &*last;
  }
  return nullptr;
}

std::size_t MarkSize(std::string_view bytes) {
  return bytes.starts_with(kByteOrderMark) ? kByteOrderMark.size() : 0;
}

std::string WithLineBehind(std::string_view bytes, const ProjectLine& above, std::string line) {
  if (above.lineEnd.empty()) {
    line.insert(0, FirstLineEnd(bytes));
  } else {
    line += above.lineEnd;
  }
  return std::string(bytes).insert(above.behind, line);
}

}  // namespace

std::vector<ProjectLine> ProjectLinesOf(std::string_view text) {
  std::vector<ProjectLine> lines;
  std::string_view rest = text.substr(MarkSize(text));
  for (int number = 1; !rest.empty(); ++number) {
    const RawLine raw = TakeLine(rest);
    const std::string_view line = TrimBlanksAndTabs(raw.text);
    if (line.starts_with('[')) break;
    const auto equals = line.find('=');
    if (equals == std::string_view::npos) continue;
    const std::size_t behind = text.size() - rest.size();
    lines.push_back({TrimBlanksAndTabs(line.substr(0, equals)),
                     TrimBlanksAndTabs(line.substr(equals + 1)),
                     text.substr(behind - raw.EndSize(), raw.EndSize()), behind, number});
  }
  return lines;
}

bool NamesComponent(const ProjectLine& line) { return HasKeyOf(line, kComponentKeys); }

ListedComponent ComponentIn(std::string_view value) {
  value = Unquoted(value);
  const auto semicolon = value.find(';');
  if (semicolon == std::string_view::npos) return {"", Unquoted(TrimBlanksAndTabs(value))};
  return {TrimBlanksAndTabs(value.substr(0, semicolon)),
          Unquoted(TrimBlanksAndTabs(value.substr(semicolon + 1)))};
}

std::vector<ListedComponent> ListedComponents(std::string_view bytes) {
  std::vector<ListedComponent> components;
  for (const ProjectLine& line : ProjectLinesOf(bytes)) {
    if (NamesComponent(line)) components.push_back(ComponentIn(line.value));
  }
  return components;
}

bool IsProjectText(std::string_view bytes) {
  return !Contains(bytes, std::string_view("\0", 1)) && PlaceFor("Module", ProjectLinesOf(bytes));
}

std::string WithComponentLine(std::string_view bytes, std::string_view key, std::string_view name,
                              std::string_view file) {
  const std::vector<ProjectLine> lines = ProjectLinesOf(bytes);
  return WithLineBehind(bytes, *PlaceFor(key, lines),
                        std::string(key).append("=").append(name).append("; ").append(file));
}

std::string WithModuleLine(std::string_view bytes, std::string_view name, std::string_view file) {
  return WithComponentLine(bytes, "Module", name, file);
}

std::string WithProjectValue(std::string_view bytes, std::string_view key, std::string_view value) {
  const std::vector<ProjectLine> lines = ProjectLinesOf(bytes);
  const auto last =
      std::ranges::find_if(lines.rbegin(), lines.rend(),
                           [&](const ProjectLine& line) { return EqualNames(line.key, key); });
  const std::string quoted = std::string("\"").append(value).append("\"");
  if (last == lines.rend()) {
    return WithLineBehind(bytes, *PlaceFor(key, lines), std::string(key) + '=' + quoted);
  }
  const bool isQuoted = Unquoted(last->value) != last->value;
  return WithValueOf(bytes, *last, isQuoted ? quoted : value);
}

std::string WithoutLine(std::string_view bytes, const ProjectLine& line) {
  const auto key = static_cast<std::size_t>(line.key.data() - bytes.data());
  const auto lineFeed = bytes.substr(0, key).rfind('\n');
  const std::size_t start = lineFeed == std::string_view::npos ? MarkSize(bytes) : lineFeed + 1;
  return std::string(bytes).erase(start, line.behind - start);
}

std::string WithValueOf(std::string_view bytes, const ProjectLine& line, std::string_view value) {
  const auto at = static_cast<std::size_t>(line.value.data() - bytes.data());
  return std::string(bytes).replace(at, line.value.size(), value);
}

std::string_view Unquoted(std::string_view value) {
  const bool isQuoted = value.size() > 1 && value.starts_with('"') && value.ends_with('"');
  return isQuoted ? value.substr(1, value.size() - 2) : value;
}

}  // namespace brimwork
