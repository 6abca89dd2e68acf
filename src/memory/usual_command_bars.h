// The menus, pop-up menus and toolbars that a Visual Basic environment usually stands there with,
// as far as add-ins meet them.
#pragma once

#include <memory>

#include "memory/memory_vbe.h"

namespace brimwork {

struct UsualCommandBars {
  std::shared_ptr<MemoryCommandBar> file;    // its control 15 is the first recent project
  std::shared_ptr<MemoryCommandBar> addIns;  // the drop-down menu
  std::shared_ptr<MemoryCommandBar> standard;
  std::shared_ptr<MemoryCommandBar> edit;             // the toolbar
  std::shared_ptr<MemoryCommandBar> debug;            // hidden at first
  std::shared_ptr<MemoryCommandBar> codeWindow;       // the pop-up menu
  std::shared_ptr<MemoryCommandBar> immediateWindow;  // the pop-up menu
};

/// Adds them to the environment, behind the menu bar, and hands them back. Their commands do
/// nothing until they are given an action.
UsualCommandBars AddUsualCommandBars(MemoryVbe& vbe);

}  // namespace brimwork
