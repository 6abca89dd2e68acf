// The system's rectangles as bounds, and the other way round.
#pragma once

#include <windows.h>

#include "bench/model/surface.h"

namespace brimwork::bench {

inline RECT RectOf(const Bounds& bounds) {
  return {bounds.left, bounds.top, bounds.left + bounds.width, bounds.top + bounds.height};
}

inline Bounds BoundsOf(const RECT& area) {
  return {static_cast<int>(area.left), static_cast<int>(area.top),
          static_cast<int>(area.right - area.left), static_cast<int>(area.bottom - area.top)};
}

/// Counts from the corner of parent's inner area, or of the screen for null.
inline Bounds BoundsIn(HWND parent, HWND window) {
  RECT area{};
  GetWindowRect(window, &area);
  if (parent != nullptr) MapWindowPoints(nullptr, parent, reinterpret_cast<POINT*>(&area), 2);
  return BoundsOf(area);
}

}  // namespace brimwork::bench
