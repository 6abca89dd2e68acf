#include "windows/forms/bitmap_file.h"

#include <algorithm>
#include <cstddef>
#include <cstring>
#include <optional>

namespace brimwork::windows {
namespace {

constexpr std::uint32_t kMagentaPixel = 0xFF00FF;
constexpr std::uint32_t kPixelColor = 0xFFFFFF;

struct BitmapFile {
  BITMAPINFO info = {};
  const std::uint8_t* bits = nullptr;
};

/// Nothing when the bytes are no bitmap file or when bits are missing.
std::optional<BitmapFile> ReadBitmapFile(std::span<const std::uint8_t> file) {
  constexpr WORD kMark = 0x4D42;
  constexpr LONG kLargest = 4096;
  BITMAPFILEHEADER start;
  BitmapFile bitmap;
  BITMAPINFOHEADER& header = bitmap.info.bmiHeader;
  if (file.size() < sizeof start + sizeof header) return std::nullopt;
  std::memcpy(&start, file.data(), sizeof start);
  std::memcpy(&header, file.data() + sizeof start, sizeof header);
  const bool isKnown = start.bfType == kMark && header.biSize == sizeof header &&
                       header.biBitCount == 24 && header.biCompression == BI_RGB;
  const bool hasSize = header.biWidth > 0 && header.biWidth <= kLargest && header.biHeight > 0 &&
                       header.biHeight <= kLargest;
  if (!isKnown || !hasSize || start.bfOffBits > file.size()) return std::nullopt;
  const auto rowSize = (static_cast<std::size_t>(header.biWidth) * 24 + 31) / 32 * 4;
  const auto size = rowSize * static_cast<std::size_t>(header.biHeight);
  if (file.size() - start.bfOffBits < size) return std::nullopt;
  bitmap.bits = file.data() + start.bfOffBits;
  return bitmap;
}

GdiObject<HBITMAP> PixelBitmap(SIZE size, std::uint32_t*& pixels) {
  BITMAPINFO info = {};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = size.cx;
  info.bmiHeader.biHeight = size.cy;
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  void* bits = nullptr;
  GdiObject<HBITMAP> bitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  pixels = static_cast<std::uint32_t*>(bits);
  return bitmap;
}

/// A pixel holds its bytes the other way round than a colour.
std::uint32_t PixelOf(COLORREF color) {
  return RGB(GetBValue(color), GetGValue(color), GetRValue(color));
}

}  // namespace

GdiObject<HBITMAP> EmptyBitmap(SIZE size) {
  std::uint32_t* pixels = nullptr;
  return PixelBitmap(size, pixels);
}

GdiObject<HBITMAP> BitmapOfFile(std::span<const std::uint8_t> file, COLORREF background) {
  const auto source = ReadBitmapFile(file);
  if (!source) return nullptr;
  const SIZE size = {source->info.bmiHeader.biWidth, source->info.bmiHeader.biHeight};
  std::uint32_t* pixels = nullptr;
  GdiObject<HBITMAP> bitmap = PixelBitmap(size, pixels);
  if (!bitmap) return nullptr;
  const MemoryContext context;
  const SelectedObject selected(context, bitmap.get());
  SetDIBitsToDevice(context, 0, 0, static_cast<DWORD>(size.cx), static_cast<DWORD>(size.cy), 0, 0,
                    0, static_cast<UINT>(size.cy), source->bits, &source->info, DIB_RGB_COLORS);
  GdiFlush();
  std::replace_if(
      pixels, pixels + size.cx * size.cy,
      [](std::uint32_t pixel) { return (pixel & kPixelColor) == kMagentaPixel; },
      PixelOf(background));
  return bitmap;
}

}  // namespace brimwork::windows
