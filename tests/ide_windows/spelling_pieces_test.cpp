#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <string_view>
#include <vector>

#include "ide_windows/modSpellCheck.h"

namespace brimwork {
namespace spelling_pieces_test {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::string_view kSeparator = "'=====";

std::vector<std::string> TextsOf(std::string_view line, std::string_view separator = kSeparator) {
  std::vector<std::string> texts;
  for (const SpellingPiece& piece : SpellingPieces(line, separator)) {
    texts.emplace_back(line.substr(piece.offset, piece.size));
  }
  return texts;
}

TEST(SpellingPieces, AreNoneInALineWithoutQuotesAndApostrophes) {
  EXPECT_THAT(TextsOf("x = 1"), IsEmpty());
  EXPECT_THAT(TextsOf(""), IsEmpty());
}

TEST(SpellingPieces, AreTheContentsOfEachLiteralFromTheLeft) {
  EXPECT_THAT(TextsOf("x = \"one\" & \"two\" & y"), ElementsAre("one", "two"));
}

TEST(SpellingPieces, HaveTheTextBehindTheApostropheOfAComment) {
  EXPECT_THAT(TextsOf("x = 1 ' counts"), ElementsAre(" counts"));
  EXPECT_THAT(TextsOf("'note"), ElementsAre("note"));
}

TEST(SpellingPieces, HaveLiteralsInFrontOfTheComment) {
  EXPECT_THAT(TextsOf("x = \"one\" ' two"), ElementsAre("one", " two"));
}

TEST(SpellingPieces, TakeTheFirstApostropheForTheCommentEvenInsideALiteral) {
  EXPECT_THAT(TextsOf("s = \"don't\" ' note"), ElementsAre("don't", "t\" ' note"));
}

TEST(SpellingPieces, EndWithALiteralThatEndsTheLine) {
  EXPECT_THAT(TextsOf("s = \"don't\""), ElementsAre("don't"));
}

TEST(SpellingPieces, TakeABlankBehindALiteralForMoreOfTheLine) {
  EXPECT_THAT(TextsOf("s = \"don't\" "), ElementsAre("don't", "t\" "));
}

TEST(SpellingPieces, TakeQuotedWordsOfACommentFirstAndThenTheWholeComment) {
  EXPECT_THAT(TextsOf("' say \"hi\" to"), ElementsAre("hi", " say \"hi\" to"));
}

TEST(SpellingPieces, EndWithAQuotedWordThatEndsTheComment) {
  EXPECT_THAT(TextsOf("' say \"hi\""), ElementsAre("hi"));
}

TEST(SpellingPieces, TakeADoubledQuoteForTheEndOfOneLiteralAndTheStartOfTheNext) {
  EXPECT_THAT(TextsOf("s = \"a \"\"b\"\" c\""), ElementsAre("a ", "b", " c"));
}

TEST(SpellingPieces, AreEmptyForALiteralWithoutText) {
  EXPECT_THAT(TextsOf("s = \"\""), ElementsAre(""));
}

TEST(SpellingPieces, AreEmptyForACommentWithoutText) {
  EXPECT_THAT(TextsOf("x = 1 '"), ElementsAre(""));
}

TEST(SpellingPieces, LeaveTheSeparatorLineOut) { EXPECT_THAT(TextsOf("'====="), IsEmpty()); }

TEST(SpellingPieces, TakeALineThatIsNotTheWholeSeparatorForAComment) {
  EXPECT_THAT(TextsOf("'===="), ElementsAre("===="));
  EXPECT_THAT(TextsOf(" '====="), ElementsAre("====="));
  EXPECT_THAT(TextsOf("'===== "), ElementsAre("===== "));
}

TEST(SpellingPieces, LookForLiteralsInASeparatorLineAllTheSame) {
  EXPECT_THAT(TextsOf("'\"x\" ", "'\"x\" "), ElementsAre("x"));
}

TEST(SpellingPieces, TakeAQuoteWithoutItsPartnerForTextOfTheComment) {
  EXPECT_THAT(TextsOf("x = 1 ' 5\" wide"), ElementsAre(" 5\" wide"));
  EXPECT_THAT(TextsOf("s = \"it's\" ' 5\" wide"), ElementsAre("it's", "s\" ' 5\" wide"));
}

TEST(SpellingPieces, LeaveALineAloneFromAQuoteWithoutItsPartnerOn) {
  EXPECT_THAT(TextsOf("s = \"half"), IsEmpty());
  EXPECT_THAT(TextsOf("s = \"one\" & \"half"), ElementsAre("one"));
  EXPECT_THAT(TextsOf("s = \"half ' note"), IsEmpty());
}

TEST(SpellingPieces, LeaveASeparatorLineWithALoneQuoteOut) {
  EXPECT_THAT(TextsOf("'==\"==", "'==\"=="), IsEmpty());
}

TEST(SpellingPieces, TellWhereTheyStand) {
  EXPECT_THAT(SpellingPieces("x = \"one\" ' two", kSeparator),
              ElementsAre(SpellingPiece{5, 3, 6, false}, SpellingPiece{11, 4, 12, true}));
}

TEST(SpellingPieces, CountCharactersForTheirColumnAndBytesForTheirPlace) {
  EXPECT_THAT(SpellingPieces("s = \"Größe\" ' für", kSeparator),
              ElementsAre(SpellingPiece{5, 7, 6, false}, SpellingPiece{15, 5, 14, true}));
}

}  // namespace spelling_pieces_test
}  // namespace brimwork
