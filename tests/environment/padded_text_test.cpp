#include "environment/padded_text.h"

#include <gtest/gtest.h>

#include <string>

namespace brimwork {
namespace padded_text_test {

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

}  // namespace padded_text_test
}  // namespace brimwork
