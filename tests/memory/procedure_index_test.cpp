#include "memory/procedure_index.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/opened_module.h"
#include "support/procedure_list.h"

namespace brimwork {
namespace procedure_index_test {

using testing::ElementsAre;
using testing::IsEmpty;

std::vector<std::string> Procedures(const TextLines& lines) {
  const ModuleText text = ModuleText::FromText(JoinedLines(lines));
  ProcedureIndex index;
  return ProceduresIn(index, text);
}

int DeclarationLines(const TextLines& lines) {
  const ModuleText text = ModuleText::FromText(JoinedLines(lines));
  return ProcedureIndex().DeclarationLines(text);
}

TEST(ProcedureIndex, FindsEveryKindOfProcedure) {
  EXPECT_THAT(Procedures({"Sub A()", "End Sub", "Function B()", "End Function", "Property Get C()",
                          "End Property", "Property Let C(x)", "End Property", "Property Set C(x)",
                          "End Property"}),
              ElementsAre("A 1/1/2", "B 3/3/4", "Get C 5/5/6", "Let C 7/7/8", "Set C 9/9/10"));
}

TEST(ProcedureIndex, AProcedureStartsBehindTheClosingLineOfTheOneBefore) {
  EXPECT_THAT(Procedures({"Sub A()", "End Sub", "", "' about B", "Sub B()", "End Sub"}),
              ElementsAre("A 1/1/2", "B 3/5/6"));
}

TEST(ProcedureIndex, TheFirstProcedureStartsBehindTheDeclarations) {
  EXPECT_THAT(Procedures({"Option Explicit", "", "' about A", "Sub A()", "End Sub"}),
              ElementsAre("A 2/4/5"));
}

TEST(ProcedureIndex, LinesBehindTheLastClosingLineBelongToNoProcedure) {
  const ModuleText text =
      ModuleText::FromText(JoinedLines({"Sub A()", "End Sub", "", "' the end"}));
  ProcedureIndex index;
  EXPECT_NE(index.At(text, 2), nullptr);
  EXPECT_EQ(index.At(text, 3), nullptr);
  EXPECT_EQ(index.At(text, 4), nullptr);
  EXPECT_EQ(index.At(text, 99), nullptr);
}

TEST(ProcedureIndex, LinesBehindTheLastClosingLineBelongToTheLastProcedureWhereThatIsSo) {
  const ModuleText text = ModuleText::FromText(
      JoinedLines({"Dim x", "Sub A()", "End Sub", "", "Sub B()", "End Sub", "", "' the end"}));
  ProcedureIndex index(LinesBelow::kTheLastProcedures);
  EXPECT_EQ(index.At(text, 1), nullptr);
  EXPECT_EQ(index.At(text, 2)->end, 3);
  EXPECT_EQ(index.At(text, 4)->body, 5);
  EXPECT_EQ(index.At(text, 8)->body, 5);
  EXPECT_EQ(index.At(text, 6)->end, 8);
  EXPECT_EQ(index.FirstNamed(text, "B", ProcKind::kProcedure)->end, 8);
  EXPECT_EQ(index.At(text, 9), nullptr);
}

TEST(ProcedureIndex, LinesThatComeBelowTheLastProcedureAreItsOwnAsWell) {
  ModuleText text = ModuleText::FromText(JoinedLines({"Sub A()", "End Sub"}));
  ProcedureIndex index(LinesBelow::kTheLastProcedures);
  EXPECT_EQ(index.At(text, 1)->end, 2);
  text.Insert(3, "' below");
  index.NoteEdit(3);
  EXPECT_EQ(index.At(text, 3)->body, 1);
  text.Insert(4, "Sub B()\r\nEnd Sub");
  index.NoteEdit(4);
  EXPECT_EQ(index.At(text, 3)->body, 4);
  EXPECT_EQ(index.At(text, 1)->end, 2);
}

TEST(ProcedureIndex, DeclarationLinesBelongToNoProcedure) {
  const ModuleText text = ModuleText::FromText(JoinedLines({"Dim x", "Sub A()", "End Sub"}));
  ProcedureIndex index;
  EXPECT_EQ(index.At(text, 1), nullptr);
}

TEST(ProcedureIndex, TheDeclarationsEndWithTheLastLineThatIsNeitherBlankNorComment) {
  EXPECT_EQ(DeclarationLines({"Option Explicit", "Dim x", "", "' about A", "Sub A()", "End Sub"}),
            2);
  EXPECT_EQ(DeclarationLines({"", "' a note", "Dim x", "\t", "Rem more", "Sub A()", "End Sub"}), 3);
  EXPECT_EQ(DeclarationLines({"#If A Then", "Sub A()", "End Sub", "#End If"}), 1);
}

TEST(ProcedureIndex, ThereAreNoDeclarationsWhenOnlyBlanksAndCommentsStandAboveTheFirstProcedure) {
  EXPECT_EQ(DeclarationLines({"", "' a note", "Sub A()", "End Sub"}), 0);
  EXPECT_EQ(DeclarationLines({"Sub A()", "End Sub"}), 0);
}

TEST(ProcedureIndex, AllLinesAreDeclarationsWithoutAProcedure) {
  EXPECT_EQ(DeclarationLines({"Option Explicit", "", "' a note", ""}), 4);
  EXPECT_EQ(DeclarationLines({}), 0);
}

TEST(ProcedureIndex, TheLastDeclarationEndsWithItsLastContinuingLine) {
  EXPECT_EQ(DeclarationLines({"Const A = 1 + _", "  2 + _", "  3", "", "Sub A()", "End Sub"}), 3);
  EXPECT_EQ(DeclarationLines({"Const A = 1 + _", "", "Sub A()", "End Sub"}), 2);
  EXPECT_EQ(DeclarationLines({"Const A = 1 ' note _", "more", "Sub A()", "End Sub"}), 2);
}

TEST(ProcedureIndex, ADeclarationThatContinuesALineIsNone) {
  EXPECT_THAT(Procedures({"Const A = _", "Sub A()", "End Sub"}), IsEmpty());
  EXPECT_THAT(Procedures({"' note _", "Sub A()", "Sub B()", "End Sub"}), ElementsAre("B 1/3/4"));
  EXPECT_THAT(Procedures({"Dim x ' note _", "Sub A()", "Sub B()", "End Sub"}),
              ElementsAre("B 3/3/4"));
}

TEST(ProcedureIndex, DeclareEndAndExitLinesStartNoProcedure) {
  EXPECT_THAT(Procedures({"Public Declare Sub Sleep Lib \"kernel32\" (ByVal ms As Long)",
                          "Declare Function Beep Lib \"kernel32\" () As Long", "Function A()",
                          "Exit Function", "End Function"}),
              ElementsAre("A 3/3/5"));
}

TEST(ProcedureIndex, MembersNamedLikeADeclarationInATypeAreNone) {
  EXPECT_THAT(Procedures({"Private Type T", "  Sub As Long", "  Function B As Long", "Sub B",
                          "End Type", "Sub A()", "End Sub"}),
              ElementsAre("A 6/6/7"));
}

TEST(ProcedureIndex, MembersNamedLikeADeclarationInAnEnumAreNone) {
  EXPECT_THAT(
      Procedures({"Public Enum E", "Sub B", "Property Get B", "End Enum", "Sub A()", "End Sub"}),
      ElementsAre("A 5/5/6"));
}

TEST(ProcedureIndex, ATypeOnOneLineHidesNothing) {
  EXPECT_THAT(Procedures({"Type T: x As Long: End Type", "Sub A()", "End Sub"}),
              ElementsAre("A 2/2/3"));
}

TEST(ProcedureIndex, ACommentThatNamesATypeHidesNothing) {
  EXPECT_THAT(Procedures({"' Type T", "Dim Type1 As Long", "Sub A()", "End Sub"}),
              ElementsAre("A 3/3/4"));
}

TEST(ProcedureIndex, AProcedureClosesAtTheFirstEndStatementWhateverItsWord) {
  EXPECT_THAT(Procedures({"Function A()", "End Sub", "Sub B()", "end property", "End Sub"}),
              ElementsAre("A 1/1/2", "B 3/3/4"));
}

TEST(ProcedureIndex, AProcedureMayCloseOnItsDeclarationLine) {
  EXPECT_THAT(Procedures({"Sub A(): End Sub", "Sub B(): x = 1: End Sub", "Sub C()", "End Sub"}),
              ElementsAre("A 1/1/1", "B 2/2/2", "C 3/3/4"));
}

TEST(ProcedureIndex, AClosingStatementMayStandBehindALabelOrAColon) {
  EXPECT_THAT(Procedures({"Sub A()", "10 End Sub", "Sub B()", "Done: End Sub", "Sub C()", "x = _",
                          "1: End Sub"}),
              ElementsAre("A 1/1/2", "B 3/3/4", "C 5/5/7"));
}

TEST(ProcedureIndex, ClosingStatementsInLiteralsAndCommentsAreNone) {
  EXPECT_THAT(Procedures({"Sub A()", "x = \": End Sub\"", "' End Sub", "y = 1 ' : End Sub",
                          "z = 1: Rem : End Sub", "w = _", "End Sub", "v = 1 ' note _", "End Sub",
                          "End Sub"}),
              ElementsAre("A 1/1/10"));
}

TEST(ProcedureIndex, TheClosingLineEndsWithItsLastContinuingLine) {
  EXPECT_THAT(Procedures({"Sub A()", "End Sub ' done _", "really _", "done", "Sub B()", "End Sub"}),
              ElementsAre("A 1/1/4", "B 5/5/6"));
  EXPECT_THAT(Procedures({"Sub A()", "End Sub _", ""}), ElementsAre("A 1/1/3"));
}

TEST(ProcedureIndex, AContinuedClosingLineAtTheEndTakesInALineThatIsAppendedLater) {
  ModuleText text = ModuleText::FromText(JoinedLines({"Sub A()", "End Sub ' done _"}));
  ProcedureIndex index;
  ASSERT_THAT(ProceduresIn(index, text), ElementsAre("A 1/1/2"));
  text.Insert(3, "really");
  index.NoteEdit(3);
  EXPECT_THAT(ProceduresIn(index, text), ElementsAre("A 1/1/3"));
}

TEST(ProcedureIndex, AnUnclosedProcedureEndsBeforeTheCommentAndBlankLinesOfTheNext) {
  EXPECT_THAT(Procedures({"Sub A()", "x = 1", "", "' about B", "Sub B()", "End Sub"}),
              ElementsAre("A 1/1/2", "B 3/5/6"));
}

TEST(ProcedureIndex, AnUnclosedProcedureEndsWithTheLinesThatContinueItsLastStatement) {
  EXPECT_THAT(Procedures({"Sub A()", "x = 1 + _", "  2", "", "Sub B()", "End Sub"}),
              ElementsAre("A 1/1/3", "B 4/5/6"));
  EXPECT_THAT(Procedures({"Sub A()", "x = 1 ' note _", "more", "Sub B()", "End Sub"}),
              ElementsAre("A 1/1/3", "B 4/4/5"));
  EXPECT_THAT(Procedures({"Sub A( _", "  x)", "Sub B()", "End Sub"}),
              ElementsAre("A 1/1/2", "B 3/3/4"));
}

TEST(ProcedureIndex, AnUnclosedLastProcedureEndsWithItsLastLineOfCode) {
  EXPECT_THAT(Procedures({"Sub A()", "x = 1", "", "' the end"}), ElementsAre("A 1/1/2"));
  EXPECT_THAT(Procedures({"Sub A()", "' nothing"}), ElementsAre("A 1/1/1"));
}

TEST(ProcedureIndex, FindsTheFirstProcedureOfANameAndKindInAnyCase) {
  const ModuleText text =
      ModuleText::FromText(JoinedLines({"Sub A()", "End Sub", "Property Get B()", "End Property",
                                        "Sub b()", "End Sub", "Sub B()", "End Sub"}));
  ProcedureIndex index;
  ASSERT_NE(index.FirstNamed(text, "B", ProcKind::kProcedure), nullptr);
  EXPECT_EQ(index.FirstNamed(text, "B", ProcKind::kProcedure)->body, 5);
  EXPECT_EQ(index.FirstNamed(text, "b", ProcKind::kPropertyGet)->body, 3);
  EXPECT_EQ(index.FirstNamed(text, "B", ProcKind::kPropertyLet), nullptr);
  EXPECT_EQ(index.FirstNamed(text, "C", ProcKind::kProcedure), nullptr);
}

// Heads that conditional compilation chooses from.

TEST(ProcedureIndex, DeclarationsWithAConditionalLineBetweenThemAreHeadsOfOneProcedure) {
  EXPECT_THAT(Procedures({"#If A Then", "Sub F(x)", "#Else", "Sub F(y)", "#End If", "z = 1",
                          "End Sub", "Sub G()", "End Sub"}),
              ElementsAre("F 2/2/7", "G 8/8/9"));
}

TEST(ProcedureIndex, TheFirstOfSeveralHeadsGivesTheName) {
  EXPECT_THAT(Procedures({"#If A Then", "Sub First()", "#ElseIf B Then", "Function Second()",
                          "#Else", "Property Get Third()", "#End If", "End Sub"}),
              ElementsAre("First 2/2/8"));
}

TEST(ProcedureIndex, EveryPairOfHeadsNeedsAConditionalLineBetweenThem) {
  EXPECT_THAT(Procedures({"Sub A()", "#Const B = 1", "Sub B()", "Sub C()", "End Sub"}),
              ElementsAre("A 1/1/3", "C 4/4/5"));
}

TEST(ProcedureIndex, AConditionalLineInACommentMakesNoHeads) {
  EXPECT_THAT(Procedures({"Sub A()", "' #Else", "Sub B()", "End Sub"}),
              ElementsAre("A 1/1/1", "B 2/3/4"));
  EXPECT_THAT(Procedures({"Sub A()", "' note _", "#Else", "Sub B()", "End Sub"}),
              ElementsAre("A 1/1/1", "B 2/4/5"));
}

TEST(ProcedureIndex, HeadsThatAreClosedEachAreProceduresOfTheirOwn) {
  EXPECT_THAT(
      Procedures({"#If A Then", "Sub F(x)", "End Sub", "#Else", "Sub F(y)", "End Sub", "#End If"}),
      ElementsAre("F 2/2/3", "F 4/5/6"));
}

}  // namespace procedure_index_test
}  // namespace brimwork
