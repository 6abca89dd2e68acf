// Reads the bitmap files (.bmp) that the add-in carries.
#pragma once

#include <filesystem>

#include "resources/picture.h"

namespace brimwork {

/// Reads an uncompressed bitmap with 24 bits per pixel; throws std::runtime_error, which names the
/// file, for any other.
PixelPicture ReadBitmap(const std::filesystem::path& path);

}  // namespace brimwork
