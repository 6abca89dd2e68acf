// Columns between the add-in, which counts characters, and the environment, which counts the units
// of UTF-16: a character beyond U+FFFF is two of them. Both count from 1.
#pragma once

#include <string_view>

namespace brimwork::windows {

/// The unit column of a character column; behind the line's end it is that behind the last unit.
int UnitColumn(std::string_view line, int characterColumn);

/// The character column of a unit column. One within a character is drawn back to its start, one
/// behind the line's end to the column behind the last character.
int CharacterColumn(std::string_view line, int unitColumn);

}  // namespace brimwork::windows
