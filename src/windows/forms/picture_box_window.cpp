#include "windows/forms/picture_box_window.h"

#include <variant>

#include "win32/wide_text.h"
#include "windows/forms/form_window.h"

namespace brimwork::windows {

ControlWindow::Design PictureBoxWindow::WindowDesign() const {
  return {PaneWindow::WindowDesign().className, WS_CLIPCHILDREN, BorderStyle()};
}

void PictureBoxWindow::Show(PropertyId property) {
  PaneWindow::Show(property);
  if (property == PropertyId::kBorderStyle) ShowBorder();
}

void PictureBoxWindow::ShowBorder() {
  SetWindowLongPtrW(Handle(), GWL_EXSTYLE, static_cast<LONG_PTR>(BorderStyle()));
  SetWindowPos(Handle(), nullptr, 0, 0, 0, 0,
               SWP_FRAMECHANGED | SWP_NOMOVE | SWP_NOSIZE | SWP_NOZORDER | SWP_NOACTIVATE);
  Repaint();
}

void PictureBoxWindow::Paint(HDC context, const RECT& area) {
  const HBITMAP bitmap = Kit().pictures.Bitmap(box_.Picture, box_.BackColor);
  PaintBitmap(context, bitmap, area, box_.Layout().isStretched);
  for (const DrawingCommand& command : box_.Drawing()) {
    std::visit([&](const auto& drawn) { Draw(context, drawn); }, command);
  }
}

void PictureBoxWindow::Draw(HDC context, const FilledRectangle& rectangle) {
  const RECT area = Kit().scale.ToPixels(rectangle.place);
  const SelectedObject brush(context, Kit().brushes.Brush(rectangle.color));
  const DWORD operation = rectangle.mode == DrawMode::kXorPen ? PATINVERT : PATCOPY;
  PatBlt(context, area.left, area.top, area.right - area.left, area.bottom - area.top, operation);
}

// A pen's mode counts for lines and areas; text is written over what is there.
void PictureBoxWindow::Draw(HDC context, const DrawnText& text) {
  const std::wstring wide = win32::Wide(text.text);
  SetTextColor(context, ShownColor(text.color));
  TextOutW(context, Kit().scale.ToPixels(text.left), Kit().scale.ToPixels(text.top), wide.data(),
           static_cast<int>(wide.size()));
}

}  // namespace brimwork::windows
