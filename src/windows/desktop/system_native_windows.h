// Windows by their handle, and their system menus.
#pragma once

#include <windows.h>

#include "environment/native_windows.h"

// The system's headers give these names to macros of their own.
#undef GetMenuItemInfo
#undef SendMessage
#undef SetMenuItemInfo

namespace brimwork::windows {

class SystemNativeWindows : public NativeWindows {
 public:
  bool IsWindow(WindowHandle window) override;
  void SetWindowPos(WindowHandle window, const WindowPosition& position) override;
  MenuHandle GetSystemMenu(WindowHandle window, bool revert) override;
  bool GetMenuItemInfo(MenuHandle menu, std::int32_t item, MenuItemInfo& info) override;
  bool SetMenuItemInfo(MenuHandle menu, std::int32_t item, const MenuItemInfo& info) override;
  std::intptr_t SendMessage(WindowHandle window, std::uint32_t message, std::intptr_t wParam,
                            std::intptr_t lParam) override;
};

}  // namespace brimwork::windows
