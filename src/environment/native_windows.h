// Windows by their handle, and the records that their system menus are read and changed with.
// Every operation may raise RunTimeError.
#pragma once

#include <cstdint>
#include <string>

#include "environment/desktop.h"

// The system's headers give these names to macros of their own.
#undef GetMenuItemInfo
#undef SendMessage
#undef SetMenuItemInfo

namespace brimwork {

using MenuHandle = std::uintptr_t;  // 0 is no menu

namespace window_order {
inline constexpr std::intptr_t kTopMost = -1;
inline constexpr std::intptr_t kNotTopMost = -2;
}  // namespace window_order

namespace window_position_flag {
inline constexpr std::uint32_t kNoSize = 1;
inline constexpr std::uint32_t kNoMove = 2;
}  // namespace window_position_flag

/// Where a window is put and how large it is made, in pixels.
struct WindowPosition {
  std::intptr_t insertAfter = 0;  // window_order::k... or a window's handle
  int x = 0;
  int y = 0;
  int width = 0;
  int height = 0;
  std::uint32_t flags = 0;  // window_position_flag::k...
};

namespace menu_item_mask {
inline constexpr std::uint32_t kState = 1;
inline constexpr std::uint32_t kId = 2;
}  // namespace menu_item_mask

namespace menu_item_state {
inline constexpr std::uint32_t kGrayed = 3;  // grayed and disabled
}  // namespace menu_item_state

/// The record of one menu item; mask says which members are read or written.
struct MenuItemInfo {
  std::uint32_t structSize = 44;  // in bytes
  std::uint32_t mask = 0;         // menu_item_mask::k...
  std::uint32_t state = 0;        // menu_item_state::k...
  std::int32_t id = 0;            // command number
  std::string text = std::string(80, '\0');
};

class NativeWindows {
 public:
  virtual ~NativeWindows() = default;

  virtual bool IsWindow(WindowHandle window) = 0;
  virtual void SetWindowPos(WindowHandle window, const WindowPosition& position) = 0;

  /// The window's own copy of the system menu; revert true puts the standard one back.
  virtual MenuHandle GetSystemMenu(WindowHandle window, bool revert) = 0;

  /// Reads the item with that command number into info. False when there is none.
  virtual bool GetMenuItemInfo(MenuHandle menu, std::int32_t item, MenuItemInfo& info) = 0;

  /// Changes the item with that command number. False when it could not be.
  virtual bool SetMenuItemInfo(MenuHandle menu, std::int32_t item, const MenuItemInfo& info) = 0;

  /// Returns what the window answers, 0 when there is no such window.
  virtual std::intptr_t SendMessage(WindowHandle window, std::uint32_t message,
                                    std::intptr_t wParam, std::intptr_t lParam) = 0;
};

}  // namespace brimwork
