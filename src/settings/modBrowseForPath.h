// Lets the user pick a folder.
#pragma once

#include <string>
#include <string_view>

#include "environment/environment.h"

namespace brimwork {

/// Shows the folder browser over the owner window (0 is no owner). Returns the path as the shell
/// gives it, so a drive root keeps its trailing separator; "" when the user cancelled or the
/// browser failed.
std::string BrowseForFolder(Environment& environment, std::string_view title, WindowHandle owner);

}  // namespace brimwork
