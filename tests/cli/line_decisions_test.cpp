#include "cli/line_decisions.h"

#include <gtest/gtest.h>

namespace brimwork {
namespace line_decisions_test {

constexpr std::string_view kLine = "a teh b wrod c";

LineDecisions Decided() {
  LineDecisions decisions;
  decisions.Add(8, 4, "word");
  decisions.Add(2, 3, "these");
  return decisions;
}

TEST(LineDecisions, CoverTheWordsDecidedOn) {
  LineDecisions decisions;
  EXPECT_FALSE(decisions.Cover(2, 3));
  decisions.Add(2, 3, std::nullopt);
  EXPECT_TRUE(decisions.Cover(2, 3));
  EXPECT_TRUE(decisions.Cover(4, 5));
  EXPECT_TRUE(decisions.Cover(0, 3));
  EXPECT_FALSE(decisions.Cover(0, 2));
  EXPECT_FALSE(decisions.Cover(5, 2));
}

TEST(LineDecisions, CorrectAStretchOfTheLine) {
  EXPECT_EQ(Decided().Corrected(kLine, 0, kLine.size()), "a these b word c");
  EXPECT_EQ(Decided().Corrected(kLine, 0, 8), "a these b ");
  EXPECT_EQ(Decided().Corrected(kLine, 5, kLine.size()), " b word c");
}

TEST(LineDecisions, LeaveAWordWithoutReplacement) {
  LineDecisions decisions;
  decisions.Add(2, 3, std::nullopt);
  EXPECT_EQ(decisions.Corrected(kLine, 0, kLine.size()), kLine);
}

TEST(LineDecisions, MoveWithTheLineThatWasWritten) {
  LineDecisions decisions = Decided();
  decisions.TakeOver(0, 6);
  constexpr std::string_view kWritten = "a these b wrod c";
  EXPECT_TRUE(decisions.Cover(2, 5));
  EXPECT_FALSE(decisions.Cover(7, 1));
  EXPECT_TRUE(decisions.Cover(10, 4));
  EXPECT_EQ(decisions.Corrected(kWritten, 0, kWritten.size()), "a these b word c");
}

TEST(LineDecisions, MoveWithALineThatBecameShorter) {
  LineDecisions decisions;
  decisions.Add(2, 3, "x");
  decisions.Add(8, 4, "word");
  decisions.TakeOver(0, 6);
  constexpr std::string_view kWritten = "a x b wrod c";
  EXPECT_EQ(decisions.Corrected(kWritten, 0, kWritten.size()), "a x b word c");
}

}  // namespace line_decisions_test
}  // namespace brimwork
