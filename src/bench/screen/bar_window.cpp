#include "bench/screen/bar_window.h"

#include <commctrl.h>
#include <windowsx.h>

#include <algorithm>
#include <utility>

#include "bench/screen/native_bounds.h"
#include "environment/command_bar.h"
#include "win32/wide_text.h"

namespace brimwork::bench {
namespace {

using namespace bar_measure;

bool GoesDown(int position) {
  return position == bar_position::kLeft || position == bar_position::kRight;
}

POINT PointOf(LPARAM longer) { return {GET_X_LPARAM(longer), GET_Y_LPARAM(longer)}; }

}  // namespace

BarWindow::BarWindow(const ScreenParts& parts, BarMover& mover, HWND frame,
                     std::shared_ptr<MemoryCommandBar> bar)
    : parts_(parts), mover_(mover), bar_(std::move(bar)) {
  Create({.className = L"BrimworkBenchBar",
          .style = WS_CHILD | WS_VISIBLE | WS_CLIPSIBLINGS,
          .parent = frame,
          .bounds = {0, 0, 0, 0},
          .background = -1});
  tips_ =
      CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, L"", WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX,
                      CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, Handle(), nullptr,
                      GetModuleHandleW(nullptr), nullptr);
  Refresh();
}

bool BarWindow::Refresh() {
  std::vector<Button> current = CurrentButtons();
  if (current == buttons_) return false;
  buttons_ = std::move(current);
  hot_ = kNone;
  pressed_ = kNone;
  flow_ = {};
  InvalidateRect(Handle(), nullptr, FALSE);
  return true;
}

std::vector<BarWindow::Button> BarWindow::CurrentButtons() const {
  std::vector<Button> buttons;
  for (const auto& control : bar_->Entries()->All()) {
    ControlLook look = LookOnBar(*control, parts_.faces);
    if (look.isVisible) buttons.push_back({control, std::move(look)});
  }
  return buttons;
}

bool BarWindow::IsDown() const { return GoesDown(position_); }

int BarWindow::Grip(int position) const { return position == bar_position::kFloating ? 0 : kGrip; }

Flow BarWindow::FlowIn(int position, int limit) const {
  const bool goesDown = GoesDown(position);
  std::vector<FlowedButton> flowed;
  for (const Button& button : buttons_) {
    flowed.push_back({MeasureButton(button.look, goesDown, parts_.fonts), button.look.beginsGroup});
  }
  return FlowButtons(flowed, goesDown ? Direction::kDown : Direction::kAcross, Grip(position),
                     limit);
}

Size BarWindow::Measure(int position, int limit) const { return FlowIn(position, limit).size; }

void BarWindow::Place(int position, const Bounds& bounds) {
  position_ = position;
  flow_ = FlowIn(position, GoesDown(position) ? bounds.height : bounds.width);
  MoveWindow(Handle(), bounds.left, bounds.top, bounds.width, bounds.height, TRUE);
  InvalidateRect(Handle(), nullptr, FALSE);
  ShowTips();
}

std::optional<Bounds> BarWindow::BoundsOf(const MemoryCommandBarControl& control) const {
  const auto button = std::ranges::find_if(
      buttons_, [&](const Button& each) { return each.control.get() == &control; });
  const auto place = static_cast<std::size_t>(button - buttons_.begin());
  if (place >= flow_.buttons.size()) return std::nullopt;
  return flow_.buttons[place];
}

void BarWindow::ShowTips() {
  TOOLINFOW tool{};
  tool.cbSize = TTTOOLINFOW_V1_SIZE;
  tool.hwnd = Handle();
  for (tool.uId = 0; tool.uId < tipCount_; ++tool.uId) {
    SendMessageW(tips_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  }
  tool.uFlags = TTF_SUBCLASS;
  for (tool.uId = 0; tool.uId < flow_.buttons.size(); ++tool.uId) {
    std::wstring tip = win32::Wide(buttons_[tool.uId].look.tip);
    tool.rect = RectOf(flow_.buttons[tool.uId]);
    tool.lpszText = tip.data();
    SendMessageW(tips_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  }
  tipCount_ = flow_.buttons.size();
}

LRESULT BarWindow::OnMessage(UINT message, WPARAM wide, LPARAM longer) {
  switch (message) {
    case WM_PAINT:
      Paint();
      return 0;
    case WM_ERASEBKGND:
      return TRUE;
    case WM_MOUSEACTIVATE:
      return MA_NOACTIVATE;
    case WM_MOUSEMOVE:
      OnMove(PointOf(longer));
      return 0;
    case WM_MOUSELEAVE:
      SetHot(kNone);
      return 0;
    case WM_LBUTTONDOWN:
    case WM_LBUTTONDBLCLK:
      OnPress(PointOf(longer));
      return 0;
    case WM_LBUTTONUP:
      OnRelease(PointOf(longer));
      return 0;
    case WM_CONTEXTMENU:
      parts_.host.OpenMenu(parts_.bench.bars.toolbars->Entries(), PointOf(longer));
      return 0;
    case WM_CAPTURECHANGED:
      Redraw(std::exchange(pressed_, kNone));
      return 0;
    default:
      return Default(message, wide, longer);
  }
}

std::size_t BarWindow::ButtonAt(POINT place) const {
  const auto found = std::ranges::find_if(flow_.buttons, [&](const Bounds& button) {
    const RECT area = RectOf(button);
    return PtInRect(&area, place) != 0;
  });
  return found == flow_.buttons.end() ? kNone
                                      : static_cast<std::size_t>(found - flow_.buttons.begin());
}

/// Drawn beside the screen first, so that nothing flickers.
void BarWindow::Paint() {
  const Painting painting(Handle());
  RECT room{};
  GetClientRect(Handle(), &room);
  const MemoryContext beside;
  const GdiObject<HBITMAP> bitmap(CreateCompatibleBitmap(
      painting.Context(), static_cast<int>(room.right), static_cast<int>(room.bottom)));
  const SelectedObject selected(beside.get(), bitmap.get());
  PaintAll(beside.get(), room);
  BitBlt(painting.Context(), 0, 0, static_cast<int>(room.right), static_cast<int>(room.bottom),
         beside.get(), 0, 0, SRCCOPY);
}

void BarWindow::PaintAll(HDC context, const RECT& room) {
  FillRect(context, &room, GetSysColorBrush(COLOR_BTNFACE));
  if (Grip(position_) > 0) {
    PaintGrip(context, {0, 0, static_cast<int>(room.right), static_cast<int>(room.bottom)},
              IsDown());
  }
  for (const Bounds& separator : flow_.separators) PaintSeparator(context, separator);
  for (std::size_t button = 0; button < flow_.buttons.size(); ++button) {
    const ButtonState state = button == pressed_ && button == hot_ ? ButtonState::kDown
                              : button == hot_                     ? ButtonState::kHot
                                                                   : ButtonState::kFlat;
    PaintButton(context, flow_.buttons[button], buttons_[button].look, state, IsDown(),
                parts_.fonts);
  }
}

void BarWindow::OnMove(POINT place) {
  const std::size_t button = ButtonAt(place);
  if (hot_ == kNone && button != kNone) {
    TRACKMOUSEEVENT leaving{sizeof leaving, TME_LEAVE, Handle(), 0};
    TrackMouseEvent(&leaving);
  }
  SetHot(button);
}

void BarWindow::SetHot(std::size_t button) {
  if (button == hot_) return;
  Redraw(std::exchange(hot_, button));
  Redraw(hot_);
}

void BarWindow::OnPress(POINT place) {
  const std::size_t button = ButtonAt(place);
  if (button == kNone) {
    ClientToScreen(Handle(), &place);
    mover_.StartDrag(bar_, place);
    return;
  }
  if (!buttons_[button].look.isEnabled) return;
  if (buttons_[button].look.isPopup) return OpenMenuOf(button);
  SetHot(button);
  pressed_ = button;
  SetCapture(Handle());
  Redraw(button);
}

void BarWindow::OnRelease(POINT place) {
  const std::size_t button = std::exchange(pressed_, kNone);
  if (button == kNone) return;
  ReleaseCapture();
  Redraw(button);
  if (ButtonAt(place) != button) return;
  parts_.host.Do([control = buttons_[button].control] { control->Execute(); });
}

void BarWindow::OpenMenuOf(std::size_t button) {
  const Bounds& bounds = flow_.buttons[button];
  POINT place = {bounds.left, bounds.top + bounds.height};
  ClientToScreen(Handle(), &place);
  parts_.host.OpenMenu(buttons_[button].control->Entries(), place);
}

void BarWindow::Redraw(std::size_t button) {
  if (button >= flow_.buttons.size()) return;
  const RECT area = RectOf(flow_.buttons[button]);
  InvalidateRect(Handle(), &area, FALSE);
}

}  // namespace brimwork::bench
