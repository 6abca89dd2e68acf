// The tables at the head of a rich text document, by which its text names fonts and colours.
#pragma once

#include <cstdint>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "memory/format_runs.h"

namespace brimwork {

struct RtfFont {
  std::string name;
  std::optional<int> charset;
  std::optional<int> codePage;         // given by number, it counts more than the character set
  std::optional<std::uint16_t> index;  // its index in the formats read so far
};

/// The table is read entry by entry: its number first, what else is known of it, a semicolon.
class RtfFontTable {
 public:
  void StartEntry(int number);
  /// The entry being read; none between entries.
  RtfFont* Entry() { return entry_; }
  /// Part of the entry's name; a semicolon ends the entry.
  void AppendText(std::string_view text);
  void AppendName(std::string_view text);

  /// None when the table has no such font.
  RtfFont* Find(int number);

 private:
  std::map<int, RtfFont> fonts_;
  RtfFont* entry_ = nullptr;
};

/// The table is read entry by entry: the parts of its colour, a semicolon.
class RtfColorTable {
 public:
  enum class Part { kRed = 0, kGreen = 8, kBlue = 16 };

  void SetPart(Part part, int value);
  /// Ends an entry at each semicolon of text; one without parts is the automatic colour.
  void AppendText(std::string_view text);

  /// As PackedFormat holds it; the automatic colour when the table has no such entry.
  Color At(int index) const;

 private:
  std::vector<Color> colors_;
  std::optional<Color> entry_;
};

}  // namespace brimwork
