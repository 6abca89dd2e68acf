#include "bench/screen/designer_window.h"

#include <algorithm>
#include <utility>

#include "environment/vbe.h"
#include "win32/wide_text.h"

namespace brimwork::bench {
namespace {

constexpr int kPaperMargin = 8;
constexpr int kWidth = 320;
constexpr int kHeight = 240;
constexpr int kGrid = 8;

/// The small squares at the edges by which a form would be pulled to another size.
void PaintHandles(HDC context, const RECT& form) {
  constexpr int kSide = 6;
  const int left = static_cast<int>(form.left);
  const int top = static_cast<int>(form.top);
  const int middle = static_cast<int>(form.left + form.right) / 2;
  const int centre = static_cast<int>(form.top + form.bottom) / 2;
  const int right = static_cast<int>(form.right);
  const int bottom = static_cast<int>(form.bottom);
  const POINT places[] = {{left - kSide, top - kSide}, {middle - 3, top - kSide},
                          {right, top - kSide},        {left - kSide, centre - 3},
                          {right, centre - 3},         {left - kSide, bottom},
                          {middle - 3, bottom},        {right, bottom}};
  for (const POINT& place : places) {
    const RECT handle = {place.x, place.y, place.x + kSide, place.y + kSide};
    FillRect(context, &handle, GetSysColorBrush(COLOR_HIGHLIGHT));
  }
}

void PaintGrid(HDC context, const RECT& surface) {
  FillRect(context, &surface, GetSysColorBrush(COLOR_BTNFACE));
  const COLORREF dots = GetSysColor(COLOR_BTNTEXT);
  for (auto y = surface.top + kGrid; y < surface.bottom; y += kGrid) {
    for (auto x = surface.left + kGrid; x < surface.right; x += kGrid) {
      SetPixelV(context, static_cast<int>(x), static_cast<int>(y), dots);
    }
  }
}

}  // namespace

DesignerWindow::DesignerWindow(const ScreenParts& parts, HWND client,
                               std::shared_ptr<MemoryWindow> window)
    : MdiChild(parts, std::move(window)), caption_(CurrentCaption()) {
  CreateIn(client, L"BrimworkBenchDesigner", COLOR_WINDOW, ComponentGlyph(component_type::kForm));
}

std::string DesignerWindow::CurrentCaption() const {
  const auto component = Parts().bench.ComponentOfDesigner(*Model());
  return component != nullptr ? component->LastName() : std::string();
}

void DesignerWindow::Refresh() {
  MdiChild::Refresh();
  if (caption_ == CurrentCaption()) return;
  caption_ = CurrentCaption();
  InvalidateRect(Handle(), nullptr, TRUE);
}

LRESULT DesignerWindow::OnMessage(UINT message, WPARAM wide, LPARAM longer) {
  switch (message) {
    case WM_PAINT:
      Paint();
      return 0;
    case WM_LBUTTONDOWN:
      SetFocus(Handle());
      break;
    default:
      break;
  }
  return MdiChild::OnMessage(message, wide, longer);
}

void DesignerWindow::Paint() {
  const Painting painting(Handle());
  const RECT form = {kPaperMargin, kPaperMargin, kPaperMargin + kWidth, kPaperMargin + kHeight};
  PaintForm(painting.Context(), form);
  PaintHandles(painting.Context(), form);
}

void DesignerWindow::PaintForm(HDC context, const RECT& form) const {
  RECT edge = form;
  DrawEdge(context, &edge, EDGE_RAISED, BF_RECT | BF_ADJUST);
  RECT title = edge;
  title.bottom = title.top + 18;
  FillRect(context, &title, GetSysColorBrush(COLOR_ACTIVECAPTION));
  const RECT surface = {edge.left, title.bottom, edge.right, edge.bottom};
  PaintGrid(context, surface);
  const SelectedObject font(context, Parts().fonts.Bold());
  SetBkMode(context, TRANSPARENT);
  SetTextColor(context, GetSysColor(COLOR_CAPTIONTEXT));
  title.left += 4;
  DrawTextW(context, win32::Wide(caption_).c_str(), -1, &title,
            DT_SINGLELINE | DT_VCENTER | DT_NOPREFIX | DT_END_ELLIPSIS);
}

}  // namespace brimwork::bench
