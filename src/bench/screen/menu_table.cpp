#include "bench/screen/menu_table.h"

#include <algorithm>
#include <utility>

#include "bench/screen/picture_painter.h"
#include "win32/wide_text.h"

namespace brimwork::bench {
namespace {

constexpr UINT kFirstCommand = 1000;
constexpr UINT kCommands = 40000;  // so many have numbers at a time

std::wstring TextOf(const ControlLook& look) {
  std::string text = look.caption;
  if (!look.shortcut.empty()) text += "\t" + look.shortcut;
  return win32::Wide(text);
}

/// Appends what item says, with the text.
void Insert(HMENU menu, MENUITEMINFOW& item, std::wstring text) {
  item.cbSize = sizeof item;
  item.fMask |= MIIM_STRING;
  item.dwTypeData = text.data();
  InsertMenuItemW(menu, static_cast<UINT>(GetMenuItemCount(menu)), TRUE, &item);
}

void RemoveAll(HMENU menu) {
  while (GetMenuItemCount(menu) > 0) DeleteMenu(menu, 0, MF_BYPOSITION);
}

}  // namespace

MenuTable::MenuTable(
    const Faces& faces,
    std::function<std::vector<FurtherEntry>(const MemoryCommandBarControls&)> further)
    : faces_(faces), further_(std::move(further)) {}

HMENU MenuTable::NewMenu(const MenuEntries& entries) {
  const HMENU menu = CreatePopupMenu();
  entries_[menu] = entries;
  return menu;
}

MenuHandle MenuTable::NewMenuBar(const MenuEntries& entries) {
  MenuHandle bar(CreateMenu());
  for (const auto& control : entries->All()) Append(bar.get(), control);
  return bar;
}

bool MenuTable::Fill(HMENU menu) {
  const auto known = entries_.find(menu);
  if (known == entries_.end()) return false;
  RemoveAll(menu);
  const MenuEntries entries = known->second.lock();
  if (!entries) return true;
  for (const auto& control : entries->All()) Append(menu, control);
  const auto further = further_(*entries);
  if (!further.empty()) AppendSeparator(menu);
  for (const FurtherEntry& entry : further) Append(menu, entry);
  return true;
}

void MenuTable::Append(HMENU menu, const std::shared_ptr<MemoryCommandBarControl>& control) {
  const ControlLook look = LookInMenu(*control, faces_);
  if (!look.isVisible) return;
  if (look.beginsGroup) AppendSeparator(menu);
  MENUITEMINFOW item{};
  item.fMask = MIIM_STATE | MIIM_ID;
  item.fState =
      (look.isEnabled ? MFS_ENABLED : MFS_GRAYED) | (look.isPressed ? MFS_CHECKED : MFS_UNCHECKED);
  if (look.isPopup) {
    item.fMask |= MIIM_SUBMENU;
    item.hSubMenu = NewMenu(control->Entries());
  } else {
    item.wID = NewCommand([weak = std::weak_ptr(control)] {
      if (const auto clicked = weak.lock()) clicked->Execute();
    });
  }
  if (look.picture && !look.isPressed) {
    item.fMask |= MIIM_BITMAP;
    item.hbmpItem = BitmapFor(*look.picture, look.isEnabled);
  }
  Insert(menu, item, TextOf(look));
}

void MenuTable::Append(HMENU menu, const FurtherEntry& entry) {
  MENUITEMINFOW item{};
  item.fMask = MIIM_STATE | MIIM_ID;
  item.fState = entry.isChecked ? MFS_CHECKED : MFS_UNCHECKED;
  item.wID = NewCommand(entry.action);
  Insert(menu, item, win32::Wide(entry.caption));
}

void MenuTable::AppendSeparator(HMENU menu) {
  if (GetMenuItemCount(menu) > 0) AppendMenuW(menu, MF_SEPARATOR, 0, nullptr);
}

UINT MenuTable::NewCommand(std::function<void()> action) {
  latestCommand_ = (latestCommand_ + 1) % kCommands;
  const UINT command = kFirstCommand + latestCommand_;
  actions_[command] = std::move(action);
  return command;
}

std::function<void()> MenuTable::ActionOf(UINT command) const {
  const auto found = actions_.find(command);
  return found == actions_.end() ? nullptr : found->second;
}

void MenuTable::Clear() {
  entries_.clear();
  actions_.clear();
}

HBITMAP MenuTable::BitmapFor(const Picture& picture, bool enabled) {
  const auto known = std::ranges::find_if(bitmaps_, [&](const MenuBitmap& each) {
    return each.enabled == enabled && each.picture == picture;
  });
  if (known != bitmaps_.end()) return known->bitmap.get();
  bitmaps_.push_back({picture, enabled, MenuBitmapOf(picture, enabled)});
  return bitmaps_.back().bitmap.get();
}

std::function<void()> ChooseFromMenu(MenuTable& table, const MenuEntries& entries, HWND owner,
                                     POINT place) {
  const MenuHandle menu(table.NewMenu(entries));
  const auto command = static_cast<UINT>(
      TrackPopupMenu(menu.get(), TPM_RETURNCMD | TPM_RIGHTBUTTON, static_cast<int>(place.x),
                     static_cast<int>(place.y), 0, owner, nullptr));
  return table.ActionOf(command);
}

}  // namespace brimwork::bench
