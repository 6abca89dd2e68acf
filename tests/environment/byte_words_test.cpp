#include "environment/byte_words.h"

#include <gtest/gtest.h>

#include <string>

namespace brimwork {
namespace byte_words_test {

TEST(ContainsOneOf, FindsACharacterAtEveryPlaceOfTextsOfEveryLength) {
  for (std::size_t length = 1; length < 40; ++length) {
    for (std::size_t place = 0; place < length; ++place) {
      std::string text(length, 'x');
      EXPECT_FALSE((ContainsOneOf<'"', ':'>(text)));
      text[place] = ':';
      EXPECT_TRUE((ContainsOneOf<'"', ':'>(text))) << length << ' ' << place;
    }
  }
}

TEST(ContainsOneOf, FindsNothingInAnEmptyText) { EXPECT_FALSE(ContainsOneOf<':'>("")); }

TEST(ContainsOneOf, IsNotMisledByNeighbouringCharacters) {
  EXPECT_FALSE(ContainsOneOf<':'>("9;9;9;9;9;9;\x7f\x80\xba\xff"));
}

TEST(HoldsLineFeedOrNonAscii, TellsPlainLinesFromTheOthers) {
  for (std::size_t length = 1; length < 40; ++length) {
    for (std::size_t place = 0; place < length; ++place) {
      std::string text(length, '\t');
      EXPECT_FALSE(HoldsLineFeedOrNonAscii(text));
      text[place] = '\n';
      EXPECT_TRUE(HoldsLineFeedOrNonAscii(text));
      text[place] = '\x80';
      EXPECT_TRUE(HoldsLineFeedOrNonAscii(text));
    }
  }
}

}  // namespace byte_words_test
}  // namespace brimwork
