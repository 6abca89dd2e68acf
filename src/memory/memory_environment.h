// The whole environment as plain data, ready for a command: every part can be looked at and changed
// by whoever made it.
#pragma once

#include <memory>
#include <string>

#include "environment/environment.h"
#include "memory/fixed_clock.h"
#include "memory/memory_app.h"
#include "memory/memory_clipboard.h"
#include "memory/memory_dialog_windows.h"
#include "memory/memory_dialogs.h"
#include "memory/memory_form_host.h"
#include "memory/memory_form_screen.h"
#include "memory/memory_keyboard.h"
#include "memory/memory_message_boxes.h"
#include "memory/memory_message_loop.h"
#include "memory/memory_native_windows.h"
#include "memory/memory_registry.h"
#include "memory/memory_rich_text_box.h"
#include "memory/memory_screen.h"
#include "memory/memory_settings_area.h"
#include "memory/memory_shell.h"
#include "memory/memory_shell_folders.h"
#include "memory/memory_text_files.h"
#include "memory/memory_vbe.h"
#include "memory/memory_window_timers.h"
#include "memory/memory_word_processor.h"

namespace brimwork {

class MemoryEnvironment {
 public:
  MemoryEnvironment();

  /// Opens a module in a code pane, makes the pane active and gives it the keyboard's focus.
  std::shared_ptr<MemoryCodePane> Open(std::string moduleName, ModuleText text);

  /// Parts that stand in for this environment's own; null for none.
  struct Replacements {
    VBE* vbe = nullptr;
    Screen* screen = nullptr;
    Keyboard* keyboard = nullptr;
    Dialogs* dialogs = nullptr;
    SettingsArea* settingsArea = nullptr;
    ShellFolders* shellFolders = nullptr;
    Clock* clock = nullptr;
  };

  Environment Parts() { return Parts(Replacements{}); }
  Environment Parts(const Replacements& others);

  MemoryClipboard clipboard;
  MemoryKeyboard keyboard{clipboard};
  MemoryVbe vbe{keyboard, clipboard};
  MemoryScreen screen;
  MemoryDialogs dialogs;
  MemoryMessageLoop messageLoop;
  MemoryRegistry registry;
  MemorySettingsArea settingsArea;
  MemoryShellFolders shellFolders;
  FixedClock clock{"11/21/2026", "11/21/2026 10:20:30 AM"};
  MemoryApp app;
  MemoryNativeWindows nativeWindows;
  MemoryDialogWindows dialogWindows{nativeWindows};
  MemoryWindowTimers windowTimers{nativeWindows};
  MemoryFormHost formHost{nativeWindows};
  MemoryFormScreen formScreen{formHost};
  MemoryMessageBoxes messageBoxes{nativeWindows, windowTimers, keyboard, formScreen};
  MemoryTextFiles textFiles;
  MemoryRichTextBoxes richTextBoxes{textFiles};
  MemoryWordProcessors wordProcessors{clipboard};
  MemoryShell shell;
  MemoryHelpViewer helpViewer;
};

}  // namespace brimwork
