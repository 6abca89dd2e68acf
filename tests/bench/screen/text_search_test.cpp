// What the Find dialog finds.
#include "bench/screen/text_search.h"

#include <gtest/gtest.h>

namespace brimwork::bench {
namespace text_search_test {

TEST(TextSearch, FindsTheNextPlaceAtOrBehindTheCaret) {
  EXPECT_EQ(FindNext(L"ab ab ab", {L"ab"}, 0), 0U);
  EXPECT_EQ(FindNext(L"ab ab ab", {L"ab"}, 1), 3U);
  EXPECT_EQ(FindNext(L"ab ab ab", {L"ab"}, 3), 3U);
}

TEST(TextSearch, GoesOnFromTheStart) {
  EXPECT_EQ(FindNext(L"ab cd", {L"ab"}, 1), 0U);
  EXPECT_EQ(FindNext(L"ab cd", {L"ab"}, 5), 0U);
}

TEST(TextSearch, SetsCaseAsideUnlessItIsToMatch) {
  EXPECT_EQ(FindNext(L"x \x00DC"
                     L"ber",
                     {L"\x00FC"
                      L"BER"},
                     0),
            2U);
  EXPECT_EQ(FindNext(L"Dim dim", {L"dim", true}, 0), 4U);
  EXPECT_EQ(FindNext(L"Dim", {L"dim", true}, 0), std::nullopt);
}

TEST(TextSearch, TakesWholeWordsOnly) {
  EXPECT_EQ(FindNext(L"counter count_ count", {L"count", false, true}, 0), 15U);
  EXPECT_EQ(FindNext(L"counter", {L"count", false, true}, 0), std::nullopt);
  EXPECT_EQ(FindNext(L"(count)", {L"count", false, true}, 0), 1U);
}

TEST(TextSearch, FindsNothingForNothing) {
  EXPECT_EQ(FindNext(L"text", {L""}, 0), std::nullopt);
  EXPECT_EQ(FindNext(L"", {L"text"}, 0), std::nullopt);
}

}  // namespace text_search_test
}  // namespace brimwork::bench
