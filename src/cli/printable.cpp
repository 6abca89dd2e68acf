#include "cli/printable.h"

#include <algorithm>
#include <vector>

#include "environment/text.h"
#include "environment/utf8.h"

namespace brimwork {
namespace {

constexpr std::string_view kLineMark = "  | ";
constexpr std::string_view kNoMark = "    ";

int RoomBehind(std::string_view indent) {
  return kTerminalColumns - 1 - static_cast<int>(indent.size());
}

/// The next line of text, which is taken off it.
std::string_view TakeWords(std::string_view& text, int room) {
  const std::size_t whole = ByteOffset(text, room);
  std::size_t size = whole;
  if (whole < text.size() && text[whole] != ' ') {
    const auto blank = text.substr(0, whole).rfind(' ');
    if (blank != std::string_view::npos) size = blank;
  }
  const std::string_view line = text.substr(0, size);
  text = TrimLeft(text.substr(size));
  return line;
}

}  // namespace

std::string Printable(std::string_view text) {
  std::string printable;
  while (!text.empty()) {
    const std::size_t size = Utf8Size(text);
    const char first = text[0];
    const bool isPlain = size > 0 && static_cast<unsigned char>(first) >= ' ' && first != '\x7F';
    printable += first == '\t' ? " " : isPlain ? text.substr(0, size) : "?";
    text.remove_prefix(std::max<std::size_t>(size, 1));
  }
  return printable;
}

std::string WordWrapped(std::string_view text, std::string_view indent) {
  const std::string printable = Printable(text);
  std::string lines;
  for (std::string_view rest = TrimLeft(printable); !rest.empty();) {
    lines.append(indent).append(TrimRight(TakeWords(rest, RoomBehind(indent)))).append("\n");
  }
  return lines;
}

std::string MarkedLines(std::string_view text) {
  if (text.empty()) return "  (empty)\n";
  std::string lines;
  for (const std::string_view line : SplitLines(text)) {
    const std::string printable = Printable(line);
    std::string_view rest = printable;
    std::string_view mark = kLineMark;
    do {
      const std::size_t size = ByteOffset(rest, RoomBehind(mark));
      lines.append(mark).append(rest.substr(0, size)).append("\n");
      rest.remove_prefix(size);
      mark = kNoMark;
    } while (!rest.empty());
  }
  return lines;
}

}  // namespace brimwork
