// The menus, pop-up menus and toolbars that a Visual Basic environment usually stands there with.
#pragma once

#include <memory>

#include "memory/memory_vbe.h"
#include "memory/usual_commands.h"

namespace brimwork {

struct UsualCommandBars {
  std::shared_ptr<MemoryCommandBar> menuBar;

  // Menus that the menu bar opens. Those of "Edit" and "Debug" are popups alone: among the bars,
  // these names are the toolbars'.
  std::shared_ptr<MemoryCommandBar> file;  // its control 15 is the first recent project
  std::shared_ptr<MemoryCommandBar> editMenu;
  std::shared_ptr<MemoryCommandBar> view;
  std::shared_ptr<MemoryCommandBar> toolbars;  // which of them are shown; a popup of View's
  std::shared_ptr<MemoryCommandBar> project;
  std::shared_ptr<MemoryCommandBar> format;
  std::shared_ptr<MemoryCommandBar> debugMenu;
  std::shared_ptr<MemoryCommandBar> run;
  std::shared_ptr<MemoryCommandBar> addIns;
  std::shared_ptr<MemoryCommandBar> window;
  std::shared_ptr<MemoryCommandBar> help;

  // Toolbars.
  std::shared_ptr<MemoryCommandBar> standard;
  std::shared_ptr<MemoryCommandBar> edit;
  std::shared_ptr<MemoryCommandBar> debug;  // hidden at first

  // Pop-up menus.
  std::shared_ptr<MemoryCommandBar> codeWindow;
  std::shared_ptr<MemoryCommandBar> codeWindowBreak;
  std::shared_ptr<MemoryCommandBar> immediateWindow;
  std::shared_ptr<MemoryCommandBar> projectWindow;
};

/// Adds them to the environment, behind the menu bar, and hands them back. Their commands do
/// nothing until they are given an action.
UsualCommandBars AddUsualCommandBars(MemoryVbe& vbe);

}  // namespace brimwork
