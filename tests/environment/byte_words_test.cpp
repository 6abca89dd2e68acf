#include "environment/byte_words.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

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

TEST(Packed, HasABitForEachFlag) {
  for (std::size_t place = 0; place < 16; ++place) {
    std::vector<unsigned char> flags(16, 0);
    flags[place] = 1;
    EXPECT_EQ(byte_words::Packed(flags.data()), std::uint64_t{1} << place);
    for (unsigned char& flag : flags) flag = 1 - flag;
    EXPECT_EQ(byte_words::Packed(flags.data()), 0xFFFF - (std::uint64_t{1} << place));
  }
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

TEST(IsAscii, FindsAByteAboveAtEveryPlaceOfTextsOfEveryLength) {
  EXPECT_TRUE(IsAscii(""));
  for (std::size_t length = 1; length < 40; ++length) {
    for (std::size_t place = 0; place < length; ++place) {
      std::string text(length, '\x7f');
      EXPECT_TRUE(IsAscii(text));
      text[place] = '\x80';
      EXPECT_FALSE(IsAscii(text)) << length << ' ' << place;
    }
  }
}

TEST(SizeWithout, IsTheWayToTheFirstOfThem) {
  for (std::size_t place = 0; place < 40; ++place) {
    std::string text(60, '!');  // the neighbour of the blank
    text[place] = ' ';
    text[place + 3] = ' ';
    EXPECT_EQ(byte_words::SizeWithout<' '>(text.data()), place);
  }
}

TEST(ForEach, ComesToEveryPlaceInOrder) {
  for (std::size_t length = 0; length < 40; ++length) {
    std::string text(length, '\v');  // the neighbour of the line feed
    std::vector<std::size_t> expected;
    for (std::size_t place = length % 3; place < length; place += 1 + place % 5) {
      text[place] = '\n';
      expected.push_back(place);
    }
    std::vector<std::size_t> found;
    ForEach<'\n'>(text, [&](std::size_t place) { found.push_back(place); });
    EXPECT_EQ(found, expected) << length;
  }
}

TEST(ForEach, IsNotMisledByBytesThatDifferInOneBit) {
  std::string text;
  for (int c = 255; c >= 0; --c) text += static_cast<char>(c);
  std::vector<std::size_t> found;
  ForEach<'\n'>(text, [&](std::size_t place) { found.push_back(place); });
  EXPECT_EQ(found, std::vector<std::size_t>{255 - '\n'});
}

TEST(CountOf, CountsEachOfThem) {
  EXPECT_EQ(CountOf("", '\n'), 0u);
  EXPECT_EQ(CountOf("a\nb\n", '\n'), 2u);
  EXPECT_EQ(CountOf("ab", '\n'), 0u);
}

TEST(CountOf, CountsMoreThanAByteHolds) {
  for (const std::size_t length : {239, 240, 241, 255, 256, 1000, 100'000}) {
    EXPECT_EQ(CountOf(std::string(length, '\n'), '\n'), length);
    EXPECT_EQ(CountOf(std::string(length, '\n') + "x", 'x'), 1u);
  }
}

}  // namespace byte_words_test
}  // namespace brimwork
