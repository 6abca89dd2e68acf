// Paths of the disk from the program's own texts, which are UTF-8 on every system.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace brimwork {

/// path.string() is the way back.
inline std::filesystem::path PathOf(std::string_view utf8) {
  return std::u8string(utf8.begin(), utf8.end());
}

}  // namespace brimwork
