// The pictures beside the faces: icon buttons of the message box designer, logo, application icon.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <cstddef>
#include <map>
#include <string>
#include <utility>
#include <vector>

#include "resources/bitmap_file.h"
#include "resources/picture.h"
#include "resources/pixel_drawing.h"
#include "support/temporary_folder.h"

namespace brimwork {
namespace pictures_test {

using testing::ElementsAre;
using testing::IsSubsetOf;

constexpr int kIconButtonSize = 32;
constexpr Colour kWhite = 0xFFFFFF;

using IconButtons = std::map<std::string, PixelPicture>;

IconButtons AllIconButtons() {
  IconButtons pictures;
  for (const std::string name : {"none", "critical", "exclamation", "information", "question"}) {
    pictures[name] = ReadBitmap(ResourcePath("msgbox/" + name + ".bmp"));
  }
  return pictures;
}

/// Widths of the pictures in an icon file; its directory gives 256 as 0.
std::vector<int> IconWidths(const std::string& icon) {
  constexpr std::size_t kCountAt = 4;
  constexpr std::size_t kDirectoryAt = 6;
  constexpr std::size_t kEntrySize = 16;
  std::vector<int> widths;
  const auto count = static_cast<std::size_t>(icon.at(kCountAt));
  for (std::size_t i = 0; i < count; ++i) {
    const int width = static_cast<unsigned char>(icon.at(kDirectoryAt + i * kEntrySize));
    widths.push_back(width == 0 ? 256 : width);
  }
  return widths;
}

TEST(IconButtons, AreThirtyTwoPixelsWideAndHigh) {
  for (const auto& [name, picture] : AllIconButtons()) {
    EXPECT_EQ(std::pair(picture.width, picture.height), std::pair(kIconButtonSize, kIconButtonSize))
        << name;
  }
}

TEST(IconButtons, ShowWhatTheirDrawingsDraw) {
  for (const auto& [name, picture] : AllIconButtons()) {
    EXPECT_EQ(picture, DrawPixels(ReadBytes(ResourcePath("msgbox/" + name + ".svg"))))
        << name << ": run resources/render.sh";
  }
}

TEST(IconButtons, HaveColoursOfThePaletteOnly) {
  for (const auto& [name, picture] : AllIconButtons()) {
    EXPECT_THAT(ColoursOf(picture), IsSubsetOf(Palette())) << name;
  }
}

TEST(IconButtons, DifferInAQuarterOfTheirPixels) {
  const IconButtons pictures = AllIconButtons();
  for (auto one = pictures.begin(); one != pictures.end(); ++one) {
    for (auto other = std::next(one); other != pictures.end(); ++other) {
      EXPECT_GE(CountDifferences(one->second, other->second), kIconButtonSize * kIconButtonSize / 4)
          << one->first << " and " << other->first;
    }
  }
}

TEST(Logo, StandsOnWhiteInItsBitmap) {
  const PixelPicture logo = ReadBitmap(ResourcePath("splash/logo.bmp"));
  EXPECT_EQ(std::pair(logo.width, logo.height), std::pair(320, 120));
  for (const auto& [x, y] : {std::pair(0, 0), {319, 0}, {0, 119}, {319, 119}}) {
    EXPECT_EQ(logo.At(x, y), kWhite) << x << ", " << y;
  }
  EXPECT_GT(ColoursOf(logo).size(), Palette().size()) << "a drawn logo has smooth edges";
}

TEST(Logo, NeedsNoFont) {
  EXPECT_EQ(ReadBytes(ResourcePath("splash/logo.svg")).find("<text"), std::string::npos);
}

TEST(ApplicationIcon, HasItsFourSizes) {
  EXPECT_THAT(IconWidths(ReadBytes(ResourcePath("icon/brimwork.ico"))),
              ElementsAre(16, 32, 48, 256));
}

TEST(ApplicationIcon, IsDrawnPixelByPixelInItsTwoSmallSizes) {
  for (const int size : {16, 32}) {
    const std::string name = "icon/brimwork" + std::to_string(size) + ".svg";
    const PixelPicture picture = DrawPixels(ReadBytes(ResourcePath(name)));
    EXPECT_EQ(std::pair(picture.width, picture.height), std::pair(size, size));
  }
}

}  // namespace pictures_test
}  // namespace brimwork
