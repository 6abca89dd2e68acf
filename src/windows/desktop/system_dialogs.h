// Message boxes, the folder browser and the save dialog.
#pragma once

#include <windows.h>

#include <functional>
#include <utility>

#include "environment/desktop.h"

// The system's headers give this name to a macro of their own.
#undef GetSaveFileName

namespace brimwork::windows {

/// What the user is asked belongs to a window that the user sees: where the owner of a request is
/// hidden, to the first one above it that is not, else to the editor's main window.
class SystemDialogs : public Dialogs {
 public:
  /// mainWindow: gives the editor's main window, null while it has none.
  explicit SystemDialogs(std::function<HWND()> mainWindow) : mainWindow_(std::move(mainWindow)) {}

  /// Raises error 5 when the system shows no box.
  int MsgBox(std::string_view prompt, int style, std::string_view title) override;
  std::string BrowseForFolder(const BrowseFolderRequest& request) override;
  /// The buffer of the request grows where the path needs more room.
  bool GetSaveFileName(SaveFileRequest& request) override;

 private:
  /// The active one, as for the run time's message boxes; else the main window.
  HWND WindowInUse() const;
  HWND ShownOwner(WindowHandle owner) const;

  std::function<HWND()> mainWindow_;
};

}  // namespace brimwork::windows
