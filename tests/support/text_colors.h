// The colours of a rich text, one letter for each character.
#pragma once

#include <optional>
#include <string>

#include "memory/rich_text.h"

namespace brimwork {

inline char ColorLetter(std::optional<Color> color) {
  if (color == Rgb(0, 0, 0)) return '.';
  if (color == Rgb(0, 0, 128)) return 'n';
  if (color == Rgb(0, 128, 0)) return 'g';
  return '?';
}

/// '.' for black, 'n' for navy, 'g' for green and '?' for anything else.
inline std::string ColorsOf(const RichText& content) {
  std::string colors;
  for (int i = 0; i < content.Size(); ++i) colors += ColorLetter(content.FormatAt(i).color);
  return colors;
}

}  // namespace brimwork
