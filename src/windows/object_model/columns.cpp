#include "windows/object_model/columns.h"

#include <algorithm>

#include "environment/text.h"

namespace brimwork::windows {
namespace {

constexpr bool ContinuesACharacter(char byte) {
  return (static_cast<unsigned char>(byte) & 0xC0) == 0x80;
}

/// What a byte adds to the units of a text.
constexpr int UnitsAt(char byte) {
  if (ContinuesACharacter(byte)) return 0;
  return static_cast<unsigned char>(byte) >= 0xF0 ? 2 : 1;
}

/// Offset of the character that holds a unit, counted from 0.
std::size_t OffsetOfUnit(std::string_view line, int unit) {
  std::size_t offset = 0;
  for (std::size_t i = 0; i < line.size(); ++i) {
    if (ContinuesACharacter(line[i])) continue;
    offset = i;
    unit -= UnitsAt(line[i]);
    if (unit < 0) return offset;
  }
  return line.size();
}

}  // namespace

int UnitColumn(std::string_view line, int characterColumn) {
  int units = 0;
  for (const char byte : line.substr(0, ByteOffset(line, std::max(characterColumn, 1) - 1))) {
    units += UnitsAt(byte);
  }
  return units + 1;
}

int CharacterColumn(std::string_view line, int unitColumn) {
  const std::size_t offset = OffsetOfUnit(line, std::max(unitColumn, 1) - 1);
  return CharacterCount(line.substr(0, offset)) + 1;
}

}  // namespace brimwork::windows
