// Small pictures as lists of strokes, which are easier to read and to change than bitmaps.
#pragma once

#include <span>

#include "bench/screen/picture.h"

namespace brimwork::bench {

struct Stroke {
  enum class Shape { kLine, kFrame, kArea };

  Shape shape = Shape::kLine;
  Colour colour = 0;
  int left = 0;  // points from the picture's left and upper edges, the last ones included
  int top = 0;
  int right = 0;
  int bottom = 0;
};

namespace ink {
inline constexpr Colour kBlack = 0xFF000000;
inline constexpr Colour kWhite = 0xFFFFFFFF;
inline constexpr Colour kGrey = 0xFF808080;
inline constexpr Colour kSilver = 0xFFC0C0C0;
inline constexpr Colour kNavy = 0xFF000080;
inline constexpr Colour kBlue = 0xFF2060E0;
inline constexpr Colour kSky = 0xFF9CC4F4;
inline constexpr Colour kRed = 0xFFD02020;
inline constexpr Colour kMaroon = 0xFF800000;
inline constexpr Colour kOlive = 0xFF808000;
inline constexpr Colour kYellow = 0xFFF8E070;
inline constexpr Colour kGreen = 0xFF108030;
inline constexpr Colour kTeal = 0xFF008080;
}  // namespace ink

constexpr Stroke Line(Colour colour, int left, int top, int right, int bottom) {
  return {Stroke::Shape::kLine, colour, left, top, right, bottom};
}
constexpr Stroke Dot(Colour colour, int x, int y) { return Line(colour, x, y, x, y); }
constexpr Stroke Frame(Colour colour, int left, int top, int right, int bottom) {
  return {Stroke::Shape::kFrame, colour, left, top, right, bottom};
}
constexpr Stroke Area(Colour colour, int left, int top, int right, int bottom) {
  return {Stroke::Shape::kArea, colour, left, top, right, bottom};
}

/// Draws them one over the other; strokes lie within the picture.
Picture Drawn(std::span<const Stroke> strokes);

}  // namespace brimwork::bench
