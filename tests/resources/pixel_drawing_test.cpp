// The drawing of pixel drawings itself: were it lax, the tests of the pictures could not fail.
#include "resources/pixel_drawing.h"

#include <gtest/gtest.h>

#include <stdexcept>
#include <string>

namespace brimwork {
namespace pixel_drawing_test {

constexpr Colour kRed = 0xFF0000;
constexpr Colour kNavy = 0x000080;

std::string Drawing(const std::string& elements) {
  return "<svg width=\"3\" viewBox=\"0 0 3 2\" shape-rendering=\"crispEdges\">\n" + elements +
         "</svg>\n";
}

TEST(PixelDrawing, FillsRectanglesInTheOrderInWhichTheyStand) {
  const PixelPicture picture =
      DrawPixels(Drawing("<title>Two</title>\n"
                         "<path fill=\"#FF0000\" d=\"M0 0h2v2h-2z\"/>\n"
                         "<path fill=\"#000080\" d=\"M1 1h1v1h-1z\n"
                         "  M2 0h1v1h-1z\"/>\n"));
  const PixelPicture expected{3, 2, {kRed, kRed, kNavy, kRed, kNavy, kTransparent}};
  EXPECT_EQ(picture, expected);
}

TEST(PixelDrawing, RefusesHalfPixels) {
  EXPECT_THROW(DrawPixels(Drawing("<path fill=\"#FF0000\" d=\"M0.5 0h1v1h-1z\"/>")),
               std::runtime_error);
}

TEST(PixelDrawing, RefusesSlantedLines) {
  EXPECT_THROW(DrawPixels(Drawing("<path fill=\"#FF0000\" d=\"M0 0l2 2h-2z\"/>")),
               std::runtime_error);
}

TEST(PixelDrawing, RefusesARectangleThatDoesNotClose) {
  EXPECT_THROW(DrawPixels(Drawing("<path fill=\"#FF0000\" d=\"M0 0h2v1h-1z\"/>")),
               std::runtime_error);
}

TEST(PixelDrawing, RefusesARectangleOutsideThePicture) {
  EXPECT_THROW(DrawPixels(Drawing("<path fill=\"#FF0000\" d=\"M2 0h2v1h-2z\"/>")),
               std::runtime_error);
}

TEST(PixelDrawing, RefusesOtherElementsAndNamedColours) {
  EXPECT_THROW(DrawPixels(Drawing("<circle r=\"1\"/>")), std::runtime_error);
  EXPECT_THROW(DrawPixels(Drawing("<path fill=\"red\" d=\"M0 0h1v1h-1z\"/>")), std::runtime_error);
}

TEST(PixelDrawing, RefusesSmoothEdges) {
  EXPECT_THROW(DrawPixels("<svg viewBox=\"0 0 3 2\" width=\"3\"></svg>"), std::runtime_error);
}

}  // namespace pixel_drawing_test
}  // namespace brimwork
