// Finding an entry of a folder by its name.
#pragma once

#include <filesystem>
#include <string_view>

namespace brimwork {

/// The entry that the disk has under this UTF-8 name, spelled as it is there: a disk of Windows
/// finds it in any letter case. Empty when there is none.
std::filesystem::path DiskEntry(const std::filesystem::path& folder, std::string_view name);

}  // namespace brimwork
