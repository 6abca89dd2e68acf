#include "windows/forms/label_windows.h"

#include <algorithm>

#include "win32/wide_text.h"
#include "windows/forms/form_window.h"

namespace brimwork::windows {
namespace {

UINT AlignmentFormat(TextAlignment alignment) {
  switch (alignment) {
    case TextAlignment::kRight:
      return DT_RIGHT;
    case TextAlignment::kCenter:
      return DT_CENTER;
    case TextAlignment::kLeft:
      return DT_LEFT;
  }
  return DT_LEFT;
}

void PaintText(HDC context, const std::wstring& text, RECT area, UINT format, bool isEnabled) {
  if (!isEnabled) SetTextColor(context, GetSysColor(COLOR_GRAYTEXT));
  DrawTextW(context, text.data(), static_cast<int>(text.size()), &area, format);
}

}  // namespace

void LabelWindow::Paint(HDC context, const RECT& area) {
  const UINT format = AlignmentFormat(label_.Layout().alignment) | DT_WORDBREAK | DT_EXPANDTABS;
  PaintText(context, win32::Wide(label_.Caption.Get()), area, format, IsEnabled());
}

bool LabelWindow::IsLink() const {
  return label_.Font.Get().isUnderlined && label_.OnClick != nullptr;
}

ControlWindow::Design FrameWindow::WindowDesign() const {
  return {PaneWindow::WindowDesign().className, WS_CLIPCHILDREN, 0};
}

// The upper edge runs through the middle of the caption.
void FrameWindow::Paint(HDC context, const RECT& area) {
  if (!frame_.HasBorder()) return;
  TEXTMETRICW metrics;
  GetTextMetricsW(context, &metrics);
  RECT edge = area;
  edge.top += metrics.tmHeight / 2;
  DrawEdge(context, &edge, EDGE_ETCHED, BF_RECT);
  if (!frame_.Caption.IsEmpty()) PaintCaption(context, area);
}

void FrameWindow::PaintCaption(HDC context, const RECT& area) {
  constexpr int kMargin = 8;
  constexpr int kGap = 2;
  const std::wstring text = win32::Wide(frame_.Caption.Get());
  RECT place = {};
  DrawTextW(context, text.data(), static_cast<int>(text.size()), &place,
            DT_CALCRECT | DT_SINGLELINE);
  OffsetRect(&place, Kit().scale.ToPixels(kMargin), 0);
  place.right = std::min(place.right, area.right - Kit().scale.ToPixels(kMargin));
  const RECT gap = {place.left - kGap, place.top, place.right + kGap, place.bottom};
  FillRect(context, &gap, Kit().brushes.Brush(frame_.BackColor));
  PaintText(context, text, place, DT_SINGLELINE, IsEnabled());
}

void ImageWindow::Paint(HDC context, const RECT& area) {
  const HBITMAP bitmap = Kit().pictures.Bitmap(image_.Picture, image_.BackColor);
  PaintBitmap(context, bitmap, area, image_.Layout().isStretched);
}

}  // namespace brimwork::windows
