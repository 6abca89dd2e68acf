// Paths as project files write them, found on a disk that minds the letter case.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace brimwork {

struct ResolvedPath {
  std::filesystem::path path;  // empty when there is no such file
  bool outside = false;        // not below folder, or absolute
};

/// Finds what a project file in folder calls listed: backslashes separate, ".." is taken as
/// written, and a name is found in any letter case (the exact one first).
ResolvedPath ResolveListedPath(const std::filesystem::path& folder, std::string_view listed);

/// The last part of a listed path.
std::string_view ListedFileName(std::string_view listed);

}  // namespace brimwork
