// What the add-in asks of the desktop around the environment: one small interface for each thing,
// so that a test replaces only what it looks at. Every operation may raise RunTimeError.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

namespace brimwork {

using WindowHandle = std::uintptr_t;    // 0 is no window
using InstanceHandle = std::uintptr_t;  // of a loaded program or library

namespace mouse_pointer {
inline constexpr int kDefault = 0;
inline constexpr int kHourglass = 11;
}  // namespace mouse_pointer

class Screen {
 public:
  virtual ~Screen() = default;
  virtual int MousePointer() = 0;
  virtual void SetMousePointer(int pointer) = 0;

  /// The top-level window with exactly this title, 0 when there is none.
  virtual WindowHandle FindWindowByTitle(std::string_view title) = 0;

  /// Freezes the drawing of one window; 0 ends every freeze.
  virtual void LockWindowUpdate(WindowHandle window) = 0;
};

class Clipboard {
 public:
  virtual ~Clipboard() = default;
  virtual std::string GetText() = 0;  // "" when it holds no text
  virtual void SetText(std::string_view text) = 0;
  /// Puts the picture of a resource there.
  virtual void SetData(std::string_view picture) = 0;
  virtual void Clear() = 0;
};

class Keyboard {
 public:
  virtual ~Keyboard() = default;

  /// Sends keystrokes in SendKeys notation ("^(v)") to the focused window; with wait, returns only
  /// after they were processed.
  virtual void SendKeys(std::string_view keys, bool wait) = 0;
};

namespace message_box {
inline constexpr int kOkOnly = 0;
inline constexpr int kYesNo = 4;
inline constexpr int kCritical = 16;
inline constexpr int kQuestion = 32;
inline constexpr int kInformation = 64;
}  // namespace message_box

/// What the folder browser is asked: its owner window, title and BIF_ flags.
struct BrowseFolderRequest {
  WindowHandle owner = 0;
  std::string title;
  std::uint32_t flags = 0;
};

/// The record that a save dialog works on.
struct SaveFileRequest {
  std::uint32_t structSize = 0;  // in bytes
  WindowHandle owner = 0;
  InstanceHandle instance = 0;
  std::string filter;          // description, NUL, pattern; "" for none
  int filterIndex = 0;         // 0: no initial filter
  std::string file;            // the buffer that takes the path, filled up with NULs
  std::uint32_t fileSize = 0;  // of the buffer, in characters
  std::string initialFolder;
  std::string title;
  std::uint32_t flags = 0;       // OFN_ flags
  std::string defaultExtension;  // without a dot
};

class Dialogs {
 public:
  virtual ~Dialogs() = default;

  /// Shows a modal message box; style is the sum of buttons and icon. Returns the button's number.
  virtual int MsgBox(std::string_view prompt, int style, std::string_view title) = 0;

  /// Lets the user pick a folder. Returns its path, "" when the user cancelled.
  virtual std::string BrowseForFolder(const BrowseFolderRequest& request) = 0;

  /// Lets the user say where to save. True with the path at the start of request.file, ended by a
  /// NUL; false when the user cancelled or the dialog could not be shown.
  virtual bool GetSaveFileName(SaveFileRequest& request) = 0;
};

/// The add-in's own program file.
class App {
 public:
  virtual ~App() = default;
  virtual std::string Path() = 0;  // its folder
  virtual InstanceHandle Instance() = 0;
};

class MessageLoop {
 public:
  virtual ~MessageLoop() = default;
  virtual void DoEvents() = 0;
};

class ShellFolders {
 public:
  virtual ~ShellFolders() = default;

  /// Path of a special folder (0 is the desktop); raises error 5 when the shell knows none.
  virtual std::string SpecialFolderPath(int folderId) = 0;
};

/// The run time's per-user settings area: text values under application, section and key.
class SettingsArea {
 public:
  virtual ~SettingsArea() = default;
  virtual std::string GetSetting(std::string_view application, std::string_view section,
                                 std::string_view key, std::string_view defaultValue) = 0;
  virtual void SaveSetting(std::string_view application, std::string_view section,
                           std::string_view key, std::string_view value) = 0;
};

/// Today and now, written as the user's locale writes them.
class Clock {
 public:
  virtual ~Clock() = default;
  virtual std::string ShortDate() = 0;
  virtual std::string GeneralDate() = 0;  // date and time
};

}  // namespace brimwork
