// Reopening the environment's most recent project when it has started.
#pragma once

#include <string>
#include <string_view>

#include "environment/environment.h"

namespace brimwork {

/// What the environment's own options say about its start.
struct StartOptions {
  std::string promptForProject;    // "0" where it starts without asking for a project
  std::string templatesDirectory;  // "" when it cannot be read
};

StartOptions ReadStartOptions(Registry& registry);

/// Whether a folder is, or lies in, the folder of a program file; letter case does not count.
bool LiesBesideProgram(std::string_view folder, std::string_view programPath);

/// Picks the first entry of the "File" menu's list of recent projects. Raises RunTimeError when
/// there is none.
void OpenRecentProject(VBE& vbe);

}  // namespace brimwork
