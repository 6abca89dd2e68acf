#include "cli/near_miss.h"

#include <gtest/gtest.h>

#include <array>

namespace brimwork {
namespace near_miss_test {

constexpr std::array<std::string_view, 4> kKnown{"Header", "Separator", "ErrorHandling", "Indent"};

TEST(NearMissHint, NamesTheWordThatAWrongLetterWasMeantFor) {
  EXPECT_EQ(NearMissHint("Headar", kKnown), ", did you mean \"Header\"?");
}

TEST(NearMissHint, NamesTheWordThatLacksOrHasALetter) {
  EXPECT_EQ(NearMissHint("Seprator", kKnown), ", did you mean \"Separator\"?");
  EXPECT_EQ(NearMissHint("Sepparator", kKnown), ", did you mean \"Separator\"?");
}

TEST(NearMissHint, CountsNoDifferenceOfLetterCase) {
  EXPECT_EQ(NearMissHint("ERRORHANDLING", kKnown), ", did you mean \"ErrorHandling\"?");
}

TEST(NearMissHint, TakesTheNearestOfSeveral) {
  constexpr std::array<std::string_view, 3> near{"abcd", "abxy", "abce"};
  EXPECT_EQ(NearMissHint("abxz", near), ", did you mean \"abxy\"?");
}

TEST(NearMissHint, TakesTheFirstOfEquallyNearOnes) {
  constexpr std::array<std::string_view, 2> near{"cat", "car"};
  EXPECT_EQ(NearMissHint("cap", near), ", did you mean \"cat\"?");
}

TEST(NearMissHint, AllowsMoreMistakesInALongerWord) {
  EXPECT_EQ(NearMissHint("ErorHandlng", kKnown), ", did you mean \"ErrorHandling\"?");
  EXPECT_EQ(NearMissHint("EroHandln", kKnown), "");
}

TEST(NearMissHint, SaysNothingWhenNoWordIsNear) {
  EXPECT_EQ(NearMissHint("Colour", kKnown), "");
  EXPECT_EQ(NearMissHint("Header", {}), "");
}

TEST(NearMissHint, SaysNothingOfWordsThatShareNoMoreThanTheirShortness) {
  EXPECT_EQ(NearMissHint("", kKnown), "");
  EXPECT_EQ(NearMissHint("xyz", kKnown), "");
}

}  // namespace near_miss_test
}  // namespace brimwork
