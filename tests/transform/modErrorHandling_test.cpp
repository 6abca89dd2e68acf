#include "transform/modErrorHandling.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "settings/setting_keys.h"
#include "support/opened_module.h"
#include "transform/procedure_bounds.h"

namespace brimwork {
namespace modErrorHandling_test {

using testing::ElementsAre;
using testing::ElementsAreArray;

/// The lines after default error handling for the first procedure.
TextLines Handled(const TextLines& lines) {
  return AfterClickAt(1, "Insert Error Handling", lines);
}

TextLines HandledWith(std::string_view handler, const TextLines& lines) {
  OpenedModule opened(lines);
  opened.Set(setting::kErrorHandling, handler);
  opened.ClickAt(1, "Insert Error Handling");
  return opened.Lines();
}

/// The lines after the statement that resumes was asked for in the procedure at line 1.
TextLines Resumed(const TextLines& lines) {
  OpenedModule opened(lines);
  GetProcedureBounds(opened.Commands(), opened.Module(), 1);
  const CurrentProcedure record = opened.Commands().procedure;
  int firstLine = record.FirstBodyLine;
  int lastLine = record.LastBodyLine;
  InsertErrorHandling(opened.Commands(), false, firstLine, lastLine, record.CurrentProcName,
                      record.CurrentProcKind, "Sub");
  return opened.Lines();
}

TEST(InsertErrorHandling, AddsTheJumpAndBeforeTheClosingLineTheExitTheLabelAndTheHandler) {
  EXPECT_THAT(Handled({"Sub A()", "x = 1", "End Sub"}),
              ElementsAre("Sub A()", "On Error GoTo ErrorTrap", "x = 1", "", "Exit Sub", "",
                          "ErrorTrap:", "TEST HANDLE", "End Sub"));
}

TEST(InsertErrorHandling, TakesTheKindWordForTheExit) {
  EXPECT_EQ(Handled({"Function A()", "End Function"})[3], "Exit Function");
  EXPECT_EQ(Handled({"Property Get A()", "End Property"})[3], "Exit Property");
}

TEST(InsertErrorHandling, WorksOnAnEmptyBody) {
  EXPECT_THAT(Handled({"Sub A()", "End Sub"}),
              ElementsAre("Sub A()", "On Error GoTo ErrorTrap", "", "Exit Sub", "",
                          "ErrorTrap:", "TEST HANDLE", "End Sub"));
}

TEST(InsertErrorHandling, GivesTheLinesOfTheJumpAndOfTheClosingLineBack) {
  OpenedModule opened({"Sub A()", "Dim x", "y = 1", "End Sub"});
  int firstLine = 2;
  int lastLine = 3;
  InsertErrorHandling(opened.Commands(), true, firstLine, lastLine, "A", ProcKind::kProcedure,
                      "Sub");
  EXPECT_EQ(firstLine, 3);
  EXPECT_EQ(lastLine, 5);
}

TEST(InsertErrorHandling, DoneTwiceDoublesTheJumpAndTheHandler) {
  OpenedModule opened({"Sub A()", "End Sub"});
  opened.ClickAt(1, "Insert Error Handling");
  opened.ClickAt(1, "Insert Error Handling");
  EXPECT_THAT(opened.Lines(),
              ElementsAre("Sub A()", "On Error GoTo ErrorTrap", "On Error GoTo ErrorTrap", "",
                          "Exit Sub", "", "ErrorTrap:", "TEST HANDLE", "", "Exit Sub", "",
                          "ErrorTrap:", "TEST HANDLE", "End Sub"));
}

// The handler's text.

TEST(InsertErrorHandling, AHandlerOfSeveralLinesIsInsertedWhole) {
  EXPECT_THAT(HandledWith("MsgBox Err\r\n' more\n\nResume", {"Sub A()", "End Sub"}),
              ElementsAre("Sub A()", "On Error GoTo ErrorTrap", "", "Exit Sub", "",
                          "ErrorTrap:", "MsgBox Err", "' more", "", "Resume", "End Sub"));
}

TEST(InsertErrorHandling, AStoredEmptyHandlerIsAnEmptyLine) {
  EXPECT_THAT(HandledWith("", {"Sub A()", "End Sub"}),
              ElementsAre("Sub A()", "On Error GoTo ErrorTrap", "", "Exit Sub", "",
                          "ErrorTrap:", "", "End Sub"));
}

TEST(InsertErrorHandling, EveryPlaceholderBecomesTheProceduresPath) {
  EXPECT_EQ(HandledWith("Log \"CURRENTFULLPROCEDUREPATH\", \"CURRENTFULLPROCEDUREPATH\"",
                        {"Function F()", "End Function"})[6],
            "Log \"Project1.Module1.F\", \"Project1.Module1.F\"");
}

TEST(InsertErrorHandling, APlaceholderInAnotherCaseIsNone) {
  EXPECT_EQ(HandledWith("Log CurrentFullProcedurePath", {"Sub A()", "End Sub"})[6],
            "Log CurrentFullProcedurePath");
}

// Where the jump goes.

TEST(InsertErrorHandling, TheJumpStandsBehindLeadingCommentsAndThenDimStatements) {
  EXPECT_EQ(Handled({"Sub A()", "' one", "  ' two", "Dim x", "  Dim y", "x = 1", "End Sub"})[5],
            "On Error GoTo ErrorTrap");
  EXPECT_EQ(Handled({"Sub A()", "Dim x", "End Sub"})[2], "On Error GoTo ErrorTrap");
}

TEST(InsertErrorHandling, ALineDimensionIsTakenForADeclaration) {
  EXPECT_EQ(Handled({"Sub A()", "Dimension = 1", "x = 1", "End Sub"})[2],
            "On Error GoTo ErrorTrap");
}

TEST(InsertErrorHandling, DimInAnotherCaseIsNotSkipped) {
  EXPECT_EQ(Handled({"Sub A()", "dim x", "End Sub"})[1], "On Error GoTo ErrorTrap");
}

TEST(InsertErrorHandling, ABlankLineEndsTheSkips) {
  EXPECT_EQ(Handled({"Sub A()", "", "' note", "Dim x", "End Sub"})[1], "On Error GoTo ErrorTrap");
  EXPECT_EQ(Handled({"Sub A()", "Dim x", "", "Dim y", "End Sub"})[2], "On Error GoTo ErrorTrap");
}

TEST(InsertErrorHandling, CommentsBehindTheDimStatementsAreNotSkipped) {
  EXPECT_EQ(Handled({"Sub A()", "Dim x", "' note", "Dim y", "End Sub"})[2],
            "On Error GoTo ErrorTrap");
}

TEST(InsertErrorHandling, ALineThatStartsWithATabIsNotSkipped) {
  EXPECT_EQ(Handled({"Sub A()", "\tDim x", "End Sub"})[1], "On Error GoTo ErrorTrap");
}

TEST(InsertErrorHandling, TheJumpNeverSplitsADimStatement) {
  EXPECT_THAT(Handled({"Sub A()", "Dim x As Long, _", "    y As Long", "z = 1", "End Sub"}),
              ElementsAre("Sub A()", "Dim x As Long, _", "    y As Long", "On Error GoTo ErrorTrap",
                          "z = 1", "", "Exit Sub", "", "ErrorTrap:", "TEST HANDLE", "End Sub"));
}

TEST(InsertErrorHandling, TheJumpNeverSplitsAComment) {
  EXPECT_EQ(Handled({"Sub A()", "' one _", "two _", "three", "x = 1", "End Sub"})[4],
            "On Error GoTo ErrorTrap");
}

TEST(InsertErrorHandling, ABodyOfCommentsOnlyGetsTheJumpBehindThem) {
  EXPECT_EQ(Handled({"Sub A()", "' one", "End Sub"})[2], "On Error GoTo ErrorTrap");
}

// Where the handler goes.

TEST(InsertErrorHandling, TheClosingLineCountsInAnyLetterCase) {
  const TextLines lines = Handled({"Sub A()", "EndDate = 1", "end sub"});
  EXPECT_EQ(lines[lines.size() - 2], "TEST HANDLE");
  EXPECT_EQ(lines.back(), "end sub");
}

TEST(InsertErrorHandling, AFollowingProcedureWithEndInItsNameIsLeftAlone) {
  const TextLines lines =
      Handled({"Sub A()", "x = 1", "End Sub", "Sub EndGame()", "' The End", "End Sub"});
  EXPECT_THAT(lines, ElementsAre("Sub A()", "On Error GoTo ErrorTrap", "x = 1", "", "Exit Sub", "",
                                 "ErrorTrap:", "TEST HANDLE", "End Sub", "Sub EndGame()",
                                 "' The End", "End Sub"));
}

TEST(InsertErrorHandling, ACommentWithTheWordEndBelowTheProcedureIsLeftAlone) {
  const TextLines lines = Handled({"Sub A()", "End Sub", "' The End"});
  EXPECT_EQ(lines.back(), "' The End");
  EXPECT_EQ(lines[lines.size() - 2], "End Sub");
}

// Where there is nothing to do.

TEST(InsertErrorHandling, LeavesAOneLineProcedureAlone) {
  const TextLines oneLine{"Sub A(): x = 1: End Sub"};
  EXPECT_THAT(Handled(oneLine), ElementsAreArray(oneLine));
  EXPECT_THAT(Resumed(oneLine), ElementsAreArray(oneLine));
}

TEST(InsertErrorHandling, WritesNoHandlerIntoAProcedureWithoutAClosingLine) {
  const TextLines unclosed{"Sub A()", "x = 1", "' The End", "Sub B()", "End Sub"};
  EXPECT_THAT(Handled(unclosed), ElementsAreArray(unclosed));
}

TEST(InsertErrorHandling, DoesNothingWithoutAProceduresName) {
  OpenedModule opened({"Option Explicit", "Sub A()", "x = 1", "End Sub"});
  opened.ClickAt(3, "Remove Line Numbers");
  const TextLines before = opened.Lines();
  opened.ClickAt(1, "Insert Error Handling");
  EXPECT_THAT(opened.Lines(), ElementsAreArray(before));
}

// The statement that resumes.

TEST(InsertErrorHandling, ResumeNextGoesToTheTopOfTheBody) {
  EXPECT_THAT(
      Resumed({"Sub A()", "' note", "Dim x", "y = 1", "End Sub"}),
      ElementsAre("Sub A()", "' note", "Dim x", "On Error Resume Next", "y = 1", "End Sub"));
}

TEST(InsertErrorHandling, ResumeNextIsNotInsertedIntoABodyThatMentionsOnErrorAnywhere) {
  for (const char* mention : {"On Error GoTo 0", "x = 1 ' no On Error here", "x = \"On Error\""}) {
    const TextLines body{"Sub A()", "x = 1", mention, "y = 1", "End Sub"};
    EXPECT_THAT(Resumed(body), ElementsAreArray(body));
  }
  EXPECT_THAT(Resumed({"Sub A()", "On Error GoTo 0", "End Sub"}),
              ElementsAre("Sub A()", "On Error GoTo 0", "End Sub"));
}

TEST(InsertErrorHandling, ResumeNextLooksForOnErrorInItsOwnCase) {
  EXPECT_EQ(Resumed({"Sub A()", "on error goto 0", "End Sub"})[1], "On Error Resume Next");
}

TEST(InsertErrorHandling, ResumeNextDoesNotLookAtTheLastLineOfALongerBody) {
  EXPECT_EQ(Resumed({"Sub A()", "x = 1", "On Error GoTo 0", "End Sub"})[1], "On Error Resume Next");
}

}  // namespace modErrorHandling_test
}  // namespace brimwork
