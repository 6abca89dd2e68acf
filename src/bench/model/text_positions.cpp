#include "bench/model/text_positions.h"

#include <algorithm>

#include "environment/text.h"
#include "environment/utf8.h"

namespace brimwork::bench {
namespace {

constexpr std::size_t kLineEndUnits = 2;

bool StartsPair(char c) { return static_cast<unsigned char>(c) >= 0xF0; }

std::size_t UnitsFrom(const ModuleText& text, int firstLine, int behindLine) {
  std::size_t units = 0;
  for (int line = firstLine; line < behindLine; ++line) {
    units += UnitCount(text.Line(line)) + kLineEndUnits;
  }
  return units;
}

}  // namespace

std::size_t UnitCount(std::string_view text) {
  if (IsAscii(text)) return text.size();
  const auto pairs = std::ranges::count_if(text, StartsPair);
  return static_cast<std::size_t>(CharacterCount(text) + pairs);
}

std::size_t UnitsBefore(std::string_view line, int column) {
  return UnitCount(line.substr(0, ByteOffset(line, column - 1)));
}

int ColumnBehind(std::string_view line, std::size_t units) {
  if (IsAscii(line)) return static_cast<int>(std::min(units, line.size())) + 1;
  int column = 1;
  std::size_t at = 0;
  while (at < line.size()) {
    const std::size_t size = ByteOffset(line.substr(at), 1);
    const std::size_t itsUnits = StartsPair(line[at]) ? 2 : 1;
    if (units < itsUnits) break;
    units -= itsUnits;
    at += size;
    ++column;
  }
  return column;
}

std::size_t UnitAt(const ModuleText& text, LineColumn place) {
  if (text.Count() == 0 || place.line < 1) return 0;
  const int line = std::min(place.line, text.Count());
  const std::string_view last = text.Line(line);
  const std::size_t before = UnitsFrom(text, 1, line);
  return before + (place.line > line ? UnitCount(last) : UnitsBefore(last, place.column));
}

LineColumn PlaceAt(const ModuleText& text, std::size_t unit) {
  for (int line = 1; line <= text.Count(); ++line) {
    const std::size_t units = UnitCount(text.Line(line));
    if (unit < units + kLineEndUnits || line == text.Count()) {
      return {line, ColumnBehind(text.Line(line), unit)};
    }
    unit -= units + kLineEndUnits;
  }
  return {};
}

UnitRange UnitsOf(const ModuleText& text, const Selection& selection) {
  return {UnitAt(text, {selection.startLine, selection.startColumn}),
          UnitAt(text, {selection.endLine, selection.endColumn})};
}

Selection SelectionOf(const ModuleText& text, UnitRange units) {
  const LineColumn start = PlaceAt(text, units.start);
  const LineColumn end = PlaceAt(text, units.end);
  return {start.line, start.column, end.line, end.column};
}

}  // namespace brimwork::bench
