#include "cli/vouch.h"

#include <gtest/gtest.h>

#include <string>

#include "support/vouched_texts.h"

namespace brimwork {
namespace vouch_test {

TEST(Vouch, EqualTextsAreVouchedFor) {
  EXPECT_EQ(Where({}, {}), "");
  EXPECT_EQ(Where({"Sub A()", "End Sub"}, {"Sub A()", "End Sub"}), "");
}

TEST(Vouch, BlanksAndTabsAroundALineAreSetAside) {
  EXPECT_EQ(Where({"\tx = 1  ", " \t"}, {"    x = 1", ""}), "");
  EXPECT_EQ(Where({"x = 1 + _ ", "2"}, {"    x = 1 + _", "        2"}), "");
}

TEST(Vouch, AChangedLineIsNamedWithBothTexts) {
  const auto difference = Check({"a = 1", "b = 2"}, {"a = 1", "b = 3"});
  ASSERT_TRUE(difference);
  EXPECT_EQ(difference->beforeLine, 2);
  EXPECT_EQ(difference->afterLine, 2);
  EXPECT_EQ(difference->beforeText, "b = 2");
  EXPECT_EQ(difference->afterText, "b = 3");
}

TEST(Vouch, ALineLostAtTheEndIsNamedWithTheEnd) {
  const auto difference = Check({"a", "b"}, {"a"});
  ASSERT_TRUE(difference);
  EXPECT_EQ(difference->beforeLine, 2);
  EXPECT_EQ(difference->afterLine, 2);
  EXPECT_EQ(difference->beforeText, "b");
  EXPECT_EQ(difference->afterText, "");
}

TEST(Vouch, LostAddedAndSwappedLinesAreFound) {
  EXPECT_EQ(Where({"a", "b", "c"}, {"a", "c"}), "2/2");
  EXPECT_EQ(Where({"a", "c"}, {"a", "b", "c"}), "2/2");
  EXPECT_EQ(Where({"a", "b"}, {"b", "a"}), "1/1");
  EXPECT_EQ(Where({"a"}, {"a", "a"}), "2/2");
}

TEST(Vouch, BlankLinesStayWhereNothingIsSaidOfThem) {
  EXPECT_EQ(Where({"a", "", "b"}, {"a", "b"}), "2/2");
  EXPECT_EQ(Where({"a", "b"}, {"a", "", "b"}), "2/2");
}

TEST(Vouch, BlanksInALiteralOrCommentAreNotSetAside) {
  EXPECT_EQ(Where({"s = \"a b\""}, {"s = \"a  b\""}), "1/1");
  EXPECT_EQ(Where({"' a b"}, {"' a  b"}), "1/1");
  EXPECT_EQ(Where({"' a _", "b c"}, {"' a _", "    b  c"}), "2/2");
}

TEST(VouchLabels, ALineMayGetItsOwnNumberOnly) {
  EXPECT_EQ(Where({"x = 1", "y = 2"}, {"x = 1", "2:     y = 2"}, Numbering()), "");
  EXPECT_EQ(Where({"x = 1", "y = 2"}, {"x = 1", "3:     y = 2"}, Numbering()), "2/2");
  EXPECT_EQ(Where({"x = 1", "y = 2"}, {"x = 1", "2:     y = 2"}), "2/2");
  EXPECT_EQ(Where({"x = 1"}, {"1:     x = 1"}, Unnumbering()), "1/1");
}

TEST(VouchLabels, ALineMayLoseItsLabelOrChangeIt) {
  EXPECT_EQ(Where({"10: x = 1"}, {"x = 1"}, Unnumbering()), "");
  EXPECT_EQ(Where({"10: x = 1"}, {"1:     x = 1"}, Numbering()), "");
  EXPECT_EQ(Where({"-1.5: x = 1"}, {"x = 1"}, Unnumbering()), "");
  EXPECT_EQ(Where({"10: x = 1"}, {"x = 1"}), "1/1");
}

TEST(VouchLabels, OfSeveralLabelsAllMayGo) {
  EXPECT_EQ(Where({"10: 20: x = 1"}, {"x = 1"}, Unnumbering()), "");
  EXPECT_EQ(Where({"10: 20: x = 1"}, {"1:     20: x = 1"}, Numbering()), "");
}

TEST(VouchLabels, ABlankLineMayBecomeItsNumberAlone) {
  EXPECT_EQ(Where({"", "12:"}, {"1:     ", "2:     "}, Numbering()), "");
}

TEST(VouchLabels, LabelsOfSevenDigitsComeButDoNotGo) {
  EXPECT_EQ(Where({"1000000:x = 1"}, {"x = 1"}, Unnumbering()), "1/1");
}

TEST(VouchLabels, ANameIsNoLabelThatMayGo) {
  EXPECT_EQ(Where({"Retry: x = 1"}, {"x = 1"}, Unnumbering()), "1/1");
  EXPECT_EQ(Where({"100 x = 1"}, {"x = 1"}, Unnumbering()), "1/1");
}

TEST(VouchLabels, ANumberInALineThatContinuesAnotherIsNoLabel) {
  EXPECT_EQ(Where({"x = _", "1: y = 2"}, {"x = _", "y = 2"}, Unnumbering()), "2/2");
  EXPECT_EQ(Where({"' a _", "1: b"}, {"' a _", "b"}, Unnumbering()), "2/2");
  EXPECT_EQ(Where({"x = 1 + _", "2"}, {"x = 1 + _", "2: 2"}, Numbering()), "2/2");
}

TEST(VouchComments, AProcedureMayBeFramed) {
  EXPECT_EQ(Where({"Option Explicit", "", "Sub A()", "End Sub", "", "Sub B()", "End Sub"},
                  {"Option Explicit", kSeparator, "Sub A()", "End Sub 'A()", kSeparator, "Sub B()",
                   "End Sub 'B()", kSeparator},
                  Commenting()),
            "");
}

TEST(VouchComments, BlankLinesMayGoInFrontOfASeparatorOfTheUsers) {
  EXPECT_EQ(Where({"x", "", kSeparator, "Sub A()", "End Sub"},
                  {"x", kSeparator, "Sub A()", "End Sub 'A()", kSeparator}, Commenting()),
            "");
}

TEST(VouchComments, ASeparatorMayBePutAboveABlankLineThatStays) {
  EXPECT_EQ(Where({"End Sub", "", ""}, {"End Sub", kSeparator, ""}, Commenting()), "");
}

TEST(VouchComments, ASeparatorTwiceInARowIsFound) {
  EXPECT_EQ(Where({"Sub A()"}, {kSeparator, kSeparator, "Sub A()"}, Commenting()), "1/1");
  EXPECT_EQ(Where({kSeparator, "Sub A()"}, {kSeparator, kSeparator, "Sub A()"}, Commenting()),
            "2/2");
}

TEST(VouchComments, ASeparatorOfSeveralLinesComesAsAWhole) {
  Allowance allowance;
  allowance.separatorLines = {"'a", "'b"};
  EXPECT_EQ(Where({"Sub A()"}, {"'a", "'b", "Sub A()"}, allowance), "");
  EXPECT_EQ(Where({"Sub A()"}, {"'a", "Sub A()"}, allowance), "1/1");
}

TEST(VouchComments, OnlyTheCommentOfAClosingLineMayChange) {
  EXPECT_EQ(Where({"End Sub 'old"}, {"End Sub 'new"}, Commenting()), "");
  EXPECT_EQ(Where({"x = 1: End Sub 'old"}, {"x = 1: End Sub 'new"}, Commenting()), "");
  EXPECT_EQ(Where({"x = 1 'old"}, {"x = 1 'new"}, Commenting()), "1/1");
  EXPECT_EQ(Where({"End If 'old"}, {"End If 'new"}, Commenting()), "1/1");
  EXPECT_EQ(Where({"End Sub 'old"}, {"End Function 'old"}, Commenting()), "1/1");
}

TEST(VouchComments, ALiteralCutAtItsApostropheIsFound) {
  EXPECT_EQ(Where({"s = \"it's\": End Sub"}, {"s = \"it 'A()"}, Commenting()), "1/1");
}

TEST(VouchComments, ASeparatorDoesNotSplitAStatement) {
  EXPECT_EQ(Where({"End Sub ' a _", "b"}, {"End Sub ' a _", kSeparator, "b"}, Commenting()), "2/2");
}

TEST(VouchComments, ABlankLineThatEndedAContinuedLineMayNotGo) {
  EXPECT_EQ(Where({"x = 1 _", "", "y = 2"}, {"x = 1 _", "y = 2"}, Commenting()), "2/2");
}

TEST(VouchAlignment, TellsWhereEachLineWent) {
  Alignment alignment;
  ASSERT_FALSE(Vouch(VectorLines(kPlain), VectorLines(kHandled), Handling(), &alignment));
  EXPECT_EQ(alignment.AfterLine(1), 1);
  EXPECT_EQ(alignment.AfterLine(2), 3);
  EXPECT_EQ(alignment.AfterLine(3), 9);
  EXPECT_EQ(alignment.BeforeLine(2), 0);
  EXPECT_EQ(alignment.BeforeLine(3), 2);
  EXPECT_EQ(alignment.BeforeLine(8), 0);
  EXPECT_EQ(alignment.BeforeLine(9), 3);
  EXPECT_EQ(alignment.Stretches().size(), 3u);
}

TEST(VouchAlignment, RemovedLinesStandForNone) {
  Alignment alignment;
  const Lines before = {"x", "", "Sub A()"};
  ASSERT_FALSE(Vouch(VectorLines(before), VectorLines({"x", kSeparator, "Sub A()"}), Commenting(),
                     &alignment));
  EXPECT_EQ(alignment.AfterLine(2), 0);
  EXPECT_EQ(alignment.AfterLine(3), 3);
}

}  // namespace vouch_test
}  // namespace brimwork
