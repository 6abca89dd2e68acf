#include "windows/forms/form_place.h"

#include <algorithm>

namespace brimwork::windows {
namespace {

DWORD BorderStyle(FormBorder border) {
  switch (border) {
    case FormBorder::kNone:
      return WS_POPUP;
    case FormBorder::kSizable:
      return WS_CAPTION | WS_THICKFRAME;
    case FormBorder::kFixedSingle:
    case FormBorder::kFixedDialog:
    case FormBorder::kFixedToolWindow:
      return WS_CAPTION | WS_BORDER;
  }
  return WS_CAPTION;
}

DWORD ExtendedBorderStyle(FormBorder border) {
  if (border == FormBorder::kFixedDialog) return WS_EX_DLGMODALFRAME;
  return border == FormBorder::kFixedToolWindow ? WS_EX_TOOLWINDOW : 0;
}

RECT WorkArea(HWND nearWindow) {
  MONITORINFO monitor = {};
  monitor.cbSize = sizeof monitor;
  GetMonitorInfoW(MonitorFromWindow(nearWindow, MONITOR_DEFAULTTOPRIMARY), &monitor);
  return monitor.rcWork;
}

bool CanCenterOn(HWND owner) {
  return owner != nullptr && IsWindowVisible(owner) && !IsIconic(owner);
}

SIZE OuterSize(const FormLayout& layout, ScreenScale scale) {
  const WindowStyles styles = FormStyles(layout);
  RECT frame = {0, 0, scale.ToPixels(layout.width), scale.ToPixels(layout.height)};
  AdjustWindowRectEx(&frame, styles.style, FALSE, styles.extendedStyle);
  return {frame.right - frame.left, frame.bottom - frame.top};
}

int Centered(LONG first, LONG end, LONG size) { return static_cast<int>((first + end - size) / 2); }

int WithinScreen(int start, LONG size, LONG first, LONG end) {
  return static_cast<int>(std::max(first, std::min<LONG>(start, end - size)));
}

}  // namespace

WindowStyles FormStyles(const FormLayout& layout) {
  WindowStyles styles;
  styles.style = WS_CLIPCHILDREN | BorderStyle(layout.border);
  styles.extendedStyle = ExtendedBorderStyle(layout.border);
  if (layout.hasControlBox) styles.style |= WS_SYSMENU;
  if (layout.hasMinButton) styles.style |= WS_MINIMIZEBOX;
  if (layout.hasMaxButton) styles.style |= WS_MAXIMIZEBOX;
  if (layout.isInTaskbar) styles.extendedStyle |= WS_EX_APPWINDOW;
  return styles;
}

WindowPlace StartPlace(const FormLayout& layout, ScreenScale scale, HWND owner) {
  const SIZE size = OuterSize(layout, scale);
  WindowPlace place = {CW_USEDEFAULT, CW_USEDEFAULT, size.cx, size.cy};
  if (layout.startUpPosition == StartUpPosition::kWindowsDefault) return place;
  const RECT screen = WorkArea(owner);
  RECT around = screen;
  const bool isOnOwner = layout.startUpPosition == StartUpPosition::kCenterOwner;
  if (isOnOwner && CanCenterOn(owner)) GetWindowRect(owner, &around);
  place.left = WithinScreen(Centered(around.left, around.right, size.cx), size.cx, screen.left,
                            screen.right);
  place.top = WithinScreen(Centered(around.top, around.bottom, size.cy), size.cy, screen.top,
                           screen.bottom);
  return place;
}

}  // namespace brimwork::windows
