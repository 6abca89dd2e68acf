// The button faces: one for each face key of the catalogue, fit for a mask, told apart at a glance
// and visible on light toolbars.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <cmath>
#include <filesystem>
#include <map>
#include <set>
#include <string>
#include <utility>

#include "core/catalogue.h"
#include "resources/bitmap_file.h"
#include "resources/picture.h"
#include "resources/pixel_drawing.h"
#include "support/temporary_folder.h"

namespace brimwork {
namespace faces_test {

namespace fs = std::filesystem;
using testing::IsSubsetOf;

constexpr int kFaceSize = 16;

/// The four kinds of exported page share an outline of fifty pixels or so; what is drawn on them
/// has to differ by nearly as many, which is a sixth of a face.
constexpr int kFewestDifferences = 40;

/// As many pixels as the outline of a square of thirteen by thirteen.
constexpr int kFewestClearPixels = 48;

/// From a contrast of two to one upwards a single pixel is seen against what surrounds it; white
/// and yellow, which stay below it on a light toolbar, do not count.
constexpr double kClearContrast = 2.0;

constexpr Colour kOldToolbar = 0xC0C0C0;
constexpr Colour kNewToolbar = 0xF0F0F0;
constexpr Colour kWhite = 0xFFFFFF;

std::string LowerCase(std::string_view key) {
  std::string name(key);
  std::transform(name.begin(), name.end(), name.begin(),
                 [](char letter) { return static_cast<char>(letter - 'A' + 'a'); });
  return name;
}

/// The names of the catalogue's faces, each once.
std::set<std::string> FaceNames() {
  std::set<std::string> names;
  for (const CatalogueEntry& entry : Catalogue()) {
    if (!entry.faceKey.empty()) names.insert(LowerCase(entry.faceKey));
  }
  return names;
}

fs::path FacePath(const std::string& name, const std::string& ending) {
  return ResourcePath("faces/" + name + ending);
}

using Faces = std::map<std::string, PixelPicture>;

Faces AllFaces() {
  Faces faces;
  for (const std::string& name : FaceNames()) faces[name] = ReadBitmap(FacePath(name, ".bmp"));
  return faces;
}

/// How bright a colour looks, 0 for black to 1 for white.
double Luminance(Colour colour) {
  const auto linear = [colour](int shift) {
    const double part = ((colour >> shift) & 0xFF) / 255.0;
    return part <= 0.04045 ? part / 12.92 : std::pow((part + 0.055) / 1.055, 2.4);
  };
  return 0.2126 * linear(16) + 0.7152 * linear(8) + 0.0722 * linear(0);
}

double Contrast(Colour one, Colour other) {
  const auto [darker, lighter] = std::minmax({Luminance(one), Luminance(other)});
  return (lighter + 0.05) / (darker + 0.05);
}

auto CountClearPixels(const PixelPicture& face, Colour background) {
  return std::count_if(face.pixels.begin(), face.pixels.end(), [background](Colour colour) {
    return colour != kTransparent && Contrast(colour, background) >= kClearContrast;
  });
}

TEST(Faces, EveryFaceKeyHasItsDrawingAndItsBitmaps) {
  for (const std::string& name : FaceNames()) {
    for (const std::string ending : {".svg", ".bmp", ".png"}) {
      EXPECT_TRUE(fs::is_regular_file(FacePath(name, ending))) << name << ending;
    }
  }
}

TEST(Faces, TheFolderHoldsNoFaceThatNoEntryHas) {
  std::set<std::string> drawn;
  for (const fs::directory_entry& file : fs::directory_iterator(ResourcePath("faces"))) {
    drawn.insert(file.path().stem().string());
  }
  EXPECT_EQ(drawn, FaceNames());
}

TEST(Faces, EveryFaceIsSixteenPixelsWideAndHigh) {
  for (const auto& [name, face] : AllFaces()) {
    EXPECT_EQ(std::pair(face.width, face.height), std::pair(kFaceSize, kFaceSize)) << name;
  }
}

TEST(Faces, EveryBitmapShowsWhatItsDrawingDraws) {
  for (const auto& [name, face] : AllFaces()) {
    EXPECT_EQ(face, DrawPixels(ReadBytes(FacePath(name, ".svg"))))
        << name << ": run resources/render.sh";
  }
}

TEST(Faces, EveryFaceHasColoursOfThePaletteOnly) {
  for (const auto& [name, face] : AllFaces()) {
    EXPECT_THAT(ColoursOf(face), IsSubsetOf(Palette())) << name;
  }
}

TEST(Faces, EveryFaceIsCutOutOfItsButton) {
  for (const auto& [name, face] : AllFaces()) {
    EXPECT_GT(std::count(face.pixels.begin(), face.pixels.end(), kTransparent), 0) << name;
  }
}

TEST(Faces, NoTwoFacesAreNearlyEqual) {
  const Faces faces = AllFaces();
  for (auto one = faces.begin(); one != faces.end(); ++one) {
    for (auto other = std::next(one); other != faces.end(); ++other) {
      EXPECT_GE(CountDifferences(one->second, other->second), kFewestDifferences)
          << one->first << " and " << other->first;
    }
  }
}

TEST(Faces, EveryFaceStandsOutFromLightToolbars) {
  for (const auto& [name, face] : AllFaces()) {
    for (const Colour toolbar : {kOldToolbar, kNewToolbar, kWhite}) {
      EXPECT_GE(CountClearPixels(face, toolbar), kFewestClearPixels) << name << " on " << toolbar;
    }
  }
}

}  // namespace faces_test
}  // namespace brimwork
