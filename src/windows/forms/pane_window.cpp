#include "windows/forms/pane_window.h"

#include <windowsx.h>

#include <utility>

#include "windows/forms/form_window.h"

namespace brimwork::windows {

ControlWindow::Design PaneWindow::WindowDesign() const {
  const bool hasBorder = control_.Layout().borderStyle == border_style::kFixedSingle;
  return {Kit().paneClass.Name(), WS_CLIPCHILDREN, hasBorder ? WS_EX_CLIENTEDGE : DWORD{0}};
}

void PaneWindow::Show(PropertyId property) {
  ControlWindow::Show(property);
  const bool isPainted = property == PropertyId::kFont || property == PropertyId::kCaption ||
                         property == PropertyId::kPicture || property == PropertyId::kDrawing;
  if (!isPainted || std::exchange(isStale_, true)) return;
  Repaint();
}

LRESULT PaneWindow::Receive(UINT message, WPARAM wide, LPARAM longer) {
  switch (message) {
    case WM_ERASEBKGND:
      return 1;
    case WM_PAINT:
      isStale_ = false;
      PaintBuffered();
      return 0;
    case WM_PRINTCLIENT: {
      RECT area;
      GetClientRect(Handle(), &area);
      PaintWhole(reinterpret_cast<HDC>(wide), area);
      return 0;
    }
    case WM_LBUTTONDOWN:
      Press();
      return 0;
    case WM_LBUTTONUP:
      Release(longer);
      return 0;
    case WM_CAPTURECHANGED:
      isPressed_ = false;
      return 0;
    case WM_SETCURSOR:
      if (!IsLink()) break;
      SetCursor(LoadCursorW(nullptr, IDC_HAND));
      return TRUE;
  }
  return ControlWindow::Receive(message, wide, longer);
}

// Painted out of sight, so that it does not flicker and a colour can meet what is painted already.
void PaneWindow::PaintBuffered() {
  PAINTSTRUCT paint;
  const HDC context = BeginPaint(Handle(), &paint);
  RECT area;
  GetClientRect(Handle(), &area);
  const MemoryContext buffer;
  const GdiObject<HBITMAP> bitmap(CreateCompatibleBitmap(context, area.right, area.bottom));
  {
    const SelectedObject selected(buffer, bitmap.get());
    PaintWhole(buffer, area);
    BitBlt(context, 0, 0, area.right, area.bottom, buffer, 0, 0, SRCCOPY);
  }
  EndPaint(Handle(), &paint);
}

void PaneWindow::PaintWhole(HDC context, const RECT& area) {
  FillRect(context, &area, Kit().brushes.Brush(control_.BackColor));
  const SelectedObject font(context, Font());
  SetBkMode(context, TRANSPARENT);
  SetTextColor(context, ShownColor(control_.ForeColor));
  Paint(context, area);
}

void PaneWindow::Press() {
  SetCapture(Handle());
  isPressed_ = true;
}

void PaneWindow::Release(LPARAM position) {
  const bool wasPressed = std::exchange(isPressed_, false);
  if (!wasPressed) return;
  ReleaseCapture();
  RECT area;
  GetClientRect(Handle(), &area);
  const POINT point = {GET_X_LPARAM(position), GET_Y_LPARAM(position)};
  if (PtInRect(&area, point)) form_.Tell([this] { Click(); });
}

}  // namespace brimwork::windows
