#include "windows/desktop/button_face.h"

#include <windows.h>

#include <algorithm>
#include <cstring>

#include "environment/run_time_error.h"

namespace brimwork::windows {
namespace {

constexpr int kInvalidPicture = 481;
constexpr std::size_t kBytesOfAPixel = 3;
constexpr std::uint8_t kMagenta[kBytesOfAPixel] = {0xFF, 0x00, 0xFF};

[[noreturn]] void RefusePicture() {
  throw RunTimeError(kInvalidPicture, "a button's face is no bitmap of 24 bits");
}

/// Rows of bits fill up whole numbers of four bytes.
std::size_t RowSize(LONG width, std::size_t bitsOfAPixel) {
  return (static_cast<std::size_t>(width) * bitsOfAPixel + 31) / 32 * 4;
}

template <class Header>
Header HeaderAt(std::span<const std::uint8_t> bytes, std::size_t offset) {
  if (bytes.size() < offset + sizeof(Header)) RefusePicture();
  Header header;
  std::memcpy(&header, bytes.data() + offset, sizeof header);
  return header;
}

/// The header of a file whose bits are all there.
BITMAPINFOHEADER CheckedHeader(std::span<const std::uint8_t> file) {
  constexpr std::uint16_t kBitmapFile = 0x4D42;
  constexpr LONG kWidest = 256;
  const auto fileHeader = HeaderAt<BITMAPFILEHEADER>(file, 0);
  const auto header = HeaderAt<BITMAPINFOHEADER>(file, sizeof fileHeader);
  const bool isKnown = fileHeader.bfType == kBitmapFile && header.biSize == sizeof header &&
                       header.biBitCount == 24 && header.biCompression == BI_RGB;
  const bool hasSize = header.biWidth > 0 && header.biWidth <= kWidest && header.biHeight > 0 &&
                       header.biHeight <= kWidest;
  const bool isPacked = fileHeader.bfOffBits == sizeof fileHeader + sizeof header;
  if (!isKnown || !hasSize || !isPacked) RefusePicture();
  const std::size_t bits = RowSize(header.biWidth, 24) * static_cast<std::size_t>(header.biHeight);
  if (file.size() < fileHeader.bfOffBits + bits) RefusePicture();
  return header;
}

void Append(PackedBitmap& bitmap, const void* bytes, std::size_t size) {
  const auto* const first = static_cast<const std::uint8_t*>(bytes);
  bitmap.insert(bitmap.end(), first, first + size);
}

PackedBitmap MaskHeader(const BITMAPINFOHEADER& picture) {
  constexpr RGBQUAD kColours[2] = {{0, 0, 0, 0}, {0xFF, 0xFF, 0xFF, 0}};
  BITMAPINFOHEADER header = {};
  header.biSize = sizeof header;
  header.biWidth = picture.biWidth;
  header.biHeight = picture.biHeight;
  header.biPlanes = 1;
  header.biBitCount = 1;
  PackedBitmap mask;
  Append(mask, &header, sizeof header);
  Append(mask, kColours, sizeof kColours);
  return mask;
}

bool IsMagenta(std::span<const std::uint8_t> pixel) { return std::ranges::equal(pixel, kMagenta); }

PackedBitmap MaskRow(std::span<const std::uint8_t> row, LONG width) {
  PackedBitmap bits(RowSize(width, 1));
  for (std::size_t x = 0; x < static_cast<std::size_t>(width); ++x) {
    if (!IsMagenta(row.subspan(x * kBytesOfAPixel, kBytesOfAPixel))) continue;
    bits[x / 8] = static_cast<std::uint8_t>(bits[x / 8] | 0x80 >> x % 8);
  }
  return bits;
}

}  // namespace

ButtonFace FaceOfBitmapFile(std::span<const std::uint8_t> file) {
  const BITMAPINFOHEADER header = CheckedHeader(file);
  const auto packed = file.subspan(sizeof(BITMAPFILEHEADER));
  const std::size_t rowSize = RowSize(header.biWidth, 24);
  ButtonFace face{{packed.begin(), packed.end()}, MaskHeader(header)};
  for (LONG y = 0; y < header.biHeight; ++y) {
    const auto row = packed.subspan(sizeof header + static_cast<std::size_t>(y) * rowSize, rowSize);
    const PackedBitmap bits = MaskRow(row, header.biWidth);
    Append(face.mask, bits.data(), bits.size());
  }
  return face;
}

}  // namespace brimwork::windows
