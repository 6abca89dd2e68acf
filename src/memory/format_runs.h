// The formats of a text: runs of bytes that share one, in the order of the text. Neighbouring runs
// differ, and a change costs what lies behind it, so formatting down a text is cheap.
#pragma once

#include <cstddef>
#include <cstdint>
#include <map>
#include <optional>
#include <span>
#include <string>
#include <string_view>
#include <vector>

#include "environment/rich_text_box.h"

namespace brimwork {

/// What a new control starts with.
inline constexpr std::string_view kDefaultFontName = "MS Sans Serif";
inline constexpr std::uint16_t kDefaultHalfPoints = 16;

struct TextFormat {
  std::string fontName{kDefaultFontName};
  int halfPoints = kDefaultHalfPoints;  // twice the size in points, as rich text counts it
  std::optional<Color> color;           // none: the automatic colour

  bool operator==(const TextFormat&) const = default;
};

/// A format in eight bytes, for texts of millions of runs.
struct PackedFormat {
  static constexpr Color kAutomatic = 0xFFFFFFFF;

  Color color = kAutomatic;
  std::uint16_t font = 0;  // an index that FormatRuns gave out
  std::uint16_t halfPoints = kDefaultHalfPoints;

  bool operator==(const PackedFormat&) const = default;
};

struct FormatRun {
  std::uint32_t start = 0;  // its first byte; it ends where the next one starts
  PackedFormat format;
};

struct ByteRange {
  std::size_t start = 0;
  std::size_t end = 0;

  std::size_t Size() const { return end - start; }
};

class FormatRuns {
 public:
  /// One run in the format of a new control.
  FormatRuns();

  /// Never empty; the first run starts at 0. The run of an empty text holds the format that text
  /// put into it takes.
  std::span<const FormatRun> Runs() const { return runs_; }

  /// Index of the run that holds a byte.
  std::size_t IndexAt(std::size_t byte) const {
    const std::size_t count = runs_.size();
    if (runs_[count - 1].start <= byte) return count - 1;
    if (runs_[count - 2].start <= byte) return count - 2;
    return SearchIndex(byte);
  }

  /// Whether one run holds the whole range.
  bool IsUniform(ByteRange range) const {
    const std::size_t next = IndexAt(range.start) + 1;
    return next == runs_.size() || range.end <= runs_[next].start;
  }

  TextFormat Unpacked(const PackedFormat& format) const;

  const std::string& FontName(std::uint16_t font) const { return fonts_[font]; }
  /// The index of a font, a new one when the name is new. Raises error 6 for more than 65536 fonts.
  std::uint16_t FontIndex(std::string_view name);

  /// From a byte on, behind which no run starts, the text has this format.
  void Continue(std::size_t byte, const PackedFormat& format);

  /// Puts newFormat(format) in place of each format of a range of a text of textSize bytes. The
  /// range is empty only when the text is.
  template <class NewFormat>
  void Change(ByteRange range, std::size_t textSize, NewFormat newFormat);

  /// Bytes of a text of textSize bytes were replaced by newSize others, which take the format of
  /// the first one replaced; those of an insertion take the format in front of them.
  void Replace(ByteRange range, std::size_t newSize, std::size_t textSize);

  /// Forgets the runs behind a text's new end.
  void Cut(std::size_t textSize);

  /// No text: one run of this format, with the fonts known here.
  FormatRuns Emptied() const;

  /// True for the same formats at the same bytes.
  bool operator==(const FormatRuns& other) const;

 private:
  std::size_t SearchIndex(std::size_t byte) const;
  std::size_t Split(std::size_t byte);
  std::size_t SplitEnd(std::size_t end, std::size_t textSize);
  void Insert(std::size_t byte, std::size_t size);
  void Erase(ByteRange range, std::size_t newSize, std::size_t textSize);
  /// The way of all formatting down a text.
  void ChangeWithinLast(ByteRange range, const PackedFormat& format) {
    const PackedFormat around = runs_.back().format;
    if (format == around) return;
    runs_.push_back({static_cast<std::uint32_t>(range.start), format});
    runs_.push_back({static_cast<std::uint32_t>(range.end), around});
  }
  void Shift(std::size_t index, std::size_t growth);
  void Merge(std::size_t first, std::size_t last);

  std::vector<FormatRun> runs_{FormatRun{}};
  std::vector<std::string> fonts_;
  std::map<std::string, std::uint16_t, std::less<>> fontIndexes_;
};

template <class NewFormat>
void FormatRuns::Change(ByteRange range, std::size_t textSize, NewFormat newFormat) {
  if (range.start > runs_.back().start && range.start < range.end && range.end < textSize) {
    return ChangeWithinLast(range, newFormat(runs_.back().format));
  }
  const std::size_t first = Split(range.start);
  const std::size_t last = SplitEnd(range.end, textSize);
  for (std::size_t i = first; i < last; ++i) runs_[i].format = newFormat(runs_[i].format);
  Merge(first, last);
}

}  // namespace brimwork
