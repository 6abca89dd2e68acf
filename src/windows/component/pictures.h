// The pictures that are linked into the library.
#pragma once

#include <windows.h>

#include <cstdint>
#include <span>
#include <string_view>

namespace brimwork::windows {

/// The bytes of a picture's file by its name ("faces/indent"), as long as the library is loaded.
/// Empty for a name that there is not.
std::span<const std::uint8_t> PictureOf(HINSTANCE module, std::string_view name);

}  // namespace brimwork::windows
