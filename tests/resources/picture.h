// A small picture as the tests look at it: one colour for each pixel, or none.
#pragma once

#include <cstddef>
#include <cstdint>
#include <filesystem>
#include <set>
#include <string_view>
#include <vector>

namespace brimwork {

using Colour = std::uint32_t;  // 0xRRGGBB

/// Magenta, which stands for "transparent" in a bitmap and is never drawn.
inline constexpr Colour kTransparent = 0xFF00FF;

struct PixelPicture {
  int width = 0;
  int height = 0;
  std::vector<Colour> pixels;  // row by row from the top

  Colour& At(int x, int y) { return pixels[static_cast<std::size_t>(y * width + x)]; }
  Colour At(int x, int y) const { return pixels[static_cast<std::size_t>(y * width + x)]; }

  bool operator==(const PixelPicture&) const = default;
};

/// The folder of the pictures, or the path of something in it.
std::filesystem::path ResourcePath(std::string_view name);

/// The colours of the table in resources/README.md.
std::set<Colour> Palette();

/// The colours that a picture shows; transparent pixels show none.
std::set<Colour> ColoursOf(const PixelPicture& picture);

/// The number of pixels that differ between two pictures; a pixel that only one of them draws
/// differs. Throws std::runtime_error when they are not of one size.
int CountDifferences(const PixelPicture& one, const PixelPicture& other);

}  // namespace brimwork
