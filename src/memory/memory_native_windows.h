// Windows by their handle as plain data: their place among each other and their system menus.
#pragma once

#include <map>
#include <vector>

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

  /// One window; its system menu maps command numbers to states.
  struct NativeWindow {
    std::map<std::int32_t, std::uint32_t> systemMenu;
    std::vector<WindowPosition> positions;
    std::vector<SentMessage> messages;
  };

  bool IsWindow(WindowHandle window) override { return windows.contains(window); }
  void SetWindowPos(WindowHandle window, const WindowPosition& position) override;
  MenuHandle GetSystemMenu(WindowHandle window, bool revert) override;
  bool GetMenuItemInfo(MenuHandle menu, std::int32_t item, MenuItemInfo& info) override;
  bool SetMenuItemInfo(MenuHandle menu, std::int32_t item, const MenuItemInfo& info) override;
  void SendMessage(WindowHandle window, std::uint32_t message, std::intptr_t wParam,
                   std::intptr_t lParam) override;

  std::map<WindowHandle, NativeWindow> windows;

  /// Masks of SetMenuItemInfo that are refused.
  std::uint32_t refusedMasks = 0;

 private:
  std::map<std::int32_t, std::uint32_t>* MenuOf(MenuHandle menu);
};

}  // namespace brimwork
