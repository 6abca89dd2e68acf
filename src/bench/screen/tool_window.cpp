#include "bench/screen/tool_window.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>
#include <utility>

#include "bench/screen/bar_painter.h"
#include "win32/wide_text.h"

namespace brimwork::bench {
namespace {

constexpr int kCaptionHeight = 17;
constexpr int kEdgeWidth = 1;

}  // namespace

void ToolContent::Arrange(const Bounds& room) {
  MoveWindow(Handle(), room.left, room.top, room.width, room.height, TRUE);
}

ToolWindow::ToolWindow(const ScreenParts& parts, HWND frame, std::shared_ptr<MemoryWindow> window)
    : parts_(parts), window_(std::move(window)), caption_(window_->Caption()) {
  Create({.className = L"BrimworkBenchTool",
          .style = WS_CHILD | WS_CLIPCHILDREN | WS_CLIPSIBLINGS,
          .parent = frame,
          .bounds = {0, 0, 0, 0},
          .classStyle = CS_HREDRAW | CS_VREDRAW});
}

void ToolWindow::Hold(std::unique_ptr<ToolContent> content) {
  content_ = std::move(content);
  Arrange();
}

void ToolWindow::Refresh() {
  const bool isActive = parts_.bench.vbe.windows.Active() == window_;
  if (caption_ != window_->Caption() || isShownActive_ != isActive) {
    caption_ = window_->Caption();
    isShownActive_ = isActive;
    const RECT area = CaptionArea();
    InvalidateRect(Handle(), &area, TRUE);
  }
  content_->Refresh();
}

LRESULT ToolWindow::OnMessage(UINT message, WPARAM wide, LPARAM longer) {
  switch (message) {
    case WM_SIZE:
      Arrange();
      return 0;
    case WM_PAINT:
      Paint();
      return 0;
    case WM_SETFOCUS:
      if (content_) SetFocus(content_->FocusTarget());
      return 0;
    case WM_LBUTTONDOWN:
      OnPress({GET_X_LPARAM(longer), GET_Y_LPARAM(longer)});
      return 0;
    case WM_LBUTTONUP:
      OnRelease({GET_X_LPARAM(longer), GET_Y_LPARAM(longer)});
      return 0;
    case WM_NOTIFY:
      return OnNote(*reinterpret_cast<const NMHDR*>(longer), wide, longer);
    default:
      return Default(message, wide, longer);
  }
}

void ToolWindow::Arrange() {
  if (!content_) return;
  RECT room{};
  GetClientRect(Handle(), &room);
  content_->Arrange({kEdgeWidth, kEdgeWidth + kCaptionHeight,
                     std::max<int>(room.right - 2 * kEdgeWidth, 0),
                     std::max<int>(room.bottom - kCaptionHeight - 2 * kEdgeWidth, 0)});
}

RECT ToolWindow::CaptionArea() const {
  RECT room{};
  GetClientRect(Handle(), &room);
  return {kEdgeWidth, kEdgeWidth, room.right - kEdgeWidth, kEdgeWidth + kCaptionHeight};
}

RECT ToolWindow::CloseArea() const {
  const RECT caption = CaptionArea();
  return {caption.right - 15, caption.top + 2, caption.right - 2, caption.bottom - 2};
}

void ToolWindow::Paint() {
  const Painting painting(Handle());
  RECT room{};
  GetClientRect(Handle(), &room);
  FrameRect(painting.Context(), &room, GetSysColorBrush(COLOR_BTNSHADOW));
  PaintCaption(painting.Context());
}

void ToolWindow::PaintCaption(HDC context) const {
  RECT caption = CaptionArea();
  FillRect(context, &caption,
           GetSysColorBrush(isShownActive_ ? COLOR_ACTIVECAPTION : COLOR_INACTIVECAPTION));
  const RECT close = CloseArea();
  PaintCloseButton(context, close, isPressingClose_);
  const SelectedObject font(context, parts_.fonts.Bold());
  SetBkMode(context, TRANSPARENT);
  SetTextColor(context,
               GetSysColor(isShownActive_ ? COLOR_CAPTIONTEXT : COLOR_INACTIVECAPTIONTEXT));
  caption.left += 3;
  caption.right = close.left - 3;
  DrawTextW(context, win32::Wide(caption_).c_str(), -1, &caption,
            DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
}

void ToolWindow::OnPress(POINT place) {
  const RECT close = CloseArea();
  isPressingClose_ = PtInRect(&close, place) != 0;
  if (isPressingClose_) {
    SetCapture(Handle());
    InvalidateRect(Handle(), &close, FALSE);
  } else {
    SetFocus(content_->FocusTarget());
  }
}

void ToolWindow::OnRelease(POINT place) {
  if (!std::exchange(isPressingClose_, false)) return;
  ReleaseCapture();
  const RECT close = CloseArea();
  InvalidateRect(Handle(), &close, FALSE);
  if (PtInRect(&close, place)) parts_.host.CloseByUser(window_);
}

LRESULT ToolWindow::OnNote(const NMHDR& note, WPARAM wide, LPARAM longer) {
  if (note.code == static_cast<UINT>(NM_SETFOCUS)) parts_.host.NoteFocus(window_);
  if (content_) {
    if (const auto answer = content_->OnNotify(note)) return *answer;
  }
  return Default(WM_NOTIFY, wide, longer);
}

}  // namespace brimwork::bench
