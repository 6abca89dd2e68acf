#include "memory/disk_entry.h"

#include <windows.h>

#include "memory/utf8_path.h"

namespace brimwork {

std::filesystem::path DiskEntry(const std::filesystem::path& folder, std::string_view name) {
  constexpr std::string_view kWildcards = "*?<>\"";  // some of them undocumented
  if (name.find_first_of(kWildcards) != name.npos) return {};
  WIN32_FIND_DATAW found;
  const HANDLE search = FindFirstFileW((folder / PathOf(name)).c_str(), &found);
  if (search == INVALID_HANDLE_VALUE) return {};
  FindClose(search);
  return folder / found.cFileName;
}

}  // namespace brimwork
