// Lines as they stand on disk: text and line end apart, a lone CR being text.
#pragma once

#include <string_view>

#include "environment/byte_words.h"
#include "memory/module_text.h"

namespace brimwork {

struct RawLine {
  std::string_view text;
  LineEnd end = LineEnd::kFileStyle;  // kFileStyle: the last line of a text that does not end it

  std::size_t EndSize() const { return end == LineEnd::kCrLf ? 2 : end == LineEnd::kLf ? 1 : 0; }
};

/// Takes the first line off rest, which is not empty.
inline RawLine TakeLine(std::string_view& rest) {
  const auto lineFeed = rest.find('\n');
  if (lineFeed == std::string_view::npos) {
    const RawLine last{rest, LineEnd::kFileStyle};
    rest = {};
    return last;
  }
  RawLine line{rest.substr(0, lineFeed), LineEnd::kLf};
  rest.remove_prefix(lineFeed + 1);
  if (line.text.ends_with('\r')) {
    line.text.remove_suffix(1);
    line.end = LineEnd::kCrLf;
  }
  return line;
}

/// How the first line ends; CR LF where none does.
inline std::string_view FirstLineEnd(std::string_view text) {
  const auto lineFeed = text.find('\n');
  const bool isBare =
      lineFeed != std::string_view::npos && !text.substr(0, lineFeed).ends_with('\r');
  return isBare ? "\n" : "\r\n";
}

/// Number of lines that TakeLine finds.
inline std::size_t CountLines(std::string_view text) {
  const std::size_t lineFeeds = CountOf(text, '\n');
  const bool lastIsUnended = !text.empty() && text.back() != '\n';
  return lineFeeds + (lastIsUnended ? 1 : 0);
}

}  // namespace brimwork
