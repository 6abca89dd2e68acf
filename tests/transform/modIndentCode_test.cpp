#include "transform/modIndentCode.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "environment/run_time_error.h"
#include "support/opened_module.h"

namespace brimwork {
namespace modIndentCode_test {

using testing::ElementsAre;
using testing::ElementsAreArray;

constexpr const char* kOptionsKey = "Software\\Microsoft\\VBA\\Microsoft Visual Basic";

/// The lines after indenting all of them, as a procedure's body is.
TextLines Indented(const TextLines& body) {
  OpenedModule opened(body);
  IndentCode(opened.Commands(), 1, static_cast<int>(body.size()));
  return opened.Lines();
}

TextLines IndentedWithTabWidth(std::string_view tabWidth, const TextLines& body) {
  OpenedModule opened(body);
  opened.environment.registry.SetValue(kHiveCurrentUser, kOptionsKey, "TabWidth", kRegistrySz,
                                       std::string(tabWidth) + '\0');
  IndentCode(opened.Commands(), 1, static_cast<int>(body.size()));
  return opened.Lines();
}

/// Indents a body that is written here as it is to come out; only its indents are dropped first.
void ExpectKept(const TextLines& expected) {
  TextLines flat;
  for (const std::string& line : expected)
    flat.push_back(line.substr(std::min(line.size(), line.find_first_not_of(' '))));
  EXPECT_THAT(Indented(flat), ElementsAreArray(expected));
}

// The indent unit.

TEST(IndentCode, WithoutATabWidthABodyLineInOneIfBlockGetsEightBlanks) {
  EXPECT_THAT(Indented({"If a Then", "b = 1", "End If"}),
              ElementsAre("    If a Then", "        b = 1", "    End If"));
}

TEST(IndentCode, TheUnitIsTheEnvironmentsTabWidth) {
  EXPECT_THAT(IndentedWithTabWidth("2", {"If a Then", "b = 1", "End If"}),
              ElementsAre("  If a Then", "    b = 1", "  End If"));
  EXPECT_THAT(IndentedWithTabWidth("0", {"If a Then", "b = 1", "End If"}),
              ElementsAre("If a Then", "b = 1", "End If"));
}

TEST(IndentCode, TheUnitMayBeStoredAsANumber) {
  OpenedModule opened({"x = 1"});
  opened.environment.registry.SetDword(kHiveCurrentUser, kOptionsKey, "TabWidth", 10);
  IndentCode(opened.Commands(), 1, 1);
  EXPECT_THAT(opened.Lines(), ElementsAre("          x = 1"));
}

TEST(IndentCode, AnEmptyTabWidthCountsAsMissing) {
  EXPECT_THAT(IndentedWithTabWidth("", {"x = 1"}), ElementsAre("    x = 1"));
}

TEST(IndentCode, ATabWidthThatIsNoNumberEndsTheRunBeforeItStarts) {
  EXPECT_THROW(IndentedWithTabWidth("wide", {"x = 1"}), RunTimeError);
}

// Blanks and tabs.

TEST(IndentCode, BlankAndWhitespaceOnlyLinesComeOutEmpty) {
  EXPECT_THAT(Indented({"", "   ", "\t", " \t \t ", "x = 1"}),
              ElementsAre("", "", "", "", "    x = 1"));
}

TEST(IndentCode, ALineThatStartsWithATabFollowedByBlanksKeepsThoseBlanks) {
  EXPECT_THAT(Indented({"\t  x = 1", "\t\tx = 1", "  \tx = 1"}),
              ElementsAre("      x = 1", "    x = 1", "    x = 1"));
}

TEST(IndentCode, BlanksAtTheEndOfALineAreDropped) {
  EXPECT_THAT(Indented({"  x = 1  "}), ElementsAre("    x = 1"));
}

TEST(IndentCode, OnlyTheLinesOfTheRangeAreRewritten) {
  OpenedModule opened({"Sub A()", "x = 1", "y = 1", "End Sub"});
  IndentCode(opened.Commands(), 2, 2);
  EXPECT_THAT(opened.Lines(), ElementsAre("Sub A()", "    x = 1", "y = 1", "End Sub"));
}

TEST(IndentCode, AnEmptyRangeChangesNothing) {
  OpenedModule opened({"Sub A()", "End Sub"});
  IndentCode(opened.Commands(), 2, 1);
  IndentCode(opened.Commands(), 0, -1);
  EXPECT_THAT(opened.Lines(), ElementsAre("Sub A()", "End Sub"));
}

// Blocks.

TEST(IndentCode, ASingleLineIfLeavesTheLevelUnchanged) {
  ExpectKept({"    If a Then b = 1", "    c = 1"});
  ExpectKept({"    If a Then b = 1 Else c = 1", "    d = 1"});
}

TEST(IndentCode, AnIfWithNothingButACommentBehindThenRaisesTheLevel) {
  ExpectKept({"    If a Then", "        b = 1", "    End If"});
  ExpectKept({"    If a Then ' note", "        b = 1", "    End If"});
  ExpectKept({"    If a Then' note", "        b = 1", "    End If"});
}

TEST(IndentCode, AnIfWhoseThenIsFollowedByAColonRaisesTheLevel) {
  ExpectKept({"    If a Then:", "        b = 1", "    End If"});
}

TEST(IndentCode, ElseAndElseIfStandOneUnitLeftOfWhatTheyGovern) {
  ExpectKept({"    If a Then", "        b = 1", "    ElseIf c Then", "        d = 1", "    Else",
              "        e = 1", "    End If"});
}

TEST(IndentCode, ConditionalCompilationIsIndentedAsItsBlocksAre) {
  ExpectKept({"    #If A Then", "        b = 1", "    #ElseIf C Then", "        d = 1", "    #Else",
              "        e = 1", "    #End If"});
}

TEST(IndentCode, SelectCaseGivesIndentsOfOneTwoThreeAndOneUnits) {
  ExpectKept({"    Select Case x", "        Case 1", "            y = 1", "        Case Else",
              "            y = 2", "    End Select", "    z = 1"});
}

TEST(IndentCode, LoopsAndWithRaiseTheLevelByOne) {
  ExpectKept({"    For i = 1 To 2", "        Do While a", "            While b",
              "                With c", "                    .d = 1", "                End With",
              "            Wend", "        Loop", "    Next i"});
  ExpectKept({"    For Each c In d", "        e = 1", "    Next", "    Do", "        f = 1",
              "    Loop Until g"});
}

TEST(IndentCode, TypeAndEnumRaiseTheLevelByOne) {
  ExpectKept({"    Private Type T", "        x As Long", "    End Type", "    Public Enum E",
              "        f", "    End Enum"});
}

TEST(IndentCode, KeywordsOfBlocksAreReadInAnyCaseButIfOnlyAsWritten) {
  ExpectKept({"    do", "        x = 1", "    LOOP"});
  ExpectKept({"    if a then b = 1", "        c = 1", "    end if"});
}

TEST(IndentCode, ProceduresInTheRangeRaiseAndLowerTheLevel) {
  ExpectKept({"    Private Static Function A()", "        x = 1", "    End Function"});
}

// Literals, comments and several statements on a line.

TEST(IndentCode, ALiteralThatHoldsEndIfDoesNotChangeTheLevel) {
  ExpectKept({"    If a Then", "        b = \"x: End If \"", "        c = 1", "    End If"});
  ExpectKept({"    b = \"x: Do \"", "    c = 1"});
}

TEST(IndentCode, ACommentBehindCodeDoesNotChangeTheLevel) {
  ExpectKept({"    x = 1 ' note: Do x", "    y = 1"});
}

TEST(IndentCode, ALoneQuoteKeepsTheRestOfTheLine) {
  ExpectKept({"    x = \"open: Do While y", "        y = 1"});
}

TEST(IndentCode, BlocksThatOpenAndCloseOnOneLineLeaveTheLevelUnchanged) {
  ExpectKept({"    For i = 1 To 2: x = i: Next i", "    y = 1"});
  ExpectKept({"    While a: x = 1: Wend", "    y = 1"});
}

TEST(IndentCode, AKeywordDirectlyBeforeAColonOpensNothing) {
  ExpectKept({"    Do: x = 1: Loop", "y = 1"});
}

TEST(IndentCode, ABlockOpenedBehindAColonRaisesTheLevel) {
  ExpectKept({"    x = 1: Do", "        y = 1", "    Loop"});
}

TEST(IndentCode, ABlockClosedBehindAColonLowersTheLevelBelowItsLine) {
  ExpectKept({"    Do", "        x = 1: Loop", "    y = 1"});
}

TEST(IndentCode, LabelsAreIndentedAtTheCurrentLevel) {
  ExpectKept({"    ErrorTrap:", "    x = 1"});
  ExpectKept({"    Do", "        Retry:", "    Loop"});
}

// Continued statements.

TEST(IndentCode, LinesThatContinueAStatementStandOneUnitFurtherIn) {
  ExpectKept({"    x = 1 + _", "        2 + _", "        3", "    y = 1"});
}

TEST(IndentCode, AnIfContinuedOverLinesOpensItsBlockWhereItsThenStands) {
  ExpectKept({"    If a And _", "        b Then", "        c = 1", "    End If", "    d = 1"});
  ExpectKept({"    If a And _", "        b Then c = 1", "    d = 1"});
}

TEST(IndentCode, AnIfThatIsPendingEndsWithALineThatIsNotContinued) {
  ExpectKept({"    If a And _", "        b", "    Do", "        c = 1", "    Loop"});
}

// Blocks that the range does not hold whole.

TEST(IndentCode, ABlockLeftOpenIndentsWhatFollows) {
  ExpectKept({"    If a Then", "        b = 1"});
}

TEST(IndentCode, OneCloserTooManyStandsAtTheMargin) { ExpectKept({"End If", "x = 1"}); }

TEST(IndentCode, ANegativeIndentEndsTheRunAndWhatItWroteStays) {
  OpenedModule opened({"x = 1", "End If", "Loop", "  y = 1"});
  try {
    IndentCode(opened.Commands(), 1, 4);
    FAIL() << "no error was raised";
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Number(), error_number::kInvalidProcedureCall);
    EXPECT_EQ(error.Line(), 3);
  }
  EXPECT_THAT(opened.Lines(), ElementsAre("    x = 1", "End If", "Loop", "  y = 1"));
}

TEST(IndentCode, EachRunStartsAtLevelZero) {
  OpenedModule opened({"If a Then", "x = 1"});
  IndentCode(opened.Commands(), 1, 1);
  IndentCode(opened.Commands(), 2, 2);
  EXPECT_THAT(opened.Lines(), ElementsAre("    If a Then", "    x = 1"));
}

TEST(IndentCode, ASecondRunChangesNothing) {
  const TextLines once = Indented({"Select Case a", "Case 1: b = 1", "If c Then", "d = \"x _\" & _",
                                   "e", "' note _", "more", "End If", "End Select"});
  EXPECT_THAT(Indented(once), ElementsAreArray(once));
}

}  // namespace modIndentCode_test
}  // namespace brimwork
