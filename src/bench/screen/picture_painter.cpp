#include "bench/screen/picture_painter.h"

#include <algorithm>

#include "bench/screen/faults.h"

namespace brimwork::bench {
namespace {

GdiObject<HBITMAP> NewBitmap(int width, int height, Colour** points) {
  BITMAPINFO info{};
  info.bmiHeader.biSize = sizeof info.bmiHeader;
  info.bmiHeader.biWidth = width;
  info.bmiHeader.biHeight = -height;  // from the top down
  info.bmiHeader.biPlanes = 1;
  info.bmiHeader.biBitCount = 32;
  void* bits = nullptr;
  GdiObject<HBITMAP> bitmap(CreateDIBSection(nullptr, &info, DIB_RGB_COLORS, &bits, nullptr, 0));
  CheckSystem(bitmap.get() != nullptr, "a bitmap could not be made");
  *points = static_cast<Colour*>(bits);
  return bitmap;
}

/// Half see-through grey, as a mixture that AlphaBlend takes.
Colour Paled(Colour colour) {
  if (IsSeeThrough(colour)) return kSeeThrough;
  const Colour brightness =
      ((colour >> 16 & 0xFF) * 3 + (colour >> 8 & 0xFF) * 6 + (colour & 0xFF)) / 10;
  constexpr Colour kAlpha = 0x70;
  const Colour grey = std::min<Colour>(64 + brightness * 3 / 4, 0xFF) * kAlpha / 0xFF;
  return kAlpha << 24 | grey << 16 | grey << 8 | grey;
}

}  // namespace

PictureBitmap::PictureBitmap()
    : bitmap_(NewBitmap(Picture::kSize, Picture::kSize, &points_)),
      selected_(context_.get(), bitmap_.get()) {}

Picture PictureBitmap::OpaquePicture() const {
  GdiFlush();
  Picture picture;
  std::ranges::transform(points_, points_ + picture.points.size(), picture.points.begin(),
                         [](Colour colour) { return colour | 0xFF000000; });
  return picture;
}

void DrawPicture(HDC context, const Picture& picture, int x, int y, bool enabled) {
  PictureBitmap bitmap;
  std::ranges::transform(picture.points, bitmap.Points(), [enabled](Colour colour) {
    return enabled || IsSeeThrough(colour) ? colour : Paled(colour);
  });
  constexpr BLENDFUNCTION kOver = {AC_SRC_OVER, 0, 255, AC_SRC_ALPHA};
  AlphaBlend(context, x, y, Picture::kSize, Picture::kSize, bitmap.Context(), 0, 0, Picture::kSize,
             Picture::kSize, kOver);
}

GdiObject<HBITMAP> BitmapOf(const Picture& picture, COLORREF background) {
  Colour* points = nullptr;
  GdiObject<HBITMAP> bitmap = NewBitmap(Picture::kSize, Picture::kSize, &points);
  const Colour beneath = static_cast<Colour>(GetRValue(background)) << 16 |
                         static_cast<Colour>(GetGValue(background)) << 8 | GetBValue(background);
  std::ranges::transform(picture.points, points, [beneath](Colour colour) {
    return IsSeeThrough(colour) ? beneath : colour & 0xFFFFFF;
  });
  return bitmap;
}

GdiObject<HBITMAP> MenuBitmapOf(const Picture& picture, bool enabled) {
  constexpr int kWidth = Picture::kSize + 6;
  constexpr int kHeight = Picture::kSize + 2;
  Colour* points = nullptr;
  GdiObject<HBITMAP> bitmap = NewBitmap(kWidth, kHeight, &points);
  const MemoryContext context;
  const SelectedObject selected(context.get(), bitmap.get());
  const RECT all = {0, 0, kWidth, kHeight};
  FillRect(context.get(), &all, GetSysColorBrush(COLOR_MENU));
  DrawPicture(context.get(), picture, 1, 1, enabled);
  return bitmap;
}

// An icon's bitmap is black where its mask lets the ground show through.
IconHandle IconOf(const Picture& picture) {
  const GdiObject<HBITMAP> colours = BitmapOf(picture, RGB(0, 0, 0));
  Picture mask;
  std::ranges::transform(picture.points, mask.points.begin(), [](Colour colour) {
    return IsSeeThrough(colour) ? 0xFFFFFFFF : 0xFF000000;
  });
  const GdiObject<HBITMAP> shape = BitmapOf(mask, RGB(0, 0, 0));
  const GdiObject<HBITMAP> bits(CreateBitmap(Picture::kSize, Picture::kSize, 1, 1, nullptr));
  const MemoryContext from;
  const MemoryContext to;
  {
    const SelectedObject source(from.get(), shape.get());
    const SelectedObject target(to.get(), bits.get());
    BitBlt(to.get(), 0, 0, Picture::kSize, Picture::kSize, from.get(), 0, 0, SRCCOPY);
  }
  ICONINFO icon{TRUE, 0, 0, bits.get(), colours.get()};
  return IconHandle(CreateIconIndirect(&icon));
}

}  // namespace brimwork::bench
