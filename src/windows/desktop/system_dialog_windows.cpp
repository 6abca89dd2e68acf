#include "windows/desktop/system_dialog_windows.h"

#include "win32/wide_text.h"
#include "windows/desktop/handles.h"

namespace brimwork::windows {

using win32::Wide;

WindowHandle SystemDialogWindows::FindWindow(std::string_view className, std::string_view title) {
  return AsHandle(FindWindowW(Wide(className).c_str(), Wide(title).c_str()));
}

WindowHandle SystemDialogWindows::FindWindowEx(WindowHandle parent, WindowHandle childAfter,
                                               std::string_view className, std::string_view text) {
  return AsHandle(FindWindowExW(AsHwnd(parent), AsHwnd(childAfter), Wide(className).c_str(),
                                Wide(text).c_str()));
}

void SystemDialogWindows::SetForegroundWindow(WindowHandle window) {
  ::SetForegroundWindow(AsHwnd(window));
}

WindowHandle SystemDialogWindows::GetFocus() { return AsHandle(::GetFocus()); }

WindowRectangle SystemDialogWindows::GetWindowRect(WindowHandle window) {
  RECT bounds = {};
  if (!::GetWindowRect(AsHwnd(window), &bounds)) return {};
  return {static_cast<int>(bounds.left), static_cast<int>(bounds.top),
          static_cast<int>(bounds.right), static_cast<int>(bounds.bottom)};
}

void SystemDialogWindows::MoveWindow(WindowHandle window, const WindowArea& area, bool repaint) {
  ::MoveWindow(AsHwnd(window), area.left, area.top, area.width, area.height, repaint);
}

WindowHandle SystemDialogWindows::CreateWindowEx(const NewWindow& window) {
  const WindowArea& area = window.area;
  return AsHandle(CreateWindowExW(0, Wide(window.className).c_str(), Wide(window.text).c_str(),
                                  window.style, area.left, area.top, area.width, area.height,
                                  AsHwnd(window.parent), nullptr,
                                  reinterpret_cast<HINSTANCE>(window.instance), nullptr));
}

void SystemDialogWindows::SetWindowText(WindowHandle window, std::string_view text) {
  SetWindowTextW(AsHwnd(window), Wide(text).c_str());
}

}  // namespace brimwork::windows
