// Places in a module and in an editor's text.
#include "bench/model/text_positions.h"

#include <gtest/gtest.h>

#include <string>

namespace brimwork::bench {
namespace text_positions_test {

constexpr const char* kNote = "\xF0\x9D\x84\x9E";  // beyond U+FFFF: one character, two units
constexpr const char* kEuro = "\xE2\x82\xAC";

ModuleText Text(const std::string& text) { return ModuleText::FromText(text); }

TEST(TextPositions, UnitsAreCountedAsAnEditorCountsThem) {
  EXPECT_EQ(UnitCount(""), 0u);
  EXPECT_EQ(UnitCount("Dim x"), 5u);
  EXPECT_EQ(UnitCount(std::string("a") + kEuro), 2u);
  EXPECT_EQ(UnitCount(std::string("a") + kNote + "b"), 4u);
}

TEST(TextPositions, AColumnCountsACharacterBeyondTheFirstPlaneAsOne) {
  const std::string line = std::string("a") + kNote + "b";
  EXPECT_EQ(UnitsBefore(line, 1), 0u);
  EXPECT_EQ(UnitsBefore(line, 2), 1u);
  EXPECT_EQ(UnitsBefore(line, 3), 3u);
  EXPECT_EQ(UnitsBefore(line, 4), 4u);
  EXPECT_EQ(UnitsBefore(line, 99), 4u);
  EXPECT_EQ(ColumnBehind(line, 0), 1);
  EXPECT_EQ(ColumnBehind(line, 1), 2);
  EXPECT_EQ(ColumnBehind(line, 2), 2) << "the middle of the pair";
  EXPECT_EQ(ColumnBehind(line, 3), 3);
  EXPECT_EQ(ColumnBehind(line, 4), 4);
  EXPECT_EQ(ColumnBehind(line, 99), 4);
}

TEST(TextPositions, PlainLinesCountInUnits) {
  EXPECT_EQ(UnitsBefore("Dim x", 3), 2u);
  EXPECT_EQ(UnitsBefore("Dim x", 0), 0u);
  EXPECT_EQ(ColumnBehind("Dim x", 3), 4);
  EXPECT_EQ(ColumnBehind("Dim x", 9), 6);
}

TEST(TextPositions, ALineEndIsTwoUnits) {
  const ModuleText text = Text("ab\n\ncd");
  EXPECT_EQ(UnitAt(text, {1, 3}), 2u);
  EXPECT_EQ(UnitAt(text, {2, 1}), 4u);
  EXPECT_EQ(UnitAt(text, {3, 2}), 7u);
  EXPECT_EQ(PlaceAt(text, 2), (LineColumn{1, 3}));
  EXPECT_EQ(PlaceAt(text, 3), (LineColumn{1, 3})) << "between CR and LF";
  EXPECT_EQ(PlaceAt(text, 4), (LineColumn{2, 1}));
  EXPECT_EQ(PlaceAt(text, 7), (LineColumn{3, 2}));
}

TEST(TextPositions, WhatLiesOutsideIsDrawnBack) {
  const ModuleText text = Text("ab\ncd");
  EXPECT_EQ(UnitAt(text, {0, 5}), 0u);
  EXPECT_EQ(UnitAt(text, {1, 9}), 2u);
  EXPECT_EQ(UnitAt(text, {7, 1}), 6u);
  EXPECT_EQ(PlaceAt(text, 99), (LineColumn{2, 3}));
  EXPECT_EQ(UnitAt(Text(""), {3, 3}), 0u);
  EXPECT_EQ(PlaceAt(Text(""), 3), (LineColumn{1, 1}));
}

TEST(TextPositions, EveryPlaceComesBackFromItsUnit) {
  const ModuleText text =
      Text(std::string("Sub a\r\n\r\n  ' ") + kNote + kEuro + kNote + "\r\nEnd");
  for (int line = 1; line <= text.Count(); ++line) {
    for (int column = 1; UnitsBefore(text.Line(line), column) < UnitCount(text.Line(line));
         ++column) {
      const LineColumn place{line, column};
      EXPECT_EQ(PlaceAt(text, UnitAt(text, place)), place);
    }
  }
}

TEST(TextPositions, ASelectionHasBothItsEnds) {
  const ModuleText text = Text("ab\ncd\n");
  const Selection selection{1, 2, 2, 3};
  EXPECT_EQ(UnitsOf(text, selection), (UnitRange{1, 6}));
  EXPECT_EQ(SelectionOf(text, {1, 6}), selection);
}

}  // namespace text_positions_test
}  // namespace brimwork::bench
