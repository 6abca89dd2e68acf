// brimwork msgbox: the code of a message box.
#pragma once

#include "cli/console.h"
#include "cli/msgbox_options.h"

namespace brimwork {

/// Prints the code, once a project that was named has the module that the code calls. Returns the
/// exit code. Throws UsageError and SourceError; nothing has been printed then.
int PrintMsgBox(const MsgBoxOptions& options, Console& console);

}  // namespace brimwork
