// How comments are indented.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/opened_module.h"
#include "transform/modIndentCode.h"

namespace brimwork {
namespace modIndentCode_comments_test {

using testing::ElementsAre;

TextLines Indented(const TextLines& body) {
  OpenedModule opened(body);
  IndentCode(opened.Commands(), 1, static_cast<int>(body.size()));
  return opened.Lines();
}

TEST(IndentedComments, StandAtTheCurrentLevelAndDoNotChangeIt) {
  EXPECT_THAT(Indented({"' If a Then", "x = 1", "Do", "  Rem Loop", "' End If", "Loop"}),
              ElementsAre("    ' If a Then", "    x = 1", "    Do", "        Rem Loop",
                          "        ' End If", "    Loop"));
}

TEST(IndentedComments, LinesThatContinueOneStandUnderItsFirstWord) {
  EXPECT_THAT(Indented({"' one _", "two _", "three", "x = 1"}),
              ElementsAre("    ' one _", "     two _", "     three", "    x = 1"));
}

TEST(IndentedComments, TheColumnIsThatOfTheFirstBlankOrApostropheLessOne) {
  EXPECT_THAT(Indented({"'note one _", "two"}), ElementsAre("    'note one _", "         two"));
  EXPECT_THAT(Indented({"'''note _", "two"}), ElementsAre("    '''note _", "     two"));
  EXPECT_THAT(Indented({"'ab'c _", "two"}), ElementsAre("    'ab'c _", "       two"));
}

TEST(IndentedComments, TheColumnOfARemCommentIsLookedForBehindTheWord) {
  EXPECT_THAT(Indented({"Rem one two _", "three"}),
              ElementsAre("    Rem one two _", "           three"));
  EXPECT_THAT(Indented({"Rem  one _", "two"}), ElementsAre("    Rem  one _", "        two"));
}

TEST(IndentedComments, TheColumnCountsCharacters) {
  EXPECT_THAT(Indented({"'Größe x _", "two"}), ElementsAre("    'Größe x _", "          two"));
}

TEST(IndentedComments, TheColumnIsThatOfTheCommentsFirstLine) {
  EXPECT_THAT(Indented({"'abc d _", "efghij k _", "l"}),
              ElementsAre("    'abc d _", "        efghij k _", "        l"));
}

TEST(IndentedComments, KeywordsInLinesThatContinueOneDoNotChangeTheLevel) {
  EXPECT_THAT(Indented({"' one _", "Do", "x = 1"}),
              ElementsAre("    ' one _", "     Do", "    x = 1"));
}

TEST(IndentedComments, AnApostropheWithoutABlankIsAComment) {
  EXPECT_THAT(Indented({"'Do", "x = 1"}), ElementsAre("    'Do", "    x = 1"));
}

TEST(IndentedComments, RemStartsOneOnlyWithABlankBehindIt) {
  EXPECT_THAT(Indented({"Rem x: Do ", "y = 1"}), ElementsAre("    Rem x: Do", "    y = 1"));
  EXPECT_THAT(Indented({"Remark: Do", "y = 1", "Loop"}),
              ElementsAre("    Remark: Do", "        y = 1", "    Loop"));
}

TEST(IndentedComments, ABlankLineInAContinuedOneComesOutEmptyAndDoesNotEndIt) {
  EXPECT_THAT(Indented({"' one _", "", "two", "x = 1"}),
              ElementsAre("    ' one _", "", "     two", "    x = 1"));
}

TEST(IndentedComments, CommentsBetweenTheLinesOfAStatementStandWhereTheStatementGoesOn) {
  EXPECT_THAT(Indented({"x = 1 + _", "' note", "2", "y = 1"}),
              ElementsAre("    x = 1 + _", "        ' note", "        2", "    y = 1"));
}

}  // namespace modIndentCode_comments_test
}  // namespace brimwork
