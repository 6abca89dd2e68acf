#include "windows/forms/form_pictures.h"

#include <algorithm>

#include "windows/forms/bitmap_file.h"
#include "windows/forms/form_colors.h"
#include "windows/forms/icon_file.h"

namespace brimwork::windows {
namespace {

GdiObject<HBITMAP> Resized(GdiObject<HBITMAP> bitmap, SIZE size) {
  const SIZE own = SizeOf(bitmap.get());
  if (own.cx == size.cx && own.cy == size.cy) return bitmap;
  const MemoryContext context;
  GdiObject<HBITMAP> resized = EmptyBitmap(size);
  const SelectedObject selected(context, resized.get());
  PaintBitmap(context, bitmap.get(), {0, 0, size.cx, size.cy}, true);
  return resized;
}

}  // namespace

std::span<const std::uint8_t> FormPictures::File(std::string_view name) const {
  return files_ && !name.empty() ? files_(name) : std::span<const std::uint8_t>();
}

HBITMAP FormPictures::Bitmap(std::string_view name, Color background) {
  const COLORREF behind = ShownColor(background);
  const auto [entry, isNew] = bitmaps_.try_emplace({std::string(name), behind});
  if (!isNew) return entry->second.get();
  GdiObject<HBITMAP> bitmap = BitmapOfFile(File(name), behind);
  if (!bitmap) return nullptr;
  const SIZE size = SizeOf(bitmap.get());
  entry->second = Resized(std::move(bitmap), {scale_.ToPixels(size.cx), scale_.ToPixels(size.cy)});
  return entry->second.get();
}

IconObject FormPictures::Icon(std::string_view name, int size) const {
  return IconOfFile(File(name), size);
}

SIZE SizeOf(HBITMAP bitmap) {
  BITMAP record = {};
  if (GetObjectW(bitmap, sizeof record, &record) == 0) return {};
  return {record.bmWidth, record.bmHeight};
}

void PaintBitmap(HDC context, HBITMAP bitmap, const RECT& area, bool isStretched) {
  if (bitmap == nullptr) return;
  const SIZE size = SizeOf(bitmap);
  const int width = isStretched ? area.right - area.left : size.cx;
  const int height = isStretched ? area.bottom - area.top : size.cy;
  const MemoryContext source;
  const SelectedObject selected(source, bitmap);
  SetStretchBltMode(context, HALFTONE);
  SetBrushOrgEx(context, 0, 0, nullptr);
  StretchBlt(context, area.left, area.top, width, height, source, 0, 0, size.cx, size.cy, SRCCOPY);
}

}  // namespace brimwork::windows
