#include "bench/screen/face_dib.h"

#include <windows.h>

#include <cstdint>
#include <cstdlib>
#include <cstring>

#include "bench/screen/picture_painter.h"

namespace brimwork::bench {
namespace {

constexpr LONG kLongestSide = 4096;

std::size_t BytesOfLine(LONG width, WORD bits) {
  return (static_cast<std::size_t>(width) * bits + 31) / 32 * 4;
}

bool IsUnderstood(const BITMAPINFOHEADER& header) {
  switch (header.biBitCount) {
    case 1:
    case 4:
    case 8:
    case 24:
      break;
    case 16:
    case 32:
      break;
    default:
      return false;
  }
  return header.biSize >= sizeof header && header.biSize < kLongestSide && header.biWidth > 0 &&
         header.biWidth <= kLongestSide && header.biHeight != 0 &&
         std::abs(header.biHeight) <= kLongestSide &&
         (header.biCompression == BI_RGB || header.biCompression == BI_BITFIELDS);
}

/// What stands between the header and the bits.
std::optional<std::size_t> BytesOfColours(const BITMAPINFOHEADER& header) {
  const bool hasMasks = header.biCompression == BI_BITFIELDS && header.biSize == sizeof header;
  if (hasMasks) return 3 * sizeof(DWORD);
  if (header.biBitCount > 8)
    return header.biClrUsed > 256 ? std::nullopt
                                  : std::optional(header.biClrUsed * sizeof(RGBQUAD));
  const DWORD all = 1U << header.biBitCount;
  if (header.biClrUsed > all) return std::nullopt;
  return (header.biClrUsed == 0 ? all : header.biClrUsed) * sizeof(RGBQUAD);
}

/// Where the bits begin; nothing when the bytes do not hold them all.
std::optional<std::size_t> StartOfBits(std::span<const std::byte> dib) {
  BITMAPINFOHEADER header;
  if (dib.size() < sizeof header) return std::nullopt;
  std::memcpy(&header, dib.data(), sizeof header);
  if (!IsUnderstood(header)) return std::nullopt;
  const auto colours = BytesOfColours(header);
  if (!colours) return std::nullopt;
  const std::size_t start = header.biSize + *colours;
  const std::size_t bits = BytesOfLine(header.biWidth, header.biBitCount) *
                           static_cast<std::size_t>(std::abs(header.biHeight));
  if (dib.size() < start + bits) return std::nullopt;
  return start;
}

void Append(std::vector<std::byte>& bytes, const void* data, std::size_t size) {
  const auto* first = static_cast<const std::byte*>(data);
  bytes.insert(bytes.end(), first, first + size);
}

std::vector<std::byte> HeaderOf(WORD bits) {
  BITMAPINFOHEADER header{};
  header.biSize = sizeof header;
  header.biWidth = Picture::kSize;
  header.biHeight = Picture::kSize;
  header.biPlanes = 1;
  header.biBitCount = bits;
  header.biSizeImage = static_cast<DWORD>(BytesOfLine(Picture::kSize, bits) * Picture::kSize);
  std::vector<std::byte> bytes;
  Append(bytes, &header, sizeof header);
  return bytes;
}

}  // namespace

std::optional<Picture> PictureOfDib(std::span<const std::byte> dib) {
  const auto start = StartOfBits(dib);
  if (!start) return std::nullopt;
  PictureBitmap bitmap;
  const auto* info = reinterpret_cast<const BITMAPINFO*>(dib.data());
  SetStretchBltMode(bitmap.Context(), COLORONCOLOR);
  const int lines = StretchDIBits(bitmap.Context(), 0, 0, Picture::kSize, Picture::kSize, 0, 0,
                                  info->bmiHeader.biWidth, std::abs(info->bmiHeader.biHeight),
                                  dib.data() + *start, info, DIB_RGB_COLORS, SRCCOPY);
  if (lines <= 0) return std::nullopt;
  return bitmap.OpaquePicture();
}

void ApplyMask(Picture& face, std::span<const std::byte> mask) {
  const auto picture = PictureOfDib(mask);
  if (!picture) return;
  for (std::size_t point = 0; point < face.points.size(); ++point) {
    const bool isWhite = (picture->points[point] & 0xFFFFFF) == 0xFFFFFF;
    if (isWhite) face.points[point] = kSeeThrough;
  }
}

std::vector<std::byte> DibOf(const Picture& face) {
  std::vector<std::byte> dib = HeaderOf(24);
  for (int y = Picture::kSize - 1; y >= 0; --y) {
    for (int x = 0; x < Picture::kSize; ++x) {
      const Colour colour = face.At(x, y);
      Append(dib, &colour, 3);
    }
  }
  return dib;
}

std::vector<std::byte> MaskOf(const Picture& face) {
  std::vector<std::byte> dib = HeaderOf(1);
  constexpr std::uint32_t kBlackAndWhite[] = {0x000000, 0xFFFFFF};
  Append(dib, kBlackAndWhite, sizeof kBlackAndWhite);
  for (int y = Picture::kSize - 1; y >= 0; --y) {
    std::uint8_t line[4] = {};  // two bytes of points and two that fill the line
    for (int x = 0; x < Picture::kSize; ++x) {
      if (IsSeeThrough(face.At(x, y))) {
        line[x / 8] = static_cast<std::uint8_t>(line[x / 8] | 0x80 >> x % 8);
      }
    }
    Append(dib, line, sizeof line);
  }
  return dib;
}

}  // namespace brimwork::bench
