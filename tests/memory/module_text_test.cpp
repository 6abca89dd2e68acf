#include "memory/module_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brimwork {
namespace module_text_test {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> LinesIn(const ModuleText& text) {
  std::vector<std::string> lines;
  for (int line = 1; line <= text.Count(); ++line) lines.emplace_back(text.Line(line));
  return lines;
}

/// Four lines a b c d; behind a line hangs the hidden line of its number, 0 before line 1.
ModuleText WithHiddenLines() {
  auto original = std::make_shared<const std::string>("abcd");
  ModuleText text(original);
  text.AppendHidden(0);
  for (HiddenLine line = 1; line <= 4; ++line) {
    text.AppendOriginal(std::string_view(*original).substr(line - 1, 1), LineEnd::kCrLf);
    text.AppendHidden(line);
  }
  return text;
}

TEST(ModuleText, AnEmptyTextHasNoLines) {
  EXPECT_EQ(ModuleText::FromText("").Count(), 0);
  EXPECT_EQ(ModuleText().Count(), 0);
}

TEST(ModuleText, AFinalLineEndEndsTheLastLine) {
  EXPECT_THAT(LinesIn(ModuleText::FromText("a\r\nb\r\n")), ElementsAre("a", "b"));
  EXPECT_THAT(LinesIn(ModuleText::FromText("a\r\nb")), ElementsAre("a", "b"));
  EXPECT_THAT(LinesIn(ModuleText::FromText("a\r\n\r\n")), ElementsAre("a", ""));
  EXPECT_THAT(LinesIn(ModuleText::FromText("\r\n")), ElementsAre(""));
}

TEST(ModuleText, EachLineKeepsItsOwnLineEnd) {
  const ModuleText text = ModuleText::FromText("a\r\nb\nc\r\n");
  EXPECT_EQ(text.End(1), LineEnd::kCrLf);
  EXPECT_EQ(text.End(2), LineEnd::kLf);
  EXPECT_EQ(text.End(3), LineEnd::kCrLf);
}

TEST(ModuleText, AReplacedLineKeepsItsLineEndAndANewOneTakesTheFiles) {
  ModuleText text = ModuleText::FromText("a\r\nb\nc\r\n");
  text.Replace(2, "changed");
  text.Insert(1, "new");
  EXPECT_EQ(text.End(1), LineEnd::kFileStyle);
  EXPECT_EQ(text.End(3), LineEnd::kLf);
}

TEST(ModuleText, InsertPutsEveryLineOfATextBeforeTheLine) {
  ModuleText text = ModuleText::FromText("a\r\nb\r\n");
  text.Insert(2, "x\r\ny\nz");
  EXPECT_THAT(LinesIn(text), ElementsAre("a", "x", "y", "z", "b"));
}

TEST(ModuleText, ATextWithNLineSeparatorsInsertsNPlusOneLines) {
  ModuleText text = ModuleText::FromText("a\r\n");
  text.Insert(1, "\r\nx\r\n");
  EXPECT_THAT(LinesIn(text), ElementsAre("", "x", "", "a"));
}

TEST(ModuleText, InsertBehindTheLastLineAppends) {
  ModuleText text = ModuleText::FromText("a\r\n");
  text.Insert(2, "b");
  EXPECT_THAT(LinesIn(text), ElementsAre("a", "b"));
  ModuleText empty;
  empty.Insert(1, "x");
  EXPECT_THAT(LinesIn(empty), ElementsAre("x"));
}

TEST(ModuleText, ALineReplacedByATextOfSeveralLinesBecomesSeveral) {
  ModuleText text = ModuleText::FromText("a\r\nb\r\nc\r\n");
  text.Replace(2, "x\r\n\r\ny");
  EXPECT_THAT(LinesIn(text), ElementsAre("a", "x", "", "y", "c"));
}

TEST(ModuleText, ALineReplacedByTheEmptyTextStaysALine) {
  ModuleText text = ModuleText::FromText("a\r\nb\r\n");
  text.Replace(1, "");
  EXPECT_THAT(LinesIn(text), ElementsAre("", "b"));
}

TEST(ModuleText, DeleteTakesTheLinesAway) {
  ModuleText text = ModuleText::FromText("a\r\nb\r\nc\r\nd\r\n");
  text.Delete(2, 2);
  EXPECT_THAT(LinesIn(text), ElementsAre("a", "d"));
  text.Delete(1, 2);
  EXPECT_THAT(LinesIn(text), IsEmpty());
}

TEST(ModuleText, JoinedHasCarriageReturnLineFeedBetweenItsLines) {
  EXPECT_EQ(ModuleText::FromText("a\nb\n\n").Joined(), "a\r\nb\r\n");
  EXPECT_EQ(ModuleText().Joined(), "");
}

TEST(ModuleText, JoinsAPartOfItsLines) {
  const ModuleText text = ModuleText::FromText("a\r\nb\nc\r\n\r\nd");
  EXPECT_EQ(text.Joined(1, 1), "a");
  EXPECT_EQ(text.Joined(2, 4), "b\r\nc\r\n");
  EXPECT_EQ(text.Joined(4, 4), "");
  EXPECT_EQ(text.Joined(1, 5), "a\r\nb\r\nc\r\n\r\nd");
}

// Lines that stand behind one another in memory are joined at once; these only seem to.
TEST(ModuleText, JoinsLinesThatWereRewrittenInTheirPlaces) {
  ModuleText text = ModuleText::FromText("a\r\nb\r\nc\r\n");
  text.Replace(1, "first!!");
  text.Replace(2, "second");
  text.Replace(1, "first");
  EXPECT_EQ(text.Joined(), "first\r\nsecond\r\nc");
}

TEST(ModuleText, JoinsWhatIsLeftAroundEdits) {
  ModuleText text = ModuleText::FromText("a\r\nb\r\nc\r\nd\r\ne\r\n");
  text.Delete(2, 1);
  EXPECT_EQ(text.Joined(), "a\r\nc\r\nd\r\ne");
  text.Insert(3, "new\nlines");
  EXPECT_EQ(text.Joined(), "a\r\nc\r\nnew\r\nlines\r\nd\r\ne");
  text.Replace(2, "");
  EXPECT_EQ(text.Joined(1, 3), "a\r\n\r\nnew");
}

TEST(ModuleText, HiddenLinesAreNotJoined) {
  const auto original = std::make_shared<const std::string>("a\r\nHIDDEN\r\nb\r\n");
  ModuleText text(original);
  text.AppendOriginal(std::string_view(*original).substr(0, 1), LineEnd::kCrLf);
  text.AppendHidden(0);
  text.AppendOriginal(std::string_view(*original).substr(11, 1), LineEnd::kCrLf);
  EXPECT_EQ(text.Joined(), "a\r\nb");
}

TEST(ModuleText, HiddenLinesStandBehindTheirVisibleLine) {
  const ModuleText text = WithHiddenLines();
  EXPECT_THAT(text.HiddenBehind(0), ElementsAre(0u));
  EXPECT_THAT(text.HiddenBehind(1), ElementsAre(1u));
  EXPECT_THAT(text.HiddenBehind(4), ElementsAre(4u));
}

TEST(ModuleText, SeveralHiddenLinesBehindOneLineKeepTheirOrder) {
  ModuleText text = WithHiddenLines();
  text.AppendHidden(5);
  text.AppendHidden(6);
  EXPECT_THAT(text.HiddenBehind(4), ElementsAre(4u, 5u, 6u));
}

TEST(ModuleText, HiddenLinesFollowTheirLineThroughInsertionsAndReplacements) {
  ModuleText text = WithHiddenLines();
  text.Insert(2, "new\r\nnewer");
  text.Replace(4, "b2");
  EXPECT_THAT(text.HiddenBehind(1), ElementsAre(1u));
  EXPECT_THAT(text.HiddenBehind(2), IsEmpty());
  EXPECT_THAT(text.HiddenBehind(3), IsEmpty());
  EXPECT_THAT(text.HiddenBehind(4), ElementsAre(2u));
}

TEST(ModuleText, ALineInsertedBeforeTheFirstStandsBehindTheHiddenLinesAboveIt) {
  ModuleText text = WithHiddenLines();
  text.Insert(1, "new");
  EXPECT_THAT(text.HiddenBehind(0), ElementsAre(0u));
  EXPECT_THAT(text.HiddenBehind(1), IsEmpty());
  EXPECT_THAT(text.HiddenBehind(2), ElementsAre(1u));
}

TEST(ModuleText, AHiddenLineWhoseVisibleLineIsDeletedGoesBehindTheLineAbove) {
  ModuleText text = WithHiddenLines();
  text.Delete(2, 1);
  EXPECT_THAT(text.HiddenBehind(1), ElementsAre(1u, 2u));
  EXPECT_THAT(text.HiddenBehind(2), ElementsAre(3u));
}

TEST(ModuleText, HiddenLinesOfSeveralDeletedLinesKeepTheirOrder) {
  ModuleText text = WithHiddenLines();
  text.Delete(2, 3);
  EXPECT_THAT(text.HiddenBehind(1), ElementsAre(1u, 2u, 3u, 4u));
}

TEST(ModuleText, HiddenLinesOfTheFirstLineGoBeforeLineOneWhenItIsDeleted) {
  ModuleText text = WithHiddenLines();
  text.Delete(1, 2);
  EXPECT_THAT(text.HiddenBehind(0), ElementsAre(0u, 1u, 2u));
  EXPECT_THAT(LinesIn(text), ElementsAre("c", "d"));
}

TEST(ModuleText, NoHiddenLineIsLostWhenEveryLineIsDeleted) {
  ModuleText text = WithHiddenLines();
  text.Delete(3, 2);
  text.Delete(1, 2);
  EXPECT_THAT(text.HiddenBehind(0), ElementsAre(0u, 1u, 2u, 3u, 4u));
}

TEST(ModuleText, AHiddenLineWhoseVisibleLineBecomesSeveralGoesBehindTheLast) {
  ModuleText text = WithHiddenLines();
  text.Replace(2, "x\r\ny\r\nz");
  EXPECT_THAT(text.HiddenBehind(2), IsEmpty());
  EXPECT_THAT(text.HiddenBehind(3), IsEmpty());
  EXPECT_THAT(text.HiddenBehind(4), ElementsAre(2u));
  EXPECT_EQ(text.End(2), LineEnd::kFileStyle);
  EXPECT_EQ(text.End(4), LineEnd::kCrLf);
}

TEST(ModuleText, MovedElsewhereKeepsItsLines) {
  ModuleText text = WithHiddenLines();
  text.Replace(1, "changed");
  const ModuleText moved = std::move(text);
  EXPECT_THAT(LinesIn(moved), ElementsAre("changed", "b", "c", "d"));
}

}  // namespace module_text_test
}  // namespace brimwork
