#include "memory/disk_entry.h"

#include "memory/utf8_path.h"

namespace brimwork {

std::filesystem::path DiskEntry(const std::filesystem::path& folder, std::string_view name) {
  const std::filesystem::path entry = folder / PathOf(name);
  std::error_code ignored;
  return std::filesystem::exists(entry, ignored) ? entry : std::filesystem::path();
}

}  // namespace brimwork
