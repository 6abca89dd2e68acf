#include "bench/screen/bar_painter.h"

#include <algorithm>

#include "bench/screen/native_bounds.h"
#include "bench/screen/picture_painter.h"
#include "environment/control.h"
#include "win32/wide_text.h"

namespace brimwork::bench {
namespace {

using namespace bar_measure;

constexpr int kInset = 3;   // between a button's edge and what is on it
constexpr int kArrow = 11;  // what opens a menu

bool ShowsCaption(const ControlLook& look, bool isDown) {
  return look.showsCaption && !(isDown && look.picture && look.showsPicture);
}

bool ShowsPicture(const ControlLook& look) { return look.picture && look.showsPicture; }

/// Stands for a button that has neither picture nor caption to show.
void PaintPlainGlyph(HDC context, int left, int top) {
  RECT area = {left + 3, top + 3, left + 13, top + 13};
  FrameRect(context, &area, GetSysColorBrush(COLOR_BTNSHADOW));
}

void PaintArrow(HDC context, int left, int middle, bool isEnabled) {
  const COLORREF colour = GetSysColor(isEnabled ? COLOR_BTNTEXT : COLOR_GRAYTEXT);
  for (int line = 0; line < 3; ++line) {
    for (int x = left + line; x < left + 5 - line; ++x) {
      SetPixelV(context, x, middle - 1 + line, colour);
    }
  }
}

void PaintText(HDC context, const std::string& caption, RECT area, bool isEnabled, HFONT font) {
  const SelectedObject selected(context, font);
  SetBkMode(context, TRANSPARENT);
  SetTextColor(context, GetSysColor(isEnabled ? COLOR_BTNTEXT : COLOR_GRAYTEXT));
  DrawTextW(context, win32::Wide(ShownCaption(caption)).c_str(), -1, &area,
            DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX);
}

void PaintEdge(HDC context, const Bounds& place, const ControlLook& look, ButtonState state) {
  RECT edge = RectOf(place);
  const bool isDown = look.isPressed || state == ButtonState::kDown;
  if (look.isPressed && state == ButtonState::kFlat) {
    FillRect(context, &edge, GetSysColorBrush(COLOR_3DLIGHT));
  }
  if (isDown) {
    DrawEdge(context, &edge, BDR_SUNKENOUTER, BF_RECT);
  } else if (state == ButtonState::kHot && look.isEnabled) {
    DrawEdge(context, &edge, BDR_RAISEDINNER, BF_RECT);
  }
}

}  // namespace

Size MeasureButton(const ControlLook& look, bool isDown, const Fonts& fonts) {
  int width = kInset;
  if (ShowsPicture(look)) width += Picture::kSize + kInset;
  if (ShowsCaption(look, isDown)) {
    width += 2 + WidthOf(fonts.Plain(), win32::Wide(ShownCaption(look.caption)).c_str()) + kInset;
  }
  if (look.isPopup) width += kArrow;
  return {std::max(width, kButton), kButton};
}

void PaintButton(HDC context, const Bounds& place, const ControlLook& look, ButtonState state,
                 bool isDown, const Fonts& fonts) {
  PaintEdge(context, place, look, state);
  const int shift = state == ButtonState::kDown ? 1 : 0;
  int left = place.left + kInset + shift;
  const int top = place.top + (place.height - Picture::kSize) / 2 + shift;
  if (ShowsPicture(look)) {
    DrawPicture(context, *look.picture, left, top, look.isEnabled);
    left += Picture::kSize + kInset;
  }
  const int end = place.left + place.width - (look.isPopup ? kArrow : 0);
  if (ShowsCaption(look, isDown)) {
    PaintText(context, look.caption, {left + 2, place.top + shift, end, place.top + place.height},
              look.isEnabled, fonts.Plain());
  } else if (!ShowsPicture(look)) {
    PaintPlainGlyph(context, left, top);
  }
  if (look.isPopup) PaintArrow(context, end + 1, place.top + place.height / 2, look.isEnabled);
}

void PaintGrip(HDC context, const Bounds& bar, bool isDown) {
  constexpr int kThick = 3;
  RECT grip =
      isDown ? RECT{bar.left + 2, bar.top + 3, bar.left + bar.width - 2, bar.top + 3 + kThick}
             : RECT{bar.left + 3, bar.top + 2, bar.left + 3 + kThick, bar.top + bar.height - 2};
  DrawEdge(context, &grip, BDR_RAISEDINNER, BF_RECT);
}

// Drawn by hand: the system's own cross needs a font that is not everywhere.
void PaintCloseButton(HDC context, const RECT& place, bool isDown) {
  RECT area = place;
  DrawFrameControl(context, &area, DFC_BUTTON, DFCS_BUTTONPUSH | (isDown ? DFCS_PUSHED : 0U));
  const int shift = isDown ? 1 : 0;
  const int left = static_cast<int>(area.left + area.right) / 2 - 4 + shift;
  const int top = static_cast<int>(area.top + area.bottom) / 2 - 4 + shift;
  const COLORREF colour = GetSysColor(COLOR_BTNTEXT);
  for (int step = 0; step < 7; ++step) {
    for (const int thick : {0, 1}) {
      SetPixelV(context, left + step + thick, top + step + 1, colour);
      SetPixelV(context, left + 6 - step + thick, top + step + 1, colour);
    }
  }
}

void PaintSeparator(HDC context, const Bounds& place) {
  RECT line = RectOf(place);
  if (place.width < place.height) {
    line.left += place.width / 2 - 1;
    DrawEdge(context, &line, EDGE_ETCHED, BF_LEFT);
  } else {
    line.top += place.height / 2 - 1;
    DrawEdge(context, &line, EDGE_ETCHED, BF_TOP);
  }
}

}  // namespace brimwork::bench
