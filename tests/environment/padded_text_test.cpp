#include "environment/padded_text.h"

#include <gtest/gtest.h>

#include <array>
#include <string>

namespace brimwork {
namespace padded_text_test {

std::array<bool, 256> Letters() {
  std::array<bool, 256> letters{};
  for (std::size_t c = 'a'; c <= 'z'; ++c) letters[c] = true;
  return letters;
}

TEST(PaddedText, IsEmptyAtFirst) { EXPECT_EQ(PaddedText().View(), ""); }

TEST(PaddedText, GrowsByWhatIsAppended) {
  PaddedText text;
  text.Append("Dim");
  text.Append(' ');
  text.Append("");
  text.Append("x");
  EXPECT_EQ(text.View(), "Dim x");
  EXPECT_EQ(text.Size(), 5u);
}

TEST(PaddedText, StartsOverWhenCleared) {
  PaddedText text;
  text.Append("Dim");
  text.Clear();
  text.Append("x");
  EXPECT_EQ(text.View(), "x");
}

TEST(PaddedText, KeepsEverythingAsItGrows) {
  PaddedText text;
  std::string expected;
  for (int i = 0; i < 5000; ++i) {
    const std::string piece = std::to_string(i);
    text.Append(piece);
    text.Append(',');
    expected += piece + ',';
  }
  EXPECT_EQ(text.View(), expected);
}

TEST(PaddedText, TakesPaddedPiecesOfEveryLength) {
  for (std::size_t length = 0; length < 50; ++length) {
    PaddedText piece;
    piece.Append(std::string(length, 'x'));
    PaddedText text;
    std::string expected;
    for (int i = 0; i < 100; ++i) {
      text.AppendPadded(piece.View());
      text.Append('|');
      expected += std::string(length, 'x') + '|';
    }
    EXPECT_EQ(text.View(), expected) << length;
  }
}

TEST(PaddedText, TakesAPieceLongerThanAllRoom) {
  const std::string piece(100'000, 'x');
  PaddedText text;
  text.Append("a");
  text.Append(piece);
  EXPECT_EQ(text.View(), 'a' + piece);
}

TEST(PaddedText, StopsAtTheFirstCharacterThatItDoesNotLikeWhereverThatStands) {
  for (std::size_t place = 0; place < 20; ++place) {
    std::string piece(20, 'x');
    piece[place] = '1';
    PaddedText text;
    EXPECT_EQ(text.AppendWhile(piece, Letters()), place);
    EXPECT_EQ(text.View(), piece.substr(0, place));
  }
}

TEST(PaddedText, AppendsAsLongAsItLikesTheCharacters) {
  PaddedText text;
  EXPECT_EQ(text.AppendWhile("abc1de", Letters()), 3u);
  EXPECT_EQ(text.AppendWhile("1", Letters()), 0u);
  EXPECT_EQ(text.AppendWhile("", Letters()), 0u);
  EXPECT_EQ(text.AppendWhile("\xFF", Letters()), 0u);
  EXPECT_EQ(text.AppendWhile("de", Letters()), 2u);
  EXPECT_EQ(text.View(), "abcde");
}

}  // namespace padded_text_test
}  // namespace brimwork
