// What stands on the usual command bars, as tables.
#pragma once

#include <span>
#include <string_view>

namespace brimwork::usual {

struct Entry {
  int command;  // command::k...
  std::string_view caption;
  std::string_view shortcut = {};
  bool beginsGroup = false;
};

// Menus.
extern const std::span<const Entry> kFile;  // its 15th and 16th are recent projects
extern const std::span<const Entry> kEditMenu;
extern const std::span<const Entry> kBookmarks;  // a popup in it
extern const std::span<const Entry> kView;
extern const std::span<const Entry> kToolbars;  // a popup in it
extern const std::span<const Entry> kProject;
extern const std::span<const Entry> kFormat;
extern const std::span<const Entry> kDebugMenu;
extern const std::span<const Entry> kRun;
extern const std::span<const Entry> kAddIns;
extern const std::span<const Entry> kWindow;
extern const std::span<const Entry> kHelp;

// Toolbars.
extern const std::span<const Entry> kStandard;
extern const std::span<const Entry> kEdit;
extern const std::span<const Entry> kDebug;

// Pop-up menus.
extern const std::span<const Entry> kAboveToggle;  // of a code window
extern const std::span<const Entry> kToggle;
extern const std::span<const Entry> kBelowToggle;
extern const std::span<const Entry> kBreakOnly;  // above those while a program is stopped
extern const std::span<const Entry> kImmediatePopup;
extern const std::span<const Entry> kProjectPopup;
extern const std::span<const Entry> kProjectPopupAdd;  // a popup in it

}  // namespace brimwork::usual
