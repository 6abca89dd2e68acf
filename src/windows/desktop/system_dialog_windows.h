// The windows of a dialog by handle.
#pragma once

#include <windows.h>

#include "environment/dialog_windows.h"

// The system's headers give these names to macros of their own.
#undef CreateWindowEx
#undef FindWindow
#undef FindWindowEx
#undef SetWindowText

namespace brimwork::windows {

class SystemDialogWindows : public DialogWindows {
 public:
  WindowHandle FindWindow(std::string_view className, std::string_view title) override;
  WindowHandle FindWindowEx(WindowHandle parent, WindowHandle childAfter,
                            std::string_view className, std::string_view text) override;
  void SetForegroundWindow(WindowHandle window) override;
  WindowHandle GetFocus() override;
  WindowRectangle GetWindowRect(WindowHandle window) override;
  void MoveWindow(WindowHandle window, const WindowArea& area, bool repaint) override;
  WindowHandle CreateWindowEx(const NewWindow& window) override;
  void SetWindowText(WindowHandle window, std::string_view text) override;
};

}  // namespace brimwork::windows
