// What the workbench's own commands do as far as that takes no screen.
#pragma once

#include <string>

namespace brimwork::bench {

class Workbench;

/// Gives the commands their actions: saving, the commands on blocks of lines, the windows and
/// toolbars to show, and new modules. A file that cannot be written is a run-time error to whoever
/// executes the command. The workbench outlives its command bars' use.
void SetUsualActions(Workbench& workbench);

/// Puts the names of what is active and selected into the captions of the commands that act on it.
void ShowNamesInMenus(Workbench& workbench, const std::string& project,
                      const std::string& component);

}  // namespace brimwork::bench
