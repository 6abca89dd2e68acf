#include "transform/procedure_bounds.h"

#include <gtest/gtest.h>

#include "environment/run_time_error.h"
#include "support/opened_module.h"

namespace brimwork {
namespace procedure_bounds_test {

/// The record of the procedure at a line.
CurrentProcedure BoundsAt(int line, const TextLines& lines) {
  OpenedModule opened(lines);
  GetProcedureBounds(opened.Commands(), opened.Module(), line);
  return opened.Commands().procedure;
}

TEST(ProcedureBounds, FillTheRecordOfTheProcedureThatHoldsTheLine) {
  const CurrentProcedure record = BoundsAt(
      4, {"Option Explicit", "", "' about A", "Private Sub A(x As Long)", "  y = x", "End Sub"});
  EXPECT_EQ(record.CurrentProcName, "A");
  EXPECT_EQ(record.CurrentProcKind, ProcKind::kProcedure);
  EXPECT_EQ(record.CurrentProcStart, 2);
  EXPECT_EQ(record.CurrentProcEnd, 6);
  EXPECT_EQ(record.CurrentProcDeclaration, "Private Sub A(x As Long)");
  EXPECT_EQ(record.CurrentProcSignature, "A(x As Long)");
  EXPECT_EQ(record.FirstBodyLine, 5);
  EXPECT_EQ(record.LastBodyLine, 5);
}

TEST(ProcedureBounds, GiveTheKindOfAPropertyProcedure) {
  EXPECT_EQ(BoundsAt(1, {"Property Set A(x)", "End Property"}).CurrentProcKind,
            ProcKind::kPropertySet);
}

TEST(ProcedureBounds, ReturnTheFirstLineBehindTheProcedure) {
  OpenedModule opened({"Sub A()", "End Sub", "", "Sub B()", "End Sub"});
  EXPECT_EQ(GetProcedureBounds(opened.Commands(), opened.Module(), 1), 3);
  EXPECT_EQ(GetProcedureBounds(opened.Commands(), opened.Module(), 3), 6);
}

TEST(ProcedureBounds,
     OfADeclarationContinuedOverThreeLinesHaveTheBodyBehindTheThirdAndTheBareName) {
  const CurrentProcedure record = BoundsAt(1, {"Public Function F( _", "  a As Long, _",
                                               "  b As Long) As Long", "F = a", "End Function"});
  EXPECT_EQ(record.FirstBodyLine, 4);
  EXPECT_EQ(record.CurrentProcSignature, "F");
}

TEST(ProcedureBounds, TakeTheSignatureFromTheFirstPlaceThatHoldsTheNameInItsOwnCase) {
  EXPECT_EQ(BoundsAt(1, {"Function unct(x)", "End Function"}).CurrentProcSignature,
            "unction unct(x)");
  EXPECT_EQ(BoundsAt(1, {"Private Sub private(x)", "End Sub"}).CurrentProcSignature, "private(x)");
  EXPECT_EQ(BoundsAt(1, {"Sub A() ' note", "End Sub"}).CurrentProcSignature, "A() ' note");
  EXPECT_EQ(BoundsAt(1, {"Function Sum%(x)", "End Function"}).CurrentProcSignature, "Sum%(x)");
}

TEST(ProcedureBounds, HaveAnEmptyBodyWhenTheClosingLineFollowsTheDeclaration) {
  const CurrentProcedure record = BoundsAt(1, {"Sub A()", "End Sub"});
  EXPECT_EQ(record.FirstBodyLine, 2);
  EXPECT_EQ(record.LastBodyLine, 1);
}

// The closing line ends the search for it at once.

TEST(ProcedureBounds, ACommentWithTheWordEndOnTheLastBodyLineStaysInTheBody) {
  EXPECT_EQ(BoundsAt(1, {"Sub A()", "x = 1", "' The End is near", "End Sub"}).LastBodyLine, 3);
}

TEST(ProcedureBounds, TheClosingLineCountsInAnyLetterCase) {
  EXPECT_EQ(BoundsAt(1, {"Sub A()", "EndDate = 1", "end sub"}).LastBodyLine, 2);
  EXPECT_EQ(BoundsAt(1, {"Sub A()", "x = 1", "END SUB"}).LastBodyLine, 2);
}

TEST(ProcedureBounds, AFollowingProcedureWithEndInItsNameIsNoClosingLine) {
  const CurrentProcedure record =
      BoundsAt(1, {"Sub A()", "x = 1", "End Sub", "Sub EndGame()", "End Sub"});
  EXPECT_EQ(record.CurrentProcEnd, 3);
  EXPECT_EQ(record.LastBodyLine, 2);
}

TEST(ProcedureBounds, AnUnclosedProcedureHasNoBody) {
  const CurrentProcedure record =
      BoundsAt(1, {"Sub A()", "EndDate = 1", "' the End", "Sub B()", "End Sub"});
  EXPECT_EQ(record.CurrentProcEnd, 2);
  EXPECT_EQ(record.FirstBodyLine, 2);
  EXPECT_EQ(record.LastBodyLine, 1);
}

TEST(ProcedureBounds, ADeclarationWithEndInItsNameClosesNoProcedure) {
  const CurrentProcedure record = BoundsAt(1, {"Sub EndGame()", "x = 1"});
  EXPECT_EQ(record.FirstBodyLine, 2);
  EXPECT_EQ(record.LastBodyLine, 1);
}

TEST(ProcedureBounds, AOneLineProcedureHasNoBodyLines) {
  const CurrentProcedure record = BoundsAt(1, {"Sub A(): x = 1: End Sub"});
  EXPECT_EQ(record.FirstBodyLine, 2);
  EXPECT_EQ(record.LastBodyLine, 0);
}

TEST(ProcedureBounds, AClosingStatementBehindAColonMakesItsLineTheClosingLine) {
  EXPECT_EQ(BoundsAt(1, {"Sub A()", "x = 1", "y = 2: End Sub"}).LastBodyLine, 2);
}

TEST(ProcedureBounds, LinesThatContinueTheClosingLineAreNoBody) {
  const CurrentProcedure record = BoundsAt(1, {"Sub A()", "x = 1", "End Sub ' done _", "really"});
  EXPECT_EQ(record.CurrentProcEnd, 4);
  EXPECT_EQ(record.LastBodyLine, 2);
}

// Outside every procedure.

TEST(ProcedureBounds, OutsideEveryProcedureOnlyTheNameIsEmptied) {
  OpenedModule opened({"Option Explicit", "Sub A(x)", "y = 1", "End Sub", ""});
  GetProcedureBounds(opened.Commands(), opened.Module(), 3);
  EXPECT_EQ(GetProcedureBounds(opened.Commands(), opened.Module(), 1), 5);
  const CurrentProcedure& record = opened.Commands().procedure;
  EXPECT_EQ(record.CurrentProcName, "");
  EXPECT_EQ(record.CurrentProcStart, 2);
  EXPECT_EQ(record.CurrentProcEnd, 4);
  EXPECT_EQ(record.CurrentProcDeclaration, "Sub A(x)");
  EXPECT_EQ(record.CurrentProcSignature, "A(x)");
  EXPECT_EQ(record.FirstBodyLine, 3);
  EXPECT_EQ(record.LastBodyLine, 3);
}

TEST(ProcedureBounds, BeforeAnyQueryTheRangeIsEmpty) {
  OpenedModule opened({"Option Explicit", "Sub A()", "End Sub"});
  EXPECT_EQ(GetProcedureBounds(opened.Commands(), opened.Module(), 1), 1);
  EXPECT_EQ(opened.Commands().procedure.CurrentProcName, "");
  EXPECT_EQ(opened.Commands().procedure.FirstBodyLine, 0);
  EXPECT_EQ(opened.Commands().procedure.LastBodyLine, -1);
}

TEST(ProcedureBounds, TheRecordOfAnotherModuleIsNotCarriedOver) {
  OpenedModule opened({"Sub A()", "y = 1", "End Sub"});
  GetProcedureBounds(opened.Commands(), opened.Module(), 2);
  opened.Open("Module2", {"Option Explicit", "Sub B()", "End Sub"});
  EXPECT_EQ(GetProcedureBounds(opened.Commands(), opened.Module(), 1), 1);
  EXPECT_EQ(opened.Commands().procedure.FirstBodyLine, 0);
  EXPECT_EQ(opened.Commands().procedure.LastBodyLine, -1);
}

TEST(ProcedureBounds, AFailingQueryEmptiesTheRecordAndGoesOn) {
  OpenedModule opened({"Sub A()", "y = 1", "End Sub"});
  GetProcedureBounds(opened.Commands(), opened.Module(), 2);
  EXPECT_THROW(GetProcedureBounds(opened.Commands(), opened.Module(), 0), RunTimeError);
  EXPECT_EQ(opened.Commands().procedure.CurrentProcName, "");
  EXPECT_EQ(opened.Commands().procedure.LastBodyLine, -1);
}

TEST(ProcedureBounds, ARecordHoldsTheLinesOfItsProcedureOnly) {
  const CurrentProcedure record = BoundsAt(2, {"Dim x", "Sub A()", "End Sub", ""});
  EXPECT_FALSE(record.Holds(1));
  EXPECT_TRUE(record.Holds(2));
  EXPECT_TRUE(record.Holds(3));
  EXPECT_FALSE(record.Holds(4));
}

}  // namespace procedure_bounds_test
}  // namespace brimwork
