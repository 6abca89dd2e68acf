// The pictures of the environment's own commands.
#include "bench/screen/glyphs.h"

#include <gtest/gtest.h>

#include <algorithm>
#include <vector>

#include "bench/model/workbench.h"
#include "memory/usual_commands.h"

namespace brimwork::bench {
namespace glyphs_test {

TEST(Glyphs, AreThereForEveryButtonOfTheToolbars) {
  const Workbench bench;
  for (const auto& bar : {bench.bars.standard, bench.bars.edit, bench.bars.debug}) {
    for (const auto& control : bar->Entries()->All()) {
      EXPECT_FALSE(CommandGlyph(control->Command()).empty()) << control->LastCaption();
    }
  }
}

TEST(Glyphs, LookDifferentForDifferentCommands) {
  const Workbench bench;
  std::vector<std::pair<int, Picture>> seen;
  for (const auto& bar : {bench.bars.standard, bench.bars.edit}) {
    for (const auto& control : bar->Entries()->All()) {
      const Picture picture = Drawn(CommandGlyph(control->Command()));
      for (const auto& [command, other] : seen) EXPECT_FALSE(other == picture) << command;
      seen.emplace_back(control->Command(), picture);
    }
  }
}

TEST(Glyphs, AreNotThereForEveryNumber) {
  EXPECT_TRUE(CommandGlyph(command::kNone).empty());
  EXPECT_TRUE(CommandGlyph(31415).empty());
  EXPECT_FALSE(PlainGlyph().empty());
}

TEST(Glyphs, LeaveSomethingToSeeThrough) {
  for (const Tool& tool : ToolboxTools()) {
    const Picture picture = Drawn(tool.glyph);
    EXPECT_TRUE(std::ranges::any_of(picture.points, IsSeeThrough)) << tool.name;
    EXPECT_FALSE(std::ranges::all_of(picture.points, IsSeeThrough)) << tool.name;
  }
}

TEST(Strokes, CoverTheirLastPointsAndNoOthers) {
  const Stroke strokes[] = {Frame(ink::kRed, 1, 2, 4, 5), Dot(ink::kBlue, 15, 15)};
  const Picture picture = Drawn(strokes);
  EXPECT_EQ(picture.At(1, 2), ink::kRed);
  EXPECT_EQ(picture.At(4, 5), ink::kRed);
  EXPECT_EQ(picture.At(2, 3), kSeeThrough);
  EXPECT_EQ(picture.At(15, 15), ink::kBlue);
  EXPECT_EQ(std::ranges::count(picture.points, ink::kRed), 12);
}

TEST(Strokes, DrawSlopesWithoutHoles) {
  const Stroke strokes[] = {Line(ink::kRed, 12, 10, 2, 5)};
  const Picture picture = Drawn(strokes);
  for (int x = 2; x <= 12; ++x) {
    int inked = 0;
    for (int y = 5; y <= 10; ++y) inked += picture.At(x, y) == ink::kRed;
    EXPECT_EQ(inked, 1) << x;
  }
  EXPECT_EQ(picture.At(12, 10), ink::kRed);
  EXPECT_EQ(picture.At(2, 5), ink::kRed);
}

}  // namespace glyphs_test
}  // namespace brimwork::bench
