#include "windows/desktop/system_native_windows.h"

#include "windows/desktop/handles.h"

namespace brimwork::windows {
namespace {

static_assert(menu_item_mask::kState == MIIM_STATE && menu_item_mask::kId == MIIM_ID);
static_assert(menu_item_state::kGrayed == MFS_GRAYED);

MENUITEMINFOW RecordOf(const MenuItemInfo& info) {
  MENUITEMINFOW record = {};
  record.cbSize = sizeof record;
  record.fMask = info.mask & (MIIM_STATE | MIIM_ID);
  record.fState = info.state;
  record.wID = static_cast<UINT>(info.id);
  return record;
}

}  // namespace

bool SystemNativeWindows::IsWindow(WindowHandle window) { return ::IsWindow(AsHwnd(window)); }

void SystemNativeWindows::SetWindowPos(WindowHandle window, const WindowPosition& position) {
  ::SetWindowPos(AsHwnd(window), reinterpret_cast<HWND>(position.insertAfter), position.x,
                 position.y, position.width, position.height, position.flags);
}

MenuHandle SystemNativeWindows::GetSystemMenu(WindowHandle window, bool revert) {
  return reinterpret_cast<MenuHandle>(::GetSystemMenu(AsHwnd(window), revert));
}

bool SystemNativeWindows::GetMenuItemInfo(MenuHandle menu, std::int32_t item, MenuItemInfo& info) {
  MENUITEMINFOW record = RecordOf(info);
  if (!GetMenuItemInfoW(reinterpret_cast<HMENU>(menu), static_cast<UINT>(item), FALSE, &record)) {
    return false;
  }
  if (info.mask & MIIM_STATE) info.state = record.fState;
  if (info.mask & MIIM_ID) info.id = static_cast<std::int32_t>(record.wID);
  return true;
}

bool SystemNativeWindows::SetMenuItemInfo(MenuHandle menu, std::int32_t item,
                                          const MenuItemInfo& info) {
  const MENUITEMINFOW record = RecordOf(info);
  return SetMenuItemInfoW(reinterpret_cast<HMENU>(menu), static_cast<UINT>(item), FALSE, &record);
}

std::intptr_t SystemNativeWindows::SendMessage(WindowHandle window, std::uint32_t message,
                                               std::intptr_t wParam, std::intptr_t lParam) {
  return SendMessageW(AsHwnd(window), message, static_cast<WPARAM>(wParam), lParam);
}

}  // namespace brimwork::windows
