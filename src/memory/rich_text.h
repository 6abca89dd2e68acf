// The content of a rich text control: a text, its formats and its lines.
#pragma once

#include <algorithm>
#include <functional>
#include <string>
#include <string_view>

#include "environment/text.h"
#include "memory/character_positions.h"
#include "memory/format_runs.h"
#include "memory/line_starts.h"

namespace brimwork {

/// Characters of a text; what lies outside it is left out.
struct TextRange {
  int start = 0;
  int length = 0;
};

/// Text as a control holds it: a lone CR and a lone LF become CR LF, and a byte that is no UTF-8
/// becomes U+FFFD.
std::string WithLineEnds(std::string text);

/// Positions are characters from 0; CR and LF are two of them, which are formatted and replaced
/// together. Lines count from 0. One object is used by one thread at a time.
class RichText {
 public:
  /// More text than this raises error 6, so that every position is an int.
  static constexpr std::size_t kMostBytes = 0x7FFFFFFF;

  /// No text, in the format of a new control.
  RichText() = default;

  /// text is as WithLineEnds gives it; no run starts within a CR LF or behind its end.
  RichText(std::string text, FormatRuns formats);

  const std::string& Text() const { return text_; }
  int Size() const { return positions_.Count(); }

  /// Puts text in place of the whole content, in the format of a new control.
  void SetText(std::string_view text);
  /// The same without a copy, where text needs no change.
  void TakeText(std::string text);

  /// Puts text in place of a range, in the format of the range's first character; the text of an
  /// insertion takes the format in front of it. Returns the position behind the new text.
  int Replace(TextRange range, std::string_view text);

  // A line end takes the format given to its CR. An empty range formats nothing, unless the text
  // is empty, too: what comes into it next takes the format.

  void SetColor(TextRange range, Color color);
  void SetFontName(TextRange range, std::string_view name);
  /// Raises error 5 for less than 1 point or more than 2160.
  void SetFontSize(TextRange range, int points);

  /// Behind the text the format is that of its last character.
  TextFormat FormatAt(int position) const;
  const FormatRuns& Formats() const { return formats_; }

  /// The bytes of a range; a line end that it cuts is taken in whole.
  ByteRange BytesOf(TextRange range) const;

  /// At least 1: a text that ends in a line end has an empty line behind it.
  int LineCount() const { return lines_.Count(text_); }
  /// The line that holds a position; one between CR and LF is in the line that they end.
  int LineAt(int position) const { return lines_.LineAt(text_, ByteOf(position)); }
  /// First position of a line; there must be so many.
  int LineStart(int line) const { return positions_.PositionOf(text_, lines_.Start(text_, line)); }
  /// A line without its line end; there must be so many.
  std::string_view Line(int line) const {
    const std::size_t start = lines_.Start(text_, line);
    const bool isLast = line + 1 == LineCount();
    const std::size_t end = isLast ? text_.size() : lines_.Start(text_, line + 1) - 2;
    return {text_.data() + start, end - start};
  }
  /// In characters.
  int LineLength(int line) const {
    const std::string_view text = Line(line);
    return positions_.IsAscii(text_) ? static_cast<int>(text.size()) : CharacterCount(text);
  }

  /// The same formats over what change makes of each run's text; the result is as WithLineEnds
  /// gives it.
  RichText Changed(const std::function<std::string(std::string_view)>& change) const;

  /// True for the same text in the same formats.
  bool operator==(const RichText& other) const {
    return text_ == other.text_ && formats_ == other.formats_;
  }

 private:
  template <class NewFormat>
  void Format(TextRange range, NewFormat newFormat);

  int ReplaceBytes(ByteRange bytes, const std::string& added);
  /// The bytes of a range as it stands, which may start or end within a line end.
  ByteRange CutBytesOf(TextRange range) const {
    const int start = std::clamp(range.start, 0, Size());
    const int length = std::clamp(range.length, 0, Size() - start);
    const std::size_t first = positions_.ByteOf(text_, start);
    return {first, positions_.ByteOf(text_, start + length)};
  }
  std::size_t ByteOf(int position) const {
    return positions_.ByteOf(text_, std::clamp(position, 0, Size()));
  }
  bool IsWithinLineEnd(std::size_t byte) const { return byte > 0 && text_[byte - 1] == '\r'; }

  std::string text_;
  FormatRuns formats_;
  CharacterPositions positions_;
  mutable LineStarts lines_;
};

}  // namespace brimwork
