#include "windows/forms/icon_file.h"

#include <cstdlib>
#include <cstring>
#include <optional>

namespace brimwork::windows {
namespace {

constexpr std::size_t kDirectoryStart = 6;
constexpr std::size_t kDirectoryEntrySize = 16;

std::uint32_t NumberAt(std::span<const std::uint8_t> bytes, std::size_t offset, int size) {
  std::uint32_t number = 0;
  for (int i = 0; i < size; ++i) {
    number |= std::uint32_t{bytes[offset + static_cast<std::size_t>(i)]} << (8 * i);
  }
  return number;
}

/// One image of the file.
struct IconImage {
  int width = 0;
  std::span<const std::uint8_t> bytes;
};

bool IsCompressed(std::span<const std::uint8_t> image) {
  return image.size() >= 4 && NumberAt(image, 0, 4) == 0x474E5089;
}

/// Nothing for an image that is not all there or that older systems cannot read.
std::optional<IconImage> ImageOfEntry(std::span<const std::uint8_t> file, std::size_t entry) {
  constexpr int kLargest = 256;  // is written as 0
  const int width = file[entry] == 0 ? kLargest : file[entry];
  const std::size_t size = NumberAt(file, entry + 8, 4);
  const std::size_t offset = NumberAt(file, entry + 12, 4);
  if (offset > file.size() || file.size() - offset < size) return std::nullopt;
  const auto bytes = file.subspan(offset, size);
  if (IsCompressed(bytes)) return std::nullopt;
  return IconImage{width, bytes};
}

std::optional<IconImage> NearestImage(std::span<const std::uint8_t> file, int size) {
  if (file.size() < kDirectoryStart || NumberAt(file, 0, 4) != 0x10000) return std::nullopt;
  const std::size_t count = NumberAt(file, 4, 2);
  if (file.size() < kDirectoryStart + count * kDirectoryEntrySize) return std::nullopt;
  std::optional<IconImage> nearest;
  for (std::size_t i = 0; i < count; ++i) {
    const auto image = ImageOfEntry(file, kDirectoryStart + i * kDirectoryEntrySize);
    const bool isNearer =
        image && (!nearest || std::abs(image->width - size) < std::abs(nearest->width - size));
    if (isNearer) nearest = image;
  }
  return nearest;
}

}  // namespace

IconObject IconOfFile(std::span<const std::uint8_t> file, int size) {
  constexpr DWORD kIconVersion = 0x30000;
  const auto image = NearestImage(file, size);
  if (!image) return nullptr;
  auto* const bytes = const_cast<BYTE*>(image->bytes.data());
  return IconObject(CreateIconFromResourceEx(bytes, static_cast<DWORD>(image->bytes.size()), TRUE,
                                             kIconVersion, size, size, LR_DEFAULTCOLOR));
}

}  // namespace brimwork::windows
