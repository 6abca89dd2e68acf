#include "bench/screen/strokes.h"

#include <algorithm>
#include <cstdlib>

namespace brimwork::bench {
namespace {

/// Steps along the longer side and rounds the shorter one.
void DrawLine(Picture& picture, const Stroke& line) {
  const int width = line.right - line.left;
  const int height = line.bottom - line.top;
  const int steps = std::max({std::abs(width), std::abs(height), 1});
  for (int step = 0; step <= steps; ++step) {
    const auto along = [&](int from, int length) {
      const int doubled = 2 * length * step + (length < 0 ? -steps : steps);
      return from + doubled / (2 * steps);
    };
    picture.At(along(line.left, width), along(line.top, height)) = line.colour;
  }
}

void DrawFrame(Picture& picture, const Stroke& frame) {
  DrawLine(picture, Line(frame.colour, frame.left, frame.top, frame.right, frame.top));
  DrawLine(picture, Line(frame.colour, frame.left, frame.bottom, frame.right, frame.bottom));
  DrawLine(picture, Line(frame.colour, frame.left, frame.top, frame.left, frame.bottom));
  DrawLine(picture, Line(frame.colour, frame.right, frame.top, frame.right, frame.bottom));
}

void DrawArea(Picture& picture, const Stroke& area) {
  for (int y = area.top; y <= area.bottom; ++y) {
    DrawLine(picture, Line(area.colour, area.left, y, area.right, y));
  }
}

}  // namespace

Picture Drawn(std::span<const Stroke> strokes) {
  Picture picture;
  for (const Stroke& stroke : strokes) {
    switch (stroke.shape) {
      case Stroke::Shape::kLine:
        DrawLine(picture, stroke);
        break;
      case Stroke::Shape::kFrame:
        DrawFrame(picture, stroke);
        break;
      case Stroke::Shape::kArea:
        DrawArea(picture, stroke);
        break;
    }
  }
  return picture;
}

}  // namespace brimwork::bench
