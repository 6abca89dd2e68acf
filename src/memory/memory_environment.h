// The whole environment as plain data, ready for a command: every part can be looked at and changed
// by whoever made it.
#pragma once

#include <memory>
#include <string>

#include "environment/environment.h"
#include "memory/fixed_clock.h"
#include "memory/memory_clipboard.h"
#include "memory/memory_dialogs.h"
#include "memory/memory_keyboard.h"
#include "memory/memory_message_loop.h"
#include "memory/memory_registry.h"
#include "memory/memory_screen.h"
#include "memory/memory_settings_area.h"
#include "memory/memory_shell_folders.h"
#include "memory/memory_vbe.h"

namespace brimwork {

class MemoryEnvironment {
 public:
  MemoryEnvironment();

  /// Opens a module in a code pane, makes the pane active and gives it the keyboard's focus.
  std::shared_ptr<MemoryCodePane> Open(std::string moduleName, ModuleText text);

  /// The environment's parts, with other settings or another clock where the caller has them.
  Environment Parts() { return Parts(settingsArea, clock); }
  Environment Parts(SettingsArea& settings, Clock& dates);

  MemoryVbe vbe;
  MemoryScreen screen;
  MemoryClipboard clipboard;
  MemoryKeyboard keyboard{clipboard};
  MemoryDialogs dialogs;
  MemoryMessageLoop messageLoop;
  MemoryRegistry registry;
  MemorySettingsArea settingsArea;
  MemoryShellFolders shellFolders;
  FixedClock clock{"11/21/2026", "11/21/2026 10:20:30 AM"};
};

}  // namespace brimwork
