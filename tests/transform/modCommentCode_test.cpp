#include "transform/modCommentCode.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "settings/setting_keys.h"
#include "support/opened_module.h"

namespace brimwork {
namespace modCommentCode_test {

using testing::ElementsAre;
using testing::ElementsAreArray;

const std::string S = "'" + std::string(89, '=');

TextLines CommentedAt(int line, const TextLines& lines) {
  return AfterClickAt(line, "Comment Procedure", lines);
}

TextLines AllCommented(const TextLines& lines) {
  return AfterClickAll("Comment All Procedures", lines);
}

TEST(CommentProcedure, FramesTheProcedureAndLabelsItsClosingLine) {
  EXPECT_THAT(CommentedAt(3, {"Option Explicit", "", "Sub A()", "End Sub"}),
              ElementsAre("Option Explicit", S, "Sub A()", "End Sub 'A()", S));
}

TEST(CommentProcedure, DoneTwiceLeavesOneSeparatorAboveOneBelowAndOneLabel) {
  const TextLines once = CommentedAt(3, {"Option Explicit", "", "Sub A()", "End Sub"});
  EXPECT_THAT(CommentedAt(3, once), ElementsAreArray(once));
  EXPECT_THAT(AllCommented(once), ElementsAreArray(once));
}

TEST(CommentProcedure, AProcedureAtLineOneGetsTheSeparatorAsLineOne) {
  const TextLines once = CommentedAt(1, {"Sub A()", "End Sub"});
  EXPECT_THAT(once, ElementsAre(S, "Sub A()", "End Sub 'A()", S));
  EXPECT_THAT(CommentedAt(2, once), ElementsAreArray(once));
}

TEST(CommentProcedure, BetweenTwoCommentedProceduresStandsOneSeparator) {
  const TextLines once =
      AllCommented({"Sub A()", "End Sub", "", "", "Function B()", "End Function"});
  EXPECT_THAT(once,
              ElementsAre(S, "Sub A()", "End Sub 'A()", S, "Function B()", "End Function 'B()", S));
  EXPECT_THAT(AllCommented(once), ElementsAreArray(once));
}

TEST(CommentProcedure, TheSeparatorIsTheOneOfTheSettings) {
  OpenedModule opened({"Sub A()", "End Sub"});
  opened.Set(setting::kSeparator, "'-----");
  opened.ClickAt(1, "Comment Procedure");
  EXPECT_THAT(opened.Lines(), ElementsAre("'-----", "Sub A()", "End Sub 'A()", "'-----"));
}

TEST(CommentProcedure, ALineThatIsNotExactlyTheSeparatorIsNone) {
  EXPECT_THAT(CommentedAt(2, {S + "=", "Sub A()", "End Sub", " " + S}),
              ElementsAre(S, S + "=", "Sub A()", "End Sub 'A()", S, " " + S));
}

// Above the procedure.

TEST(CommentProcedure, CommentsAboveTheDeclarationStandInTheFrame) {
  EXPECT_THAT(CommentedAt(4, {"Dim x", "", "' about A", "", "Sub A()", "End Sub"}),
              ElementsAre("Dim x", S, "' about A", "", "Sub A()", "End Sub 'A()", S));
}

TEST(CommentProcedure, TheBlankLinesAboveTheFrameGo) {
  EXPECT_THAT(CommentedAt(5, {"Dim x", "", "  ", "\t", "Sub A()", "End Sub"}),
              ElementsAre("Dim x", S, "Sub A()", "End Sub 'A()", S));
}

TEST(CommentProcedure, BlankLinesBetweenASeparatorAndTheProcedureGo) {
  const TextLines once = CommentedAt(4, {"Dim x", S, "", "Sub A()", "End Sub"});
  EXPECT_THAT(once, ElementsAre("Dim x", S, "Sub A()", "End Sub 'A()", S));
}

TEST(CommentProcedure, ASeparatorInsideTheLinesAboveStaysWhereItIs) {
  EXPECT_THAT(CommentedAt(3, {"' about A", S, "Sub A()", "End Sub"}),
              ElementsAre(S, "' about A", S, "Sub A()", "End Sub 'A()", S));
}

// The label.

TEST(CommentProcedure, TheLabelIsTheSignature) {
  EXPECT_EQ(CommentedAt(1, {"Private Sub F(ByVal a As Long)", "End Sub"})[2],
            "End Sub 'F(ByVal a As Long)");
  EXPECT_EQ(CommentedAt(1, {"Sub F( _", "  a)", "End Sub"})[3], "End Sub 'F");
}

TEST(CommentProcedure, TheLabelReplacesTheCommentBehindTheClosingLine) {
  EXPECT_EQ(CommentedAt(1, {"Sub A(x)", "End Sub  ' old 'label"})[2], "End Sub 'A(x)");
}

TEST(CommentProcedure, AClosingLineWithoutACommentIsKeptAsItIsBeforeTheLabel) {
  EXPECT_EQ(CommentedAt(1, {"Sub A()", "  end sub"})[2], "  end sub 'A()");
  EXPECT_EQ(CommentedAt(1, {"Sub A()", "x = 1: End Sub"})[2], "x = 1: End Sub 'A()");
}

TEST(CommentProcedure, AOneLineProcedureGetsNoLabel) {
  const TextLines once = CommentedAt(1, {"Sub A(): End Sub", "Sub B()", "End Sub"});
  EXPECT_THAT(once, ElementsAre(S, "Sub A(): End Sub", S, "Sub B()", "End Sub"));
  EXPECT_THAT(CommentedAt(2, once), ElementsAreArray(once));
}

TEST(CommentProcedure, AClosingLineThatIsContinuedGetsNoLabel) {
  const TextLines once =
      CommentedAt(1, {"Sub A()", "End Sub ' done _", "really", "Sub B()", "End Sub"});
  EXPECT_THAT(once,
              ElementsAre(S, "Sub A()", "End Sub ' done _", "really", S, "Sub B()", "End Sub"));
  EXPECT_THAT(CommentedAt(2, once), ElementsAreArray(once));
}

TEST(CommentProcedure, AProcedureWithoutAClosingLineGetsTheUpperSeparatorOnly) {
  const TextLines once = CommentedAt(1, {"Sub A()", "EndDate = 1", "", "Sub B()", "End Sub"});
  EXPECT_THAT(once, ElementsAre(S, "Sub A()", "EndDate = 1", "", "Sub B()", "End Sub"));
  EXPECT_THAT(CommentedAt(2, once), ElementsAreArray(once));
}

TEST(CommentProcedure, AFollowingProcedureWithEndInItsNameGetsNoLabel) {
  EXPECT_THAT(CommentedAt(1, {"Sub A()", "End Sub", "Sub EndGame()", "End Sub"}),
              ElementsAre(S, "Sub A()", "End Sub 'A()", S, "Sub EndGame()", "End Sub"));
}

// Below the procedure.

TEST(CommentProcedure, BlankLinesBelowTheProcedureMakeWayForTheSeparator) {
  EXPECT_THAT(CommentedAt(1, {"Sub A()", "End Sub", "", "  ", "' about B", "Sub B()", "End Sub"}),
              ElementsAre(S, "Sub A()", "End Sub 'A()", S, "' about B", "Sub B()", "End Sub"));
}

TEST(CommentProcedure, OneBlankLineMayStayAtTheModulesEnd) {
  const TextLines once = CommentedAt(1, {"Sub A()", "End Sub", "", ""});
  EXPECT_THAT(once, ElementsAre(S, "Sub A()", "End Sub 'A()", S, ""));
  EXPECT_THAT(CommentedAt(2, once), ElementsAreArray(once));
}

TEST(CommentProcedure, AnEmptyLineThatEndsTheModuleMakesWayForTheSeparator) {
  EXPECT_THAT(CommentedAt(1, {"Sub A()", "End Sub", ""}),
              ElementsAre(S, "Sub A()", "End Sub 'A()", S));
}

// Calls without the dispatcher.

TEST(CommentProcedure, ReturnsTheLineBehindTheProcedurePlusOneAsItIsAfterwards) {
  OpenedModule opened({"Option Explicit", "", "Sub A()", "End Sub", "Sub B()", "End Sub"});
  EXPECT_EQ(CommentProcedure(opened.Commands(), "A", ProcKind::kProcedure, "A()"), 6);
}

TEST(CommentProcedure, DoesNothingWithoutAName) {
  OpenedModule opened({"Sub A()", "End Sub"});
  EXPECT_EQ(CommentProcedure(opened.Commands(), "", ProcKind::kProcedure, "A()"), 0);
  EXPECT_THAT(opened.Lines(), ElementsAre("Sub A()", "End Sub"));
}

TEST(CommentProcedure, DoesNothingInTheDeclarations) {
  OpenedModule opened({"Option Explicit", "Sub A()", "End Sub"});
  opened.ClickAt(2, "Remove Line Numbers");
  opened.ClickAt(1, "Comment Procedure");
  EXPECT_THAT(opened.Lines(), ElementsAre("Option Explicit", "Sub A()", "End Sub"));
}

TEST(CommentProcedure, EachOfSeveralProceduresOfOneNameIsFramed) {
  EXPECT_THAT(AllCommented({"Sub A(x)", "End Sub", "Sub A(y)", "End Sub"}),
              ElementsAre(S, "Sub A(x)", "End Sub 'A(x)", S, "Sub A(y)", "End Sub 'A(y)", S));
}

}  // namespace modCommentCode_test
}  // namespace brimwork
