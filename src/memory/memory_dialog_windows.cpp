#include "memory/memory_dialog_windows.h"

#include <algorithm>

#include "environment/text.h"

namespace brimwork {
namespace {

bool Matches(const MemoryNativeWindows::NativeWindow& window, WindowHandle parent,
             std::string_view className, std::string_view text) {
  return window.parent == parent && EqualNames(window.className, className) &&
         EqualNames(window.text, text);
}

}  // namespace

WindowHandle MemoryDialogWindows::FindWindow(std::string_view className, std::string_view title) {
  WindowHandle foremost = 0;
  for (const auto& [handle, window] : native_.windows) {
    if (!Matches(window, 0, className, title)) continue;
    if (foremost == 0 || native_.LiesInFrontOf(handle, foremost)) foremost = handle;
  }
  return foremost;
}

// Children keep the order in which they were made, which is that of their handles.
WindowHandle MemoryDialogWindows::FindWindowEx(WindowHandle parent, WindowHandle childAfter,
                                               std::string_view className, std::string_view text) {
  const auto found = std::find_if(
      native_.windows.upper_bound(childAfter), native_.windows.end(),
      [&](const auto& window) { return Matches(window.second, parent, className, text); });
  return found == native_.windows.end() ? 0 : found->first;
}

WindowRectangle MemoryDialogWindows::GetWindowRect(WindowHandle window) {
  const auto found = native_.windows.find(window);
  if (found == native_.windows.end()) return {};
  const WindowArea& area = found->second.area;
  const WindowRectangle parent = GetWindowRect(found->second.parent);
  const int left = parent.left + area.left;
  const int top = parent.top + area.top;
  return {left, top, left + area.width, top + area.height};
}

void MemoryDialogWindows::MoveWindow(WindowHandle window, const WindowArea& area,
                                     bool /*repaint*/) {
  if (native_.IsWindow(window)) native_.windows[window].area = area;
}

WindowHandle MemoryDialogWindows::CreateWindowEx(const NewWindow& window) {
  if (!native_.IsWindow(window.parent)) return 0;
  return native_.Add({.className = window.className,
                      .text = window.text,
                      .parent = window.parent,
                      .area = window.area,
                      .style = window.style,
                      .instance = window.instance});
}

void MemoryDialogWindows::SetWindowText(WindowHandle window, std::string_view text) {
  if (native_.IsWindow(window)) native_.windows[window].text = text;
}

}  // namespace brimwork
