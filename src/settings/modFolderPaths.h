// Paths of the user's special folders.
#pragma once

#include <string>

#include "environment/environment.h"

namespace brimwork {

inline constexpr int kDesktopFolderId = 0;

/// The path as the shell gives it, without a trailing separator except for a drive root; "" when
/// the shell does not know the folder.
std::string GetSpecialFolderPath(Environment& environment, int folderId);

}  // namespace brimwork
