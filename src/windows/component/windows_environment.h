// The environment as the editor and the system are: what a connection of the add-in works with.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>

#include "environment/environment.h"
#include "win32/com_pointer.h"
#include "windows/component/library_use.h"
#include "windows/desktop/late_bound_word.h"
#include "windows/desktop/registry_settings_area.h"
#include "windows/desktop/rich_edit_box.h"
#include "windows/desktop/system_clipboard.h"
#include "windows/desktop/system_clock.h"
#include "windows/desktop/system_dialog_windows.h"
#include "windows/desktop/system_dialogs.h"
#include "windows/desktop/system_help_viewer.h"
#include "windows/desktop/system_keyboard.h"
#include "windows/desktop/system_message_boxes.h"
#include "windows/desktop/system_native_windows.h"
#include "windows/desktop/system_registry.h"
#include "windows/desktop/system_screen.h"
#include "windows/desktop/system_shell.h"
#include "windows/desktop/system_text_files.h"
#include "windows/desktop/system_window_timers.h"
#include "windows/desktop/thread_messages.h"
#include "windows/forms/native_form_host.h"
#include "windows/forms/native_form_screen.h"
#include "windows/object_model/com_vbe.h"

namespace brimwork::windows {

/// Its windows and references go with it.
class WindowsEnvironment {
 public:
  /// module: the library, whose resources and folder the add-in uses. vbe is not null. use is held
  /// by what the editor holds of the add-in's.
  WindowsEnvironment(HINSTANCE module, win32::ComPointer<IDispatch> vbe, LibraryUse use);

  /// Its parts live as long as this.
  Environment Parts();

  /// What keeper returns is held while an event of a form is handled.
  void KeepAliveBy(std::function<std::shared_ptr<const void>()> keeper);

  /// From now on no call reaches the editor; each raises error 440.
  void LetGo() { vbe_.End(); }

 private:
  /// The editor's main window, null where it does not tell.
  HWND MainWindow();

  ComVbe vbe_;
  SystemScreen screen_;
  SystemClipboard clipboard_;
  ThreadMessages messages_;
  SystemKeyboard keyboard_{messages_};
  SystemDialogs dialogs_;
  SystemRegistry registry_;
  RegistrySettingsArea settingsArea_;
  SystemShellFolders shellFolders_;
  SystemClock clock_;
  ModuleApp app_;
  SystemNativeWindows nativeWindows_;
  SystemDialogWindows dialogWindows_;
  SystemWindowTimers windowTimers_;
  SystemMessageBoxes messageBoxes_;
  NativeFormHost formHost_;
  NativeFormScreen formScreen_;
  RichEditBoxes richTextBoxes_;
  SystemTextFiles textFiles_;
  LateBoundWords wordProcessors_;
  SystemShell shell_;
  SystemHelpViewer helpViewer_;
};

}  // namespace brimwork::windows
