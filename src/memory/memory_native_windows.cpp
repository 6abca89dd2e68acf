#include "memory/memory_native_windows.h"

namespace brimwork {

void MemoryNativeWindows::SetWindowPos(WindowHandle window, const WindowPosition& position) {
  if (IsWindow(window)) windows[window].positions.push_back(position);
}

// A menu has the handle of its window.
MenuHandle MemoryNativeWindows::GetSystemMenu(WindowHandle window, bool /*revert*/) {
  return IsWindow(window) ? window : 0;
}

bool MemoryNativeWindows::GetMenuItemInfo(MenuHandle menu, std::int32_t item, MenuItemInfo& info) {
  const auto* items = MenuOf(menu);
  if (items == nullptr || !items->contains(item)) return false;
  if (info.mask & menu_item_mask::kState) info.state = items->at(item);
  if (info.mask & menu_item_mask::kId) info.id = item;
  return true;
}

bool MemoryNativeWindows::SetMenuItemInfo(MenuHandle menu, std::int32_t item,
                                          const MenuItemInfo& info) {
  auto* items = MenuOf(menu);
  if (items == nullptr || !items->contains(item) || (info.mask & refusedMasks)) return false;
  if (info.mask & menu_item_mask::kState) items->at(item) = info.state;
  if (info.mask & menu_item_mask::kId) {
    auto node = items->extract(item);
    node.key() = info.id;
    items->insert(std::move(node));
  }
  return true;
}

void MemoryNativeWindows::SendMessage(WindowHandle window, std::uint32_t message,
                                      std::intptr_t wParam, std::intptr_t lParam) {
  if (IsWindow(window)) windows[window].messages.push_back({message, wParam, lParam});
}

std::map<std::int32_t, std::uint32_t>* MemoryNativeWindows::MenuOf(MenuHandle menu) {
  const auto window = windows.find(menu);
  return window == windows.end() ? nullptr : &window->second.systemMenu;
}

}  // namespace brimwork
