// Draws the pixel drawings among the pictures: SVG files that hold nothing but rectangles on whole
// pixels, as resources/README.md says.
#pragma once

#include <string_view>

#include "resources/picture.h"

namespace brimwork {

/// Draws the text of an SVG file; what it leaves free is transparent. Throws std::runtime_error
/// for anything that could give a half-covered pixel or stand outside the picture.
PixelPicture DrawPixels(std::string_view svg);

}  // namespace brimwork
