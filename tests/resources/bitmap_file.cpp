#include "resources/bitmap_file.h"

#include <stdexcept>
#include <string>
#include <string_view>

#include "support/temporary_folder.h"

namespace brimwork {
namespace {

constexpr std::size_t kHeaderSize = 54;
constexpr std::size_t kPixelsStartAt = 10;
constexpr std::size_t kWidthAt = 18;
constexpr std::size_t kHeightAt = 22;
constexpr std::size_t kBitsPerPixelAt = 28;
constexpr std::size_t kCompressionAt = 30;

/// The little-endian number in `size` bytes from `at`.
std::uint32_t NumberAt(std::string_view bytes, std::size_t at, std::size_t size) {
  std::uint32_t number = 0;
  for (std::size_t i = size; i-- > 0;) {
    number = (number << 8) | static_cast<unsigned char>(bytes[at + i]);
  }
  return number;
}

void CheckHeader(std::string_view bytes) {
  if (bytes.size() < kHeaderSize || !bytes.starts_with("BM")) {
    throw std::runtime_error("not a bitmap");
  }
  if (NumberAt(bytes, kBitsPerPixelAt, 2) != 24) throw std::runtime_error("not 24 bits per pixel");
  if (NumberAt(bytes, kCompressionAt, 4) != 0) throw std::runtime_error("compressed");
}

/// Rows stand from the bottom up, each filled to a multiple of four bytes.
PixelPicture PixelsOf(std::string_view bytes) {
  PixelPicture picture{static_cast<int>(NumberAt(bytes, kWidthAt, 4)),
                       static_cast<int>(NumberAt(bytes, kHeightAt, 4)),
                       {}};
  const std::size_t start = NumberAt(bytes, kPixelsStartAt, 4);
  const std::size_t width = static_cast<std::size_t>(picture.width);
  const std::size_t height = static_cast<std::size_t>(picture.height);
  const std::size_t rowSize = (width * 3 + 3) / 4 * 4;
  if (bytes.size() < start + rowSize * height) throw std::runtime_error("cut short");
  for (std::size_t row = height; row-- > 0;) {
    for (std::size_t x = 0; x < width; ++x) {
      picture.pixels.push_back(NumberAt(bytes, start + row * rowSize + x * 3, 3));
    }
  }
  return picture;
}

}  // namespace

PixelPicture ReadBitmap(const std::filesystem::path& path) {
  const std::string bytes = ReadBytes(path);
  try {
    CheckHeader(bytes);
    return PixelsOf(bytes);
  } catch (const std::runtime_error& error) {
    throw std::runtime_error(path.string() + ": " + error.what());
  }
}

}  // namespace brimwork
