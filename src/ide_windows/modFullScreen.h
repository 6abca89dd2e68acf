// The "Full Screen" command: hides the environment's tool windows and command bars and shows them
// again at its next use. What it hid is remembered in the settings, so that it comes back after the
// add-in was unloaded too.
#pragma once

#include "environment/environment.h"

namespace brimwork {

/// Hides the tool windows and command bars, or shows those again that the last use hid. Run-time
/// errors are passed over; a window or bar that fails stays as it is. Nothing changes while the
/// settings cannot say which of the two it is, and nothing stays hidden that they cannot remember.
void ToggleFullScreen(Environment& environment);

/// Hides every visible window but the main window, code windows and designers, and every visible
/// command bar but the menu bar, and stores what it hid. Raises no run-time error.
void HideToolWindows(Environment& environment);

/// Shows what the settings remember as hidden, and forgets it. False when one of the two lists
/// could not be gone through or forgotten: that one is kept for another try. Raises no run-time
/// error.
bool RestoreToolWindows(Environment& environment);

}  // namespace brimwork
