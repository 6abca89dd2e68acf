// Bitmaps out of the bytes of bitmap files.
#pragma once

#include <windows.h>

#include <cstdint>
#include <span>

#include "windows/forms/gdi_object.h"

namespace brimwork::windows {

/// A bitmap of 32 bits a pixel without a picture.
GdiObject<HBITMAP> EmptyBitmap(SIZE size);

/// The picture of a bitmap file, with a colour in the place of magenta, which stands for what is
/// transparent. Null for bytes that are no such file.
GdiObject<HBITMAP> BitmapOfFile(std::span<const std::uint8_t> file, COLORREF background);

}  // namespace brimwork::windows
