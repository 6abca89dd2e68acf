// Menus made of the model's entries at the moment they open, and the commands that come back from
// them.
#pragma once

#include <windows.h>

#include <functional>
#include <map>
#include <memory>
#include <string>
#include <vector>

#include "bench/screen/control_look.h"
#include "bench/screen/handles.h"
#include "memory/memory_command_bar_controls.h"

namespace brimwork::bench {

using MenuEntries = std::shared_ptr<MemoryCommandBarControls>;

/// An entry that is no control of the model's, such as a window's name in the Window menu.
struct FurtherEntry {
  std::string caption;
  bool isChecked = false;
  std::function<void()> action;
};

class MenuTable {
 public:
  /// further: what a menu of those entries shows at its end, behind a separator.
  MenuTable(const Faces& faces,
            std::function<std::vector<FurtherEntry>(const MemoryCommandBarControls&)> further);

  /// An empty menu that is filled whenever it opens.
  HMENU NewMenu(const MenuEntries& entries);

  /// A main window's menu of the entries.
  MenuHandle NewMenuBar(const MenuEntries& entries);

  /// Has to be called when the system opens a menu. False when it is none of this table's.
  bool Fill(HMENU menu);

  /// What a chosen number stands for; empty for a number of something else.
  std::function<void()> ActionOf(UINT command) const;

  /// Forgets the menus and commands of the table; none may be open.
  void Clear();

 private:
  struct MenuBitmap {
    Picture picture;
    bool enabled;
    GdiObject<HBITMAP> bitmap;
  };

  void Append(HMENU menu, const std::shared_ptr<MemoryCommandBarControl>& control);
  void Append(HMENU menu, const FurtherEntry& entry);
  void AppendSeparator(HMENU menu);
  UINT NewCommand(std::function<void()> action);
  HBITMAP BitmapFor(const Picture& picture, bool enabled);

  const Faces& faces_;
  std::function<std::vector<FurtherEntry>(const MemoryCommandBarControls&)> further_;
  std::map<HMENU, std::weak_ptr<MemoryCommandBarControls>> entries_;
  std::map<UINT, std::function<void()>> actions_;
  UINT latestCommand_ = 0;
  std::vector<MenuBitmap> bitmaps_;
};

/// Opens a menu and returns what was chosen from it; empty for nothing. owner's window procedure
/// hands WM_INITMENUPOPUP to the table.
std::function<void()> ChooseFromMenu(MenuTable& table, const MenuEntries& entries, HWND owner,
                                     POINT place);

}  // namespace brimwork::bench
