#include "cli/piece_walk.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/opened_module.h"
#include "support/spelling_corrector.h"

namespace brimwork {
namespace piece_walk_test {

using testing::ElementsAre;
using testing::ElementsAreArray;

const TextLines kLines{"Sub A()",      "x = \"one\" & \"\" & \"two\" ' three",
                       "'=====",       "' four _",
                       "say \"five\"", "End Sub"};

/// "line: text" of each piece.
std::vector<std::string> Walked(PieceWalk& walk) {
  std::vector<std::string> pieces;
  while (walk.Next()) {
    pieces.push_back(std::to_string(walk.LineNumber()) + ": " + std::string(walk.Text()));
  }
  return pieces;
}

TEST(PieceWalk, GoesOverThePiecesThatAreSent) {
  OpenedModule opened(kLines);
  PieceWalk walk(opened.Module(), "'=====");
  EXPECT_THAT(Walked(walk), ElementsAre("2: one", "2: two", "2:  three", "4:  four _", "5: five"));
  EXPECT_FALSE(walk.Next());
}

TEST(PieceWalk, GoesThroughTheSameTextsAsTheSpellCheck) {
  OpenedModule opened(kLines);
  opened.Set("Seperator", "'=====");
  SpellingCorrector user;
  opened.environment.wordProcessors.dialog = user.Dialog();
  SpellCheckQuotesAndComments(opened.Commands());
  PieceWalk walk(opened.Module(), "'=====");
  std::vector<std::string> texts;
  while (walk.Next()) texts.emplace_back(walk.Text());
  EXPECT_THAT(texts, ElementsAreArray(user.texts));
}

TEST(PieceWalk, StartsAgain) {
  OpenedModule opened(kLines);
  PieceWalk walk(opened.Module(), "");
  const auto first = Walked(walk);
  walk.Restart();
  EXPECT_THAT(Walked(walk), ElementsAreArray(first));
}

TEST(PieceWalk, KeepsTheLineAsItWasWhenItCameToIt) {
  OpenedModule opened({"MsgBox \"one\" & \"two\""});
  PieceWalk walk(opened.Module(), "");
  ASSERT_TRUE(walk.Next());
  opened.Module().ReplaceLine(1, "MsgBox \"other\"");
  ASSERT_TRUE(walk.Next());
  EXPECT_EQ(walk.Text(), "two");
}

TEST(PieceWalk, KnowsWhatALineContinues) {
  OpenedModule opened({"' one _", "\"two\"", "x = _", "\"three\"", "' four"});
  PieceWalk walk(opened.Module(), "");
  std::vector<Continues> above;
  while (walk.Next()) above.push_back(walk.Above());
  EXPECT_THAT(above, ElementsAre(Continues::kNothing, Continues::kComment, Continues::kStatement,
                                 Continues::kNothing));
}

TEST(PieceWalk, KnowsWhatAnEarlierPieceOfTheLineHolds) {
  OpenedModule opened({"' a \"b\" c"});
  PieceWalk walk(opened.Module(), "");
  ASSERT_TRUE(walk.Next());
  EXPECT_FALSE(walk.IsInEarlierPiece(5));
  ASSERT_TRUE(walk.Next());
  EXPECT_EQ(walk.Text(), " a \"b\" c");
  EXPECT_TRUE(walk.IsInEarlierPiece(5));
  EXPECT_FALSE(walk.IsInEarlierPiece(2));
  EXPECT_FALSE(walk.IsInEarlierPiece(6));
}

}  // namespace piece_walk_test
}  // namespace brimwork
