#include "windows/desktop/rich_edit_text.h"

#include <windows.h>

#include <algorithm>
#include <utility>

#include "win32/wide_text.h"

namespace brimwork::windows {
namespace {

constexpr int kLineEndSize = 2;  // CR LF

/// A pair is one character.
int CharactersIn(std::wstring_view units) {
  const auto seconds = std::ranges::count_if(units, [](wchar_t c) { return IS_LOW_SURROGATE(c); });
  return static_cast<int>(units.size()) - static_cast<int>(seconds);
}

std::size_t UnitsOf(std::wstring_view line, int characters) {
  std::size_t unit = 0;
  for (; characters > 0; --characters) unit += IS_HIGH_SURROGATE(line[unit]) ? 2 : 1;
  return unit;
}

}  // namespace

RichEditText::RichEditText(std::wstring units) : units_(std::move(units)), lines_{{}} {
  FindLines(0);
}

std::size_t RichEditText::UnitAt(int position) const {
  if (position <= 0) return 0;
  const int line = LineAt(position);
  const std::wstring_view units = Line(line);
  const int characters = std::min(position - LineStart(line), LineLength(line));
  const bool isPlain = LineLength(line) == static_cast<int>(units.size());
  return StartOf(line).unit +
         (isPlain ? static_cast<std::size_t>(characters) : UnitsOf(units, characters));
}

std::size_t RichEditText::UnitBehind(int position) const {
  const std::size_t unit = UnitAt(position);
  const bool isWithinLineEnd = unit < units_.size() && PositionOf(unit) < position;
  return isWithinLineEnd ? unit + 1 : unit;
}

int RichEditText::PositionOf(std::size_t unit) const {
  const Start& start = lines_[FindLine([unit](const Start& line) { return line.unit > unit; })];
  return start.position +
         CharactersIn(std::wstring_view(units_).substr(start.unit, unit - start.unit));
}

int RichEditText::LineAt(int position) const {
  if (position <= 0) return 0;
  return static_cast<int>(
      FindLine([position](const Start& line) { return line.position > position; }));
}

std::wstring_view RichEditText::Line(int line) const {
  const std::size_t start = StartOf(line).unit;
  const std::size_t end = line + 1 < LineCount() ? StartOf(line + 1).unit - 1 : units_.size();
  return std::wstring_view(units_).substr(start, end - start);
}

int RichEditText::LineLength(int line) const {
  if (line + 1 < LineCount()) return LineStart(line + 1) - LineStart(line) - kLineEndSize;
  return CharactersIn(Line(line));
}

void RichEditText::Replace(UnitRange range, std::wstring_view units) {
  const std::wstring_view replaced = std::wstring_view(units_).substr(range.start, range.Size());
  const bool linesStay = replaced.size() == units.size() &&
                         CharactersIn(replaced) == CharactersIn(units) &&
                         replaced.find(L'\r') == replaced.npos && units.find(L'\r') == units.npos;
  const auto line = linesStay ? 0 : static_cast<std::size_t>(LineAt(PositionOf(range.start)));
  units_.replace(range.start, range.Size(), units);
  if (!linesStay) FindLines(line);
}

/// The line in front of the first one that isBehind; never one in front of the first.
template <class Before>
std::size_t RichEditText::FindLine(Before isBehind) const {
  const auto holds = [&](std::size_t line) {
    return line < lines_.size() && !isBehind(lines_[line]) &&
           (line + 1 == lines_.size() || isBehind(lines_[line + 1]));
  };
  if (!holds(last_) && !holds(++last_)) {
    const auto behind = std::partition_point(lines_.begin() + 1, lines_.end(),
                                             [&](const Start& line) { return !isBehind(line); });
    last_ = static_cast<std::size_t>(behind - lines_.begin()) - 1;
  }
  return last_;
}

/// Finds the lines behind one again; the ones up to it are known.
void RichEditText::FindLines(std::size_t first) {
  lines_.resize(first + 1);
  last_ = 0;
  for (;;) {
    const Start start = lines_.back();
    const std::size_t end = units_.find(L'\r', start.unit);
    if (end == units_.npos) return;
    const auto line = std::wstring_view(units_).substr(start.unit, end - start.unit);
    lines_.push_back({end + 1, start.position + CharactersIn(line) + kLineEndSize});
  }
}

std::wstring ControlUnits(std::string_view text) {
  std::wstring units = win32::Wide(text);
  auto to = units.begin();
  for (auto from = units.begin(); from != units.end(); ++from) {
    const bool isSecond = *from == L'\n' && from != units.begin() && *(from - 1) == L'\r';
    if (isSecond) continue;
    *to++ = *from == L'\n' ? L'\r' : *from;
  }
  units.erase(to, units.end());
  return units;
}

std::string TextOfUnits(std::wstring_view units) {
  std::wstring text;
  text.reserve(units.size() + units.size() / 16);
  for (const wchar_t unit : units) {
    text += unit;
    if (unit == L'\r') text += L'\n';
  }
  return win32::Narrow(text);
}

}  // namespace brimwork::windows
