// Where the process's environment says that the user's own folders are.
#pragma once

#include <filesystem>
#include <string>

namespace brimwork {

/// The value of a variable of the process; "" when it is not set.
std::string EnvironmentVariable(const char* name);

/// $HOME; empty when it is not set to an absolute path.
std::filesystem::path HomeFolder();

/// $XDG_CONFIG_HOME when it is an absolute path, else .config in the home folder; empty when
/// neither is known.
std::filesystem::path ConfigFolder();

}  // namespace brimwork
