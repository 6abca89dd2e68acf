#include "cli/vouch.h"

#include <gtest/gtest.h>

#include <string>

#include "support/vouched_texts.h"

namespace brimwork {
namespace vouch_insertions_test {

Lines Without(Lines lines, int line) {
  lines.erase(lines.begin() + line - 1);
  return lines;
}

TEST(VouchHandlers, AHandlerMayBePutIntoAProcedure) {
  EXPECT_EQ(Where(kPlain, kHandled, Handling()), "");
  EXPECT_NE(Where(kPlain, kHandled), "");
}

TEST(VouchHandlers, AHandlerMayBePutInASecondTime) {
  const Lines twice = {"Sub A()",
                       "On Error GoTo ErrorTrap",
                       "On Error GoTo ErrorTrap",
                       "x = 1",
                       "",
                       "Exit Sub",
                       "",
                       "ErrorTrap:",
                       "TEST HANDLE",
                       "",
                       "Exit Sub",
                       "",
                       "ErrorTrap:",
                       "TEST HANDLE",
                       "End Sub"};
  EXPECT_EQ(Where(kHandled, twice, Handling()), "");
}

TEST(VouchHandlers, APartOfTheBlockIsNoHandler) {
  for (int line = 4; line <= 8; ++line) {
    EXPECT_NE(Where(kPlain, Without(kHandled, line), Handling()), "") << "without line " << line;
  }
}

TEST(VouchHandlers, TheBlockStandsInFrontOfTheClosingLineOnly) {
  const Lines early = {
      "Sub A()", "", "Exit Sub", "", "ErrorTrap:", "TEST HANDLE", "x = 1", "End Sub"};
  EXPECT_EQ(Where(kPlain, early, Handling()), "2/2");
  Lines behind = kPlain;
  behind.insert(behind.end(), {"", "Exit Sub", "", "ErrorTrap:", "TEST HANDLE"});
  EXPECT_EQ(Where(kPlain, behind, Handling()), "4/4");
}

TEST(VouchHandlers, AClosingStatementBehindAColonOrOnTheNextLineCounts) {
  const Lines block = {"", "Exit Sub", "", "ErrorTrap:", "TEST HANDLE"};
  for (const Lines& closing : {Lines{"x = 1: End Sub"}, Lines{"x = 1: _", "y = 2: end sub"}}) {
    Lines before = {"Sub A()"};
    Lines after = before;
    after.insert(after.end(), block.begin(), block.end());
    before.insert(before.end(), closing.begin(), closing.end());
    after.insert(after.end(), closing.begin(), closing.end());
    EXPECT_EQ(Where(before, after, Handling()), "");
  }
}

TEST(VouchHandlers, OneJumpForEachProcedure) {
  const Lines before = {"Sub A()", "x", "End Sub", "Sub B()", "y", "End Sub"};
  const std::string jump = "On Error GoTo ErrorTrap";
  EXPECT_EQ(
      Where(before, {"Sub A()", jump, "x", "End Sub", "Sub B()", jump, "y", "End Sub"}, Handling()),
      "");
  EXPECT_EQ(
      Where(before, {"Sub A()", jump, "x", jump, "End Sub", "Sub B()", "y", "End Sub"}, Handling()),
      "3/4");
}

TEST(VouchHandlers, TheJumpDoesNotSplitAStatement) {
  EXPECT_EQ(Where({"Sub A()", "Dim x, _", "y", "End Sub"},
                  {"Sub A()", "Dim x, _", "On Error GoTo ErrorTrap", "y", "End Sub"}, Handling()),
            "3/3");
}

TEST(VouchHandlers, ATemplateThatSwallowsTheClosingLineIsFound) {
  Lines after = kHandled;
  after[7] = "Log _";
  EXPECT_EQ(Where(kPlain, after, Handling({"Log _"})), "3/4");
}

TEST(VouchHandlers, ThePlaceholderStandsForOneProcedurePathThroughout) {
  const auto allowance = Handling({"Log \"PLACE\"", "Show PLACE & PLACE"});
  Lines after = kHandled;
  after[7] = "Log \"P.M.A\"";
  after.insert(after.begin() + 8, "Show P.M.A & P.M.A");
  EXPECT_EQ(Where(kPlain, after, allowance), "");
  after[8] = "Show P.M.A & P.M.B";
  EXPECT_NE(Where(kPlain, after, allowance), "");
  after[7] = "Log \"P.X.A\"";
  after[8] = "Show P.X.A & P.X.A";
  EXPECT_NE(Where(kPlain, after, allowance), "");
}

TEST(VouchHandlers, AHandlerMayBeNumberedAndIndented) {
  Allowance allowance = Handling({"Log PLACE"});
  allowance.labelsMayGo = allowance.labelsMayCome = true;
  EXPECT_EQ(Where({"Sub A()", "10: x = 1", "End Sub"},
                  {"Sub A()", "2:         On Error GoTo ErrorTrap", "3:         x = 1",
                   "4:     ", "5:         Exit Sub",
                   "6:     ", "           ErrorTrap:", "8:         Log P.M.A", "End Sub"},
                  allowance),
            "");
}

TEST(VouchHandlers, ResumeNextComesAlone) {
  Allowance allowance = Handling();
  allowance.handler->resumeNext = true;
  EXPECT_EQ(Where(kPlain, {"Sub A()", "On Error Resume Next", "x = 1", "End Sub"}, allowance), "");
  EXPECT_NE(Where(kPlain, kHandled, allowance), "");
}

TEST(VouchHeaders, AHeaderMayBePutAboveTheModule) {
  const auto allowance = Heading({"' a", "", "' b"});
  EXPECT_EQ(Where({"Option Explicit"}, {"' a", "", "' b", "Option Explicit"}, allowance), "");
  EXPECT_EQ(Where({"Option Explicit"}, {"Option Explicit"}, allowance), "");
  EXPECT_EQ(Where({}, {"' a", "", "' b"}, allowance), "");
}

TEST(VouchHeaders, AHeaderElsewhereOrInPartIsFound) {
  const auto allowance = Heading({"' a", "' b"});
  EXPECT_EQ(Where({"Option Explicit"}, {"' a", "Option Explicit"}, allowance), "1/2");
  EXPECT_EQ(Where({"Option Explicit"}, {"Option Explicit", "' a", "' b"}, allowance), "2/2");
  EXPECT_EQ(Where({"x"}, {"' a", "' b", "' a", "' b", "x"}, allowance), "1/3");
}

TEST(VouchHeaders, AModuleThatBeginsWithTheHeaderMayGetAnotherOrNone) {
  const auto allowance = Heading({"' a", "' b"});
  const Lines once = {"' a", "' b", "x"};
  EXPECT_EQ(Where(once, {"' a", "' b", "' a", "' b", "x"}, allowance), "");
  EXPECT_EQ(Where(once, once, allowance), "");
}

TEST(VouchHeaders, AHeaderMayBeFramedWithTheProcedureItStandsAbove) {
  Allowance allowance = Commenting();
  allowance.headerLines = {"", "' a"};
  EXPECT_EQ(Where({"Sub A()", "End Sub"},
                  {kSeparator, "' a", "Sub A()", "End Sub 'A()", kSeparator}, allowance),
            "");
}

TEST(VouchHeaders, AHeaderThatSwallowsTheFirstLineIsFound) {
  EXPECT_EQ(Where({"x"}, {"' a _", "x"}, Heading({"' a _"})), "1/1");
}

TEST(VouchStamps, AStampMayBePutIntoOneLine) {
  Allowance allowance;
  allowance.stamp = " ' 11/21/2026 ";
  EXPECT_EQ(Where({"x = 1", "y"}, {"x = 1 ' 11/21/2026 ", "y"}, allowance), "");
  EXPECT_EQ(Where({"x = 1"}, {"x = ' 11/21/2026 1"}, allowance), "1/1");
  EXPECT_EQ(Where({"x = 1"}, {"x = ' 11/21/2026  1"}, allowance), "");
  EXPECT_EQ(Where({"x", "y"}, {"x ' 11/21/2026 ", "y ' 11/21/2026 "}, allowance), "2/2");
  EXPECT_EQ(Where({"x", "y"}, {"x ' 11/21/2026 ", "z"}, allowance), "2/2");
  EXPECT_EQ(Where({}, {" ' 11/21/2026 "}, allowance), "");
}

TEST(VouchStamps, AStampBehindAContinuationIsFound) {
  Allowance allowance;
  allowance.stamp = " ' 11/21/2026 ";
  EXPECT_EQ(Where({"x = _", "1"}, {"x = _ ' 11/21/2026 ", "1"}, allowance), "1/1");
}

}  // namespace vouch_insertions_test
}  // namespace brimwork
