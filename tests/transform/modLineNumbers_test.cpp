#include "transform/modLineNumbers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/opened_module.h"

namespace brimwork {
namespace modLineNumbers_test {

using testing::ElementsAre;
using testing::ElementsAreArray;

TextLines Numbered(const TextLines& body) {
  OpenedModule opened(body);
  AddLineNumbers(opened.Commands(), 1, static_cast<int>(body.size()));
  return opened.Lines();
}

TextLines Unnumbered(const TextLines& body) {
  OpenedModule opened(body);
  RemoveLineNumbers(opened.Commands(), 1, static_cast<int>(body.size()));
  return opened.Lines();
}

std::string Unnumbered(const std::string& line) { return Unnumbered(TextLines{line})[0]; }

// Adding.

TEST(AddLineNumbers, PutsTheModuleLineAndAColonPaddedToSevenCharactersInFront) {
  OpenedModule opened({"a", "b", "c"});
  AddLineNumbers(opened.Commands(), 2, 3);
  EXPECT_THAT(opened.Lines(), ElementsAre("a", "2:     b", "3:     c"));
}

TEST(AddLineNumbers, NumbersBlankLinesAndCommentLinesToo) {
  EXPECT_THAT(Numbered({"", "' note"}), ElementsAre("1:     ", "2:     ' note"));
  TextLines twelve(11, "x");
  twelve.push_back("");
  EXPECT_EQ(Numbered(twelve).back(), "12:    ");
}

TEST(AddLineNumbers, ToARangeThatHoldsNumbersGivesDoubleLabels) {
  EXPECT_THAT(Numbered({"x = 1"}), ElementsAre("1:     x = 1"));
  EXPECT_THAT(Numbered({"1:     x = 1"}), ElementsAre("       1:     x = 1"));
  EXPECT_THAT(Numbered({"10     x = 1"}), ElementsAre("1:     10     x = 1"));
}

TEST(AddLineNumbers, ErrorTrapKeepsColumnOneAndIsNeverNumbered) {
  EXPECT_THAT(Numbered({"ErrorTrap:", "ErrorTrap: x = 1"}),
              ElementsAre("ErrorTrap:", "ErrorTrap: x = 1"));
}

TEST(AddLineNumbers, ErrorTrapKeepsColumnOneBehindAContinuedLineToo) {
  EXPECT_THAT(Numbered({"x = 1 + _", "ErrorTrap:"}), ElementsAre("1:     x = 1 + _", "ErrorTrap:"));
}

TEST(AddLineNumbers, ErrorTrapIsKnownAtColumnOneInItsOwnCaseOnly) {
  EXPECT_THAT(Numbered({"    ErrorTrap:", "errortrap:"}),
              ElementsAre("           ErrorTrap:", "       errortrap:"));
}

TEST(AddLineNumbers, TwoStatementsOnALineGetTheNeutralIndentAndNoNumber) {
  EXPECT_THAT(Numbered({"x = 1: y = 2"}), ElementsAre("       x = 1: y = 2"));
}

TEST(AddLineNumbers, AColonInALiteralOrACommentKeepsTheNumberAway) {
  EXPECT_THAT(Numbered({"x = \"a:b\"", "' see: this"}),
              ElementsAre("       x = \"a:b\"", "       ' see: this"));
}

TEST(AddLineNumbers, LinesThatContinueAStatementGetTheNeutralIndent) {
  EXPECT_THAT(Numbered({"x = 1 + _", "  2 + _", "  3", "y = 1"}),
              ElementsAre("1:     x = 1 + _", "         2 + _", "         3", "4:     y = 1"));
}

TEST(AddLineNumbers, AnUnderscoreWithoutABlankIsTakenForAContinuation) {
  EXPECT_THAT(Numbered({"x = name_", "y = 1"}), ElementsAre("1:     x = name_", "       y = 1"));
}

TEST(AddLineNumbers, TheFirstLineOfTheRangeContinuesNothing) {
  OpenedModule opened({"Sub A( _", "x)", "y = 1"});
  AddLineNumbers(opened.Commands(), 2, 3);
  EXPECT_THAT(opened.Lines(), ElementsAre("Sub A( _", "2:     x)", "3:     y = 1"));
}

TEST(AddLineNumbers, LinesThatHoldCaseAnywhereGetTheNeutralIndent) {
  EXPECT_THAT(Numbered({"Select Case x", "Case 1", "y = UseCase", "Case Else", "End Select"}),
              ElementsAre("       Select Case x", "       Case 1", "       y = UseCase",
                          "       Case Else", "       End Select"));
}

TEST(AddLineNumbers, CaseAndEndSelectAreKnownInTheirOwnCaseOnly) {
  EXPECT_THAT(Numbered({"case 1", "end select"}),
              ElementsAre("1:     case 1", "2:     end select"));
}

TEST(AddLineNumbers, FromAMillionOnNumbersAreWrittenWithoutPadding) {
  std::string text;
  for (int line = 1; line < 999999; ++line) text += "\r\n";
  text += "w = 1\r\nx = 1\r\n";
  OpenedModule opened(TextLines{});
  opened.environment.Open("Long", ModuleText::FromText(std::move(text)));
  AddLineNumbers(opened.Commands(), 999999, 1000000);
  CodeModule& module = *opened.environment.vbe.ActiveCodePane()->Module();
  EXPECT_EQ(module.Lines(999999, 1), "999999:w = 1");
  EXPECT_EQ(module.Lines(1000000, 1), "1000000:x = 1");
}

// Removing.

TEST(RemoveLineNumbers, TakesTheLabelAndTheBlanksBehindIt) {
  EXPECT_EQ(Unnumbered("10:    Dim a As Long"), "Dim a As Long");
  EXPECT_EQ(Unnumbered("10:Dim a As Long  "), "Dim a As Long");
  EXPECT_EQ(Unnumbered("12:    "), "");
}

TEST(RemoveLineNumbers, ALineThatHoldsOnlyTheLabelRetryStaysUnchanged) {
  EXPECT_EQ(Unnumbered("Retry:"), "Retry:");
  EXPECT_EQ(Unnumbered("Retry:  x = 1  "), "Retry:  x = 1  ");
}

TEST(RemoveLineNumbers, ALineWithoutALabelLosesTheBlanksAroundIt) {
  EXPECT_EQ(Unnumbered("    x = 1"), "x = 1");
  EXPECT_EQ(Unnumbered("  x = 1  "), "x = 1");
  EXPECT_EQ(Unnumbered("\tx = 1"), "\tx = 1");
  EXPECT_EQ(Unnumbered("    "), "");
}

TEST(RemoveLineNumbers, AColonBehindTheSeventhCharacterIsNoLabel) {
  EXPECT_EQ(Unnumbered("  123456:x"), "  123456:x");
  EXPECT_EQ(Unnumbered("123456:x = 1"), "x = 1");
  EXPECT_EQ(Unnumbered("1234567:x = 1"), "1234567:x = 1");
  EXPECT_EQ(Unnumbered("  x = name: y = 1"), "x = name: y = 1");
}

TEST(RemoveLineNumbers, TheSevenAreCharactersNotBytes) {
  EXPECT_EQ(Unnumbered("  ÄÖÜäöü: x = 1"), "  ÄÖÜäöü: x = 1");
  EXPECT_EQ(Unnumbered("  ÄÖÜäöüß: x = 1"), "ÄÖÜäöüß: x = 1");
}

TEST(RemoveLineNumbers, ALabelBehindBlanksStaysAsItIs) {
  EXPECT_EQ(Unnumbered("  10: x = 1"), "  10: x = 1");
  EXPECT_EQ(Unnumbered("       x = 1: y = 2"), "       x = 1: y = 2");
}

TEST(RemoveLineNumbers, EveryTextThatIsANumberIsALabel) {
  for (const char* number :
       {"7", "+7", "-7", "1.5", ".5", "5.", "1E2", "1d+2", "&HFF", "&o17", "7 "}) {
    EXPECT_EQ(Unnumbered(std::string(number) + ": x"), "x") << number;
  }
}

TEST(RemoveLineNumbers, OtherTextsAreNoLabels) {
  for (const char* text : {"", "A1", "1A", "1.2.3", "1E", "&H", "&HG", "&O9", "--1", "\t7"}) {
    const std::string line = std::string(text) + ":  x  ";
    EXPECT_EQ(Unnumbered(line), line) << text;
  }
}

TEST(RemoveLineNumbers, OnlyTheFirstLabelIsTaken) {
  EXPECT_EQ(Unnumbered("10:    20:    x = 1"), "20:    x = 1");
}

TEST(RemoveLineNumbers, ChangesTheLinesOfItsRangeOnly) {
  OpenedModule opened({"1: a", "2: b", "3: c"});
  RemoveLineNumbers(opened.Commands(), 2, 2);
  EXPECT_THAT(opened.Lines(), ElementsAre("1: a", "b", "3: c"));
}

TEST(RemoveLineNumbers, TakesAwayWhatAddingPutInFront) {
  const TextLines body{"x = 1", "", "' note", "y = name _", "z"};
  EXPECT_THAT(Unnumbered(Numbered(body)), ElementsAreArray(body));
}

}  // namespace modLineNumbers_test
}  // namespace brimwork
