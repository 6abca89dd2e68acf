// What makes a window modal: the thread's other windows are disabled, and its messages are handled
// until the window goes.
#pragma once

#include <windows.h>

#include <functional>
#include <vector>

namespace brimwork::windows {

/// Disables the thread's visible top-level windows but one, until the object goes.
class OtherWindowsDisabled {
 public:
  explicit OtherWindowsDisabled(HWND modal);
  OtherWindowsDisabled(const OtherWindowsDisabled&) = delete;
  OtherWindowsDisabled& operator=(const OtherWindowsDisabled&) = delete;
  ~OtherWindowsDisabled();

 private:
  std::vector<HWND> windows_;
};

/// Handles the thread's messages while goesOn says so. False when a message ended the program; it
/// is left for the program's own loop.
bool HandleMessagesWhile(const std::function<bool()>& goesOn);

/// Lets the loop look again whether it goes on.
void WakeMessageLoop();

}  // namespace brimwork::windows
