// Button faces as bitmaps of the clipboard: a device-independent bitmap with its header, and beside
// it one of a bit for each point, which is white where the face is see-through.
#pragma once

#include <cstddef>
#include <optional>
#include <span>
#include <vector>

#include "bench/screen/picture.h"

namespace brimwork::bench {

/// The bitmap at 16 by 16 points; nothing when the bytes are no whole bitmap.
std::optional<Picture> PictureOfDib(std::span<const std::byte> dib);

/// Makes the face see-through where the mask is white; a mask that is no whole bitmap changes
/// nothing.
void ApplyMask(Picture& face, std::span<const std::byte> mask);

/// See-through points are black.
std::vector<std::byte> DibOf(const Picture& face);
std::vector<std::byte> MaskOf(const Picture& face);

}  // namespace brimwork::bench
