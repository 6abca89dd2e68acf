// Windows by their handle as plain data: what they are and where, which lies in front, and their
// system menus.
#pragma once

#include <map>
#include <string>
#include <vector>

#include "environment/dialog_windows.h"
#include "environment/native_windows.h"

namespace brimwork {

class MemoryNativeWindows : public NativeWindows {
 public:
  struct SentMessage {
    std::uint32_t message = 0;
    std::intptr_t wParam = 0;
    std::intptr_t lParam = 0;
    bool operator==(const SentMessage&) const = default;
  };

  /// One window; its system menu maps command numbers to states. The inside of a window is the
  /// whole of it.
  struct NativeWindow {
    std::map<std::int32_t, std::uint32_t> systemMenu = {};
    std::vector<WindowPosition> positions = {};
    std::vector<SentMessage> messages = {};
    std::string className = {};
    std::string text = {};
    WindowHandle parent = 0;
    WindowArea area = {};
    std::uint32_t style = 0;
    InstanceHandle instance = 0;
    std::intptr_t font = 0;
    bool isChecked = false;
    bool isTopMost = false;
    int cameToFront = 0;  // of two windows the one with the higher number lies in front
  };

  bool IsWindow(WindowHandle window) override { return windows.contains(window); }
  void SetWindowPos(WindowHandle window, const WindowPosition& position) override;
  MenuHandle GetSystemMenu(WindowHandle window, bool revert) override;
  bool GetMenuItemInfo(MenuHandle menu, std::int32_t item, MenuItemInfo& info) override;
  bool SetMenuItemInfo(MenuHandle menu, std::int32_t item, const MenuItemInfo& info) override;

  /// Every message is recorded; those about fonts and the state of a button are answered.
  std::intptr_t SendMessage(WindowHandle window, std::uint32_t message, std::intptr_t wParam,
                            std::intptr_t lParam) override;

  /// Adds a window in front of the others. Handles given here rise.
  WindowHandle Add(NativeWindow window);
  /// Removes a window with its children.
  void Remove(WindowHandle window);

  void BringToFront(WindowHandle window);
  bool LiesInFrontOf(WindowHandle window, WindowHandle other) const;

  std::map<WindowHandle, NativeWindow> windows;

  /// The window with the keyboard's focus, 0 for none.
  WindowHandle focus = 0;

  /// Masks of SetMenuItemInfo that are refused.
  std::uint32_t refusedMasks = 0;

 private:
  std::map<std::int32_t, std::uint32_t>* MenuOf(MenuHandle menu);
  std::intptr_t Answer(WindowHandle window, const SentMessage& message);

  WindowHandle latestHandle_ = 0x100000;  // above those that others give
  int latestToFront_ = 0;
};

}  // namespace brimwork
