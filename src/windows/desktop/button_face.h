// The clipboard's formats for a button's face: the picture, and a mask of what of it is drawn.
#pragma once

#include <cstdint>
#include <span>
#include <vector>

namespace brimwork::windows {

/// A bitmap as the clipboard takes it: a header and the bits behind it, without a file's header.
using PackedBitmap = std::vector<std::uint8_t>;

struct ButtonFace {
  PackedBitmap picture;
  PackedBitmap mask;  // one bit a pixel: black is drawn, white is not
};

/// The face of a bitmap file of 24 bits a pixel, where magenta stands for what is not drawn. Raises
/// error 481 for bytes that are none.
ButtonFace FaceOfBitmapFile(std::span<const std::uint8_t> file);

}  // namespace brimwork::windows
