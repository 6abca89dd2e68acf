#include "bench/screen/edit_control.h"

#include <algorithm>

namespace brimwork::bench {
namespace {

bool IsSecondOfPair(wchar_t unit) { return unit >= 0xDC00 && unit <= 0xDFFF; }

struct CaretPlace {
  int line;
  int column;
};

std::size_t StartOfLine(HWND edit, int line) {
  return static_cast<std::size_t>(SendMessageW(edit, EM_LINEINDEX, static_cast<WPARAM>(line), 0));
}

CaretPlace PlaceOf(HWND edit, std::wstring_view text, std::size_t unit) {
  const auto line = static_cast<int>(SendMessageW(edit, EM_LINEFROMCHAR, unit, 0));
  const std::size_t start = std::min(StartOfLine(edit, line), text.size());
  const auto before = text.substr(start, std::max(unit, start) - start);
  const auto seconds = std::ranges::count_if(before, IsSecondOfPair);
  return {line + 1, static_cast<int>(before.size() - static_cast<std::size_t>(seconds)) + 1};
}

std::size_t UnitOf(HWND edit, std::wstring_view text, int line, int column) {
  const auto lines = static_cast<int>(SendMessageW(edit, EM_GETLINECOUNT, 0, 0));
  if (line > lines) return text.size();
  std::size_t unit = std::min(StartOfLine(edit, std::max(line, 1) - 1), text.size());
  for (int passed = 1; passed < column; ++passed) {
    if (unit >= text.size() || text[unit] == L'\r') break;
    ++unit;
    if (unit < text.size() && IsSecondOfPair(text[unit])) ++unit;
  }
  return unit;
}

}  // namespace

std::wstring TextOfControl(HWND control) {
  const auto length = static_cast<std::size_t>(GetWindowTextLengthW(control));
  std::wstring text(length + 1, L'\0');
  const int copied = GetWindowTextW(control, text.data(), static_cast<int>(text.size()));
  text.resize(static_cast<std::size_t>(copied));
  return text;
}

UnitRange SelectedUnits(HWND edit) {
  DWORD start = 0;
  DWORD end = 0;
  SendMessageW(edit, EM_GETSEL, reinterpret_cast<WPARAM>(&start), reinterpret_cast<LPARAM>(&end));
  return {start, end};
}

void SelectUnits(HWND edit, const UnitRange& range) {
  SendMessageW(edit, EM_SETSEL, range.start, static_cast<LPARAM>(range.end));
}

Selection PositionsOf(HWND edit, std::wstring_view text, const UnitRange& range) {
  const CaretPlace start = PlaceOf(edit, text, range.start);
  const CaretPlace end = range.end == range.start ? start : PlaceOf(edit, text, range.end);
  return {start.line, start.column, end.line, end.column};
}

UnitRange UnitsOf(HWND edit, std::wstring_view text, const Selection& selection) {
  return {UnitOf(edit, text, selection.startLine, selection.startColumn),
          UnitOf(edit, text, selection.endLine, selection.endColumn)};
}

void ApplyChange(HWND edit, const TextChange& change) {
  const int top = FirstVisibleLine(edit);
  SendMessageW(edit, WM_SETREDRAW, FALSE, 0);
  SelectUnits(edit, {change.start, change.start + change.removed.size()});
  SendMessageW(edit, EM_REPLACESEL, FALSE, reinterpret_cast<LPARAM>(change.inserted.c_str()));
  SetFirstVisibleLine(edit, top);
  SendMessageW(edit, WM_SETREDRAW, TRUE, 0);
  InvalidateRect(edit, nullptr, TRUE);
}

int FirstVisibleLine(HWND edit) {
  return static_cast<int>(SendMessageW(edit, EM_GETFIRSTVISIBLELINE, 0, 0));
}

void SetFirstVisibleLine(HWND edit, int line) {
  SendMessageW(edit, EM_LINESCROLL, 0, line - FirstVisibleLine(edit));
}

}  // namespace brimwork::bench
