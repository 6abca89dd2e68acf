// The windows of dialogs as plain data: they are found, moved and made among the windows in memory.
#pragma once

#include "environment/dialog_windows.h"
#include "memory/memory_native_windows.h"

namespace brimwork {

class MemoryDialogWindows : public DialogWindows {
 public:
  explicit MemoryDialogWindows(MemoryNativeWindows& native) : native_(native) {}

  WindowHandle FindWindow(std::string_view className, std::string_view title) override;
  WindowHandle FindWindowEx(WindowHandle parent, WindowHandle childAfter,
                            std::string_view className, std::string_view text) override;
  void SetForegroundWindow(WindowHandle window) override { native_.BringToFront(window); }
  WindowHandle GetFocus() override { return native_.focus; }
  WindowRectangle GetWindowRect(WindowHandle window) override;
  void MoveWindow(WindowHandle window, const WindowArea& area, bool repaint) override;

  /// Makes children only: without a parent the window is not made.
  WindowHandle CreateWindowEx(const NewWindow& window) override;
  void SetWindowText(WindowHandle window, std::string_view text) override;

 private:
  MemoryNativeWindows& native_;
};

}  // namespace brimwork
