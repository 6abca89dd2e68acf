// The text of a rich edit control, and where its characters are. The control counts units of UTF-16
// and one for a line end, which is a CR; the add-in counts characters and two for a line end.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

namespace brimwork::windows {

struct UnitRange {
  std::size_t start = 0;
  std::size_t end = 0;

  std::size_t Size() const { return end - start; }
  bool operator==(const UnitRange&) const = default;
};

/// Positions are characters from 0, those outside the text are drawn back into it. Lines count from
/// 0; questions about neighbouring lines cost the same in a text of any size.
class RichEditText {
 public:
  /// units: with a CR for every line end.
  explicit RichEditText(std::wstring units = L"");

  const std::wstring& Units() const { return units_; }
  int Size() const { return PositionOf(units_.size()); }

  // A position within a line end is at, or behind, all of it.

  std::size_t UnitAt(int position) const;
  std::size_t UnitBehind(int position) const;

  int PositionOf(std::size_t unit) const;

  /// At least 1: a text that ends in a line end has an empty line behind it.
  int LineCount() const { return static_cast<int>(lines_.size()); }
  int LineAt(int position) const;
  /// First position of a line; there must be so many, as for the others.
  int LineStart(int line) const { return StartOf(line).position; }
  std::wstring_view Line(int line) const;
  int LineLength(int line) const;

  void Replace(UnitRange range, std::wstring_view units);

 private:
  /// Where a line starts.
  struct Start {
    std::size_t unit = 0;
    int position = 0;
  };

  const Start& StartOf(int line) const { return lines_[static_cast<std::size_t>(line)]; }
  template <class Before>
  std::size_t FindLine(Before isBehind) const;
  void FindLines(std::size_t first);

  std::wstring units_;
  std::vector<Start> lines_;
  mutable std::size_t last_ = 0;  // the line asked for last; the next question is mostly near
};

/// Text of the add-in in the control's units.
std::wstring ControlUnits(std::string_view text);

/// The other way.
std::string TextOfUnits(std::wstring_view units);

}  // namespace brimwork::windows
