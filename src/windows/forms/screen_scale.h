// The one place where a form's lengths, which are pixels at 96 dots per inch, become the screen's.
#pragma once

#include <windows.h>

#include "environment/form_layout.h"

namespace brimwork::windows {

struct ScreenScale {
  static constexpr int kUsualDotsPerInch = 96;

  int dotsPerInch = kUsualDotsPerInch;

  int ToPixels(int length) const { return MulDiv(length, dotsPerInch, kUsualDotsPerInch); }
  int FromPixels(int pixels) const { return MulDiv(pixels, kUsualDotsPerInch, dotsPerInch); }
  double TwipsPerPixel() const { return 1440.0 / dotsPerInch; }

  /// Neighbours stay neighbours: the edges are scaled, not the size.
  RECT ToPixels(const Place& place) const {
    return {ToPixels(place.left), ToPixels(place.top), ToPixels(place.left + place.width),
            ToPixels(place.top + place.height)};
  }
};

/// That of the user's screen.
ScreenScale CurrentScreenScale();

}  // namespace brimwork::windows
