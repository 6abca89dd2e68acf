// Pictures on drawing contexts and as the system's bitmaps.
#pragma once

#include <windows.h>

#include "bench/screen/handles.h"
#include "bench/screen/picture.h"

namespace brimwork::bench {

/// A bitmap of a picture's size that is drawn on and read.
class PictureBitmap {
 public:
  PictureBitmap();

  HDC Context() const { return context_.get(); }
  Colour* Points() const { return points_; }
  HBITMAP get() const { return bitmap_.get(); }

  /// What is drawn there, without see-through points.
  Picture OpaquePicture() const;

 private:
  MemoryContext context_;
  Colour* points_ = nullptr;  // of the bitmap
  GdiObject<HBITMAP> bitmap_;
  SelectedObject selected_;
};

/// Pale and grey when it is not enabled.
void DrawPicture(HDC context, const Picture& picture, int x, int y, bool enabled);

/// See-through points get the colour.
GdiObject<HBITMAP> BitmapOf(const Picture& picture, COLORREF background);

/// For a menu, which draws a bitmap as it is and the text right behind it.
GdiObject<HBITMAP> MenuBitmapOf(const Picture& picture, bool enabled);

IconHandle IconOf(const Picture& picture);

}  // namespace brimwork::bench
