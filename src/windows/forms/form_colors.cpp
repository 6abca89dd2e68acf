#include "windows/forms/form_colors.h"

namespace brimwork::windows {
namespace {

constexpr Color kSystemColorMark = 0x80000000;

bool IsSystemColor(Color color) { return (color & kSystemColorMark) != 0; }

int SystemColorIndex(Color color) { return static_cast<int>(color & ~kSystemColorMark); }

}  // namespace

COLORREF ShownColor(Color color) {
  return IsSystemColor(color) ? GetSysColor(SystemColorIndex(color)) : COLORREF{color};
}

HBRUSH FormBrushes::Brush(Color color) {
  if (IsSystemColor(color)) return GetSysColorBrush(SystemColorIndex(color));
  GdiObject<HBRUSH>& brush = brushes_[color];
  if (!brush) brush.reset(CreateSolidBrush(ShownColor(color)));
  return brush.get();
}

}  // namespace brimwork::windows
