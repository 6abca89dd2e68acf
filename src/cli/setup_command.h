// brimwork setup: the setup dialog at a terminal.
#pragma once

#include "cli/console.h"

namespace brimwork {

/// Asks for each setting and stores them behind the last answer. Returns the exit code; answers
/// that end too early store nothing. Throws UsageError where there is no terminal to ask on, and
/// SettingsFileError.
int AskForSettings(Console& console);

/// Stores what closing the dialog unchanged stores. Returns and throws as above.
int StoreShownSettings(Console& console);

}  // namespace brimwork
