// An environment of plain data for tests that need a desktop but no code module.
#pragma once

#include <memory>
#include <string>
#include <utility>

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

namespace brimwork {

class CaptionedWindow : public Window {
 public:
  explicit CaptionedWindow(std::string caption) : caption_(std::move(caption)) {}
  std::string Caption() override { return caption_; }

 private:
  std::string caption_;
};

/// No module is open; the main window is there once a test has set it.
class EmptyVbe : public VBE {
 public:
  std::shared_ptr<CodePane> ActiveCodePane() override { return nullptr; }
  std::shared_ptr<VBProject> ActiveVBProject() override { return nullptr; }
  std::shared_ptr<Window> MainWindow() override { return mainWindow; }

  std::shared_ptr<Window> mainWindow;
};

struct DesktopFixture {
  EmptyVbe vbe;
  MemoryScreen screen;
  MemoryClipboard clipboard;
  MemoryKeyboard keyboard{clipboard};
  MemoryDialogs dialogs;
  MemoryMessageLoop messageLoop;
  MemoryRegistry registry;
  MemorySettingsArea settingsArea;
  MemoryShellFolders shellFolders;
  FixedClock clock{"11/21/2026", "11/21/2026 10:20:30 AM"};

  /// This fixture's environment, with another dialog or screen where a test brings its own.
  Environment With(Screen& otherScreen, Dialogs& otherDialogs) {
    return {vbe,         otherScreen, clipboard,    keyboard,     otherDialogs,
            messageLoop, registry,    settingsArea, shellFolders, clock};
  }

  Environment environment = With(screen, dialogs);
};

}  // namespace brimwork
