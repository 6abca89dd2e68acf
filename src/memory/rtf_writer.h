// Writes formatted text as rich text (RTF), in ASCII alone.
#pragma once

#include <string>

#include "memory/rich_text.h"

namespace brimwork {

/// A whole document of a part of content; a line end that the range cuts is taken in whole.
/// ReadRtf gives back the same text in the same formats.
std::string WriteRtf(const RichText& content, TextRange range);

inline std::string WriteRtf(const RichText& content) {
  return WriteRtf(content, {0, content.Size()});
}

}  // namespace brimwork
