// The pictures of forms: bitmaps and icons out of the resources.
#pragma once

#include <windows.h>

#include <cstdint>
#include <functional>
#include <map>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "environment/form_layout.h"
#include "windows/forms/gdi_object.h"
#include "windows/forms/screen_scale.h"

namespace brimwork::windows {

/// The bytes of a picture's file by its name; empty for a name that there is not.
using PictureFiles = std::function<std::span<const std::uint8_t>(std::string_view name)>;

/// Keeps each bitmap as long as it lives.
class FormPictures {
 public:
  FormPictures(PictureFiles files, ScreenScale scale) : files_(std::move(files)), scale_(scale) {}

  /// A picture in the screen's size, with a colour where it is transparent. Null when there is none
  /// of that name.
  HBITMAP Bitmap(std::string_view name, Color background);

  /// The image of an icon that suits a size best, in that size. Null when there is none.
  IconObject Icon(std::string_view name, int size) const;

 private:
  std::span<const std::uint8_t> File(std::string_view name) const;

  PictureFiles files_;
  ScreenScale scale_;
  std::map<std::pair<std::string, COLORREF>, GdiObject<HBITMAP>> bitmaps_;
};

/// In pixels.
SIZE SizeOf(HBITMAP bitmap);

/// Paints a picture over an area; in its own size, the area's corner is all that counts.
void PaintBitmap(HDC context, HBITMAP bitmap, const RECT& area, bool isStretched);

}  // namespace brimwork::windows
