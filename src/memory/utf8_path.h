// Paths of the disk from the program's own texts, and back. These are UTF-8 on every system, while
// a path made of a plain string is taken for the user's code page on Windows.
#pragma once

#include <filesystem>
#include <string>
#include <string_view>

namespace brimwork {

/// Damaged UTF-8 gives U+FFFD in its place on Windows.
std::filesystem::path PathOf(std::string_view utf8);

/// What has no UTF-8 in a name on Windows gives U+FFFD. Never throws, unlike path.string().
std::string TextOf(const std::filesystem::path& path);

}  // namespace brimwork
