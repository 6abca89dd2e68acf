// Every entry that the add-in places in the environment's menus, pop-up menus and toolbar, in one
// table in building order. A caption is also its command's name: equal captions run the same
// command.
#pragma once

#include <span>
#include <string_view>

namespace brimwork {

/// The command bar that an entry is built on.
enum class EntryPlace { kAddInsMenu, kCodeWindowPopup, kImmediateWindowPopup, kToolbar };

struct CatalogueEntry {
  int handler;               // number of its click handler; numbers once used are not given again
  std::string_view caption;  // compared exactly
  std::string_view faceKey;  // selects the button's picture; "" for an entry without one
  EntryPlace place;
  std::string_view submenu;  // caption of the submenu that it stands in, "" for none
  bool wholeModule;          // acts on every procedure instead of the one at the caret
  bool hourglass;            // its handler shows the hourglass while the command runs
  bool beginGroup;           // a separator stands above it
};

/// One of the environment's own commands, which stands among the entries of a submenu.
struct BuiltInEntry {
  int id;             // control_id::k...
  int behindHandler;  // the entry that it follows
};

/// All entries in building order: Add-Ins menu, pop-up menus, toolbar.
std::span<const CatalogueEntry> Catalogue();

/// In building order.
std::span<const BuiltInEntry> BuiltInEntries();

/// Whether a separator stands above a submenu.
bool OpensGroup(EntryPlace place, std::string_view submenu);

}  // namespace brimwork
