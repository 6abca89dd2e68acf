// Icons out of the bytes of icon files, which hold the same picture in several sizes.
#pragma once

#include <windows.h>

#include <cstdint>
#include <span>

#include "windows/forms/gdi_object.h"

namespace brimwork::windows {

/// The icon in a size, made from the image that is nearest to it. Null for bytes that are no icon
/// file.
IconObject IconOfFile(std::span<const std::uint8_t> file, int size);

}  // namespace brimwork::windows
