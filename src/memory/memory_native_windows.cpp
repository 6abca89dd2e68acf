#include "memory/memory_native_windows.h"

#include <tuple>
#include <utility>

namespace brimwork {
namespace {

void Apply(const WindowPosition& position, MemoryNativeWindows::NativeWindow& window) {
  WindowArea& area = window.area;
  if (!(position.flags & window_position_flag::kNoMove)) {
    std::tie(area.left, area.top) = std::pair(position.x, position.y);
  }
  if (!(position.flags & window_position_flag::kNoSize)) {
    std::tie(area.width, area.height) = std::pair(position.width, position.height);
  }
  if (position.insertAfter == window_order::kTopMost) window.isTopMost = true;
  if (position.insertAfter == window_order::kNotTopMost) window.isTopMost = false;
}

}  // namespace

void MemoryNativeWindows::SetWindowPos(WindowHandle window, const WindowPosition& position) {
  if (!IsWindow(window)) return;
  windows[window].positions.push_back(position);
  Apply(position, windows[window]);
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

std::intptr_t MemoryNativeWindows::SendMessage(WindowHandle window, std::uint32_t message,
                                               std::intptr_t wParam, std::intptr_t lParam) {
  if (!IsWindow(window)) return 0;
  const SentMessage sent{message, wParam, lParam};
  windows[window].messages.push_back(sent);
  return Answer(window, sent);
}

std::intptr_t MemoryNativeWindows::Answer(WindowHandle window, const SentMessage& message) {
  NativeWindow& receiver = windows[window];
  switch (message.message) {
    case window_message::kGetFont:
      return receiver.font;
    case window_message::kSetFont:
      receiver.font = message.wParam;
      return 0;
    case window_message::kGetButtonState:
      return (receiver.isChecked ? button_state::kChecked : 0) |
             (window == focus ? button_state::kHasFocus : 0);
    default:
      return 0;
  }
}

WindowHandle MemoryNativeWindows::Add(NativeWindow window) {
  windows[++latestHandle_] = std::move(window);
  BringToFront(latestHandle_);
  return latestHandle_;
}

void MemoryNativeWindows::Remove(WindowHandle window) {
  windows.erase(window);
  std::erase_if(windows, [&](const auto& other) { return other.second.parent == window; });
  if (!IsWindow(focus)) focus = 0;
}

void MemoryNativeWindows::BringToFront(WindowHandle window) {
  if (IsWindow(window)) windows[window].cameToFront = ++latestToFront_;
}

bool MemoryNativeWindows::LiesInFrontOf(WindowHandle window, WindowHandle other) const {
  const NativeWindow& a = windows.at(window);
  const NativeWindow& b = windows.at(other);
  return std::tie(a.isTopMost, a.cameToFront) > std::tie(b.isTopMost, b.cameToFront);
}

std::map<std::int32_t, std::uint32_t>* MemoryNativeWindows::MenuOf(MenuHandle menu) {
  const auto window = windows.find(menu);
  return window == windows.end() ? nullptr : &window->second.systemMenu;
}

}  // namespace brimwork
