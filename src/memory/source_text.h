// The text of a source or project file: its bytes decoded, or an error that says where and why not.
#pragma once

#include <string>
#include <string_view>

#include "memory/text_codec.h"

namespace brimwork {

/// Opens a text in several encodings; kept in the decoded text.
inline constexpr std::string_view kByteOrderMark = "\xEF\xBB\xBF";

struct SourceText {
  TextCodec codec;  // the one to encode with
  std::string text;
};

/// Decodes a whole file. A UTF-8 byte-order mark decides over encoding; a UTF-16 or UTF-32 one
/// decides over the byte order. path is for messages only. Throws SourceError for bytes that are no
/// text and for binary files, std::invalid_argument for an unknown encoding.
SourceText DecodeSource(std::string bytes, const std::string& path, const std::string& encoding);

/// Line and column, both from 1, of what stands behind the text; a byte-order mark takes no column.
struct TextPosition {
  int line = 1;
  int column = 1;
};
TextPosition PositionBehind(std::string_view text);

}  // namespace brimwork
