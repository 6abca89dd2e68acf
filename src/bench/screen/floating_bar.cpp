#include "bench/screen/floating_bar.h"

#include <windowsx.h>

#include <algorithm>
#include <utility>

#include "environment/command_bar.h"
#include "win32/wide_text.h"

namespace brimwork::bench {
namespace {

constexpr int kCaption = 15;
constexpr int kEdge = 3;

}  // namespace

FloatingBar::FloatingBar(const ScreenParts& parts, BarMover& mover,
                         std::shared_ptr<MemoryCommandBar> bar)
    : parts_(parts), mover_(mover), bar_(std::move(bar)) {
  Create({.className = L"BrimworkBenchFloatingBar",
          .title = win32::Wide(bar_->LastName()).c_str(),
          .style = WS_POPUP | WS_CLIPCHILDREN,
          .extendedStyle = WS_EX_TOOLWINDOW,
          .parent = parts_.host.Owner(),
          .bounds = {0, 0, 0, 0}});
}

void FloatingBar::Hold(BarWindow& content) {
  const int screen = GetSystemMetrics(SM_CXSCREEN);
  const Size size = content.Measure(bar_position::kFloating, screen * 2 / 3);
  const int title = WidthOf(parts_.fonts.Bold(), win32::Wide(bar_->LastName()).c_str()) + 24;
  const int width = std::max(size.width, title);
  if (GetParent(content.Handle()) != Handle()) SetParent(content.Handle(), Handle());
  content.Place(bar_position::kFloating, {kEdge, kEdge + kCaption, width, size.height});
  SetWindowPos(Handle(), HWND_TOP, bar_->Left(), bar_->Top(), width + 2 * kEdge,
               size.height + kCaption + 2 * kEdge, SWP_NOACTIVATE | SWP_SHOWWINDOW);
}

LRESULT FloatingBar::OnMessage(UINT message, WPARAM wide, LPARAM longer) {
  switch (message) {
    case WM_PAINT:
      Paint();
      return 0;
    case WM_MOUSEACTIVATE:
      return MA_NOACTIVATE;
    case WM_LBUTTONDOWN:
      OnPress({GET_X_LPARAM(longer), GET_Y_LPARAM(longer)});
      return 0;
    case WM_CLOSE:
      parts_.host.Do([bar = bar_] { bar->SetVisible(false); });
      return 0;
    default:
      return Default(message, wide, longer);
  }
}

RECT FloatingBar::CloseArea() const {
  RECT room{};
  GetClientRect(Handle(), &room);
  return {room.right - kEdge - 13, kEdge + 1, room.right - kEdge - 1, kEdge + kCaption - 2};
}

void FloatingBar::Paint() {
  const Painting painting(Handle());
  RECT room{};
  GetClientRect(Handle(), &room);
  DrawEdge(painting.Context(), &room, EDGE_RAISED, BF_RECT);
  RECT caption = {kEdge, kEdge, room.right - kEdge, kEdge + kCaption};
  FillRect(painting.Context(), &caption, GetSysColorBrush(COLOR_ACTIVECAPTION));
  const RECT close = CloseArea();
  PaintCloseButton(painting.Context(), close, false);
  const SelectedObject font(painting.Context(), parts_.fonts.Bold());
  SetBkMode(painting.Context(), TRANSPARENT);
  SetTextColor(painting.Context(), GetSysColor(COLOR_CAPTIONTEXT));
  caption.left += 3;
  caption.right = close.left - 2;
  DrawTextW(painting.Context(), win32::Wide(bar_->LastName()).c_str(), -1, &caption,
            DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
}

void FloatingBar::OnPress(POINT place) {
  const RECT close = CloseArea();
  if (PtInRect(&close, place)) {
    PostMessageW(Handle(), WM_CLOSE, 0, 0);
    return;
  }
  ClientToScreen(Handle(), &place);
  mover_.StartDrag(bar_, place);
}

}  // namespace brimwork::bench
