// Two small commands on the environment's windows: emptying the Immediate window and closing code
// windows and designers.
#pragma once

#include "environment/environment.h"

namespace brimwork {

/// Empties the Immediate window by the keystrokes a user would press in it; the window then has the
/// focus. Nothing happens while it is hidden or not there. A run-time error ends the command
/// quietly, and before any keystroke when the window does not take the focus.
void ClearImmediateWindow(Environment& environment);

/// Closes every code window and designer but the active one; with includeActive that one too. Tool
/// windows stay. Run-time errors are passed over: a window that fails to close stays open, and
/// where the active window cannot be asked for, none is closed for fear of closing that one.
void CloseCodeWindows(Environment& environment, bool includeActive);

}  // namespace brimwork
