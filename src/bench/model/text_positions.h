// Places in a module and in the editor that shows it. The module counts lines and characters from
// 1, the editor UTF-16 units from 0 over its whole text, in which every line but the last ends in
// CR LF; a character beyond U+FFFF is one of the module's and two units.
#pragma once

#include <cstddef>
#include <string_view>

#include "environment/code_module.h"
#include "memory/module_text.h"

namespace brimwork::bench {

struct LineColumn {
  int line = 1;
  int column = 1;

  bool operator==(const LineColumn&) const = default;
};

/// Units of the editor's text from start on, up to end.
struct UnitRange {
  std::size_t start = 0;
  std::size_t end = 0;

  bool operator==(const UnitRange&) const = default;
};

/// Number of UTF-16 units that a UTF-8 text has.
std::size_t UnitCount(std::string_view text);

// Within one line. What lies outside the line is drawn back to its ends, the middle of a pair of
// units to the start of its character.

std::size_t UnitsBefore(std::string_view line, int column);
int ColumnBehind(std::string_view line, std::size_t units);

// In the whole text; what lies outside is drawn back into it, a place between CR and LF to the end
// of the line.

std::size_t UnitAt(const ModuleText& text, LineColumn place);
LineColumn PlaceAt(const ModuleText& text, std::size_t unit);

UnitRange UnitsOf(const ModuleText& text, const Selection& selection);
Selection SelectionOf(const ModuleText& text, UnitRange units);

}  // namespace brimwork::bench
