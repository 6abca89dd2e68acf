// What the windows ask of the screen as a whole.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>

#include "bench/model/workbench.h"
#include "bench/screen/faces.h"
#include "bench/screen/fonts.h"

namespace brimwork::bench {

class ScreenHost {
 public:
  virtual ~ScreenHost() = default;

  /// Runs an action of the user's when the message that is being answered is done with, so that it
  /// may close the window that asks: with the user's input taken in before and the changes shown
  /// after. What it throws is shown to the user.
  virtual void Do(std::function<void()> action) = 0;

  /// Does what a click on a control of the command does, like Do; nothing while it is disabled.
  virtual void RunCommand(int command) = 0;

  /// The user closes a window, like Do; the focus goes to the one behind it.
  virtual void CloseByUser(const std::shared_ptr<MemoryWindow>& window) = 0;

  /// There is something that TakeInput takes, or that waits to be drawn.
  virtual void NoteInput() = 0;

  /// The keyboard's focus has come to a window, or to one inside it.
  virtual void NoteFocus(const std::shared_ptr<MemoryWindow>& window) = 0;

  /// Opens a menu, like Do; at a place of the screen.
  virtual void OpenMenu(std::shared_ptr<MemoryCommandBarControls> entries, POINT place) = 0;

  /// The main window.
  virtual HWND Owner() const = 0;
};

/// What every window is made with; all of it outlives the windows.
struct ScreenParts {
  Workbench& bench;
  ScreenHost& host;
  const Fonts& fonts;
  Faces& faces;
};

}  // namespace brimwork::bench
