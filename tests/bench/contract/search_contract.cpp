// CodeModule.Find.
#include "bench/contract/contract_environment.h"

namespace brimwork::contract {

TEST_P(SearchContract, ComparesLetterCase) {
  const auto module = Open({"abc", "xABCx", "abc"});
  Selection range{1, 1, -1, -1};
  EXPECT_TRUE(module->Find("ABC", range));
  EXPECT_EQ(range, (Selection{2, 2, 2, 5}));
}

TEST_P(SearchContract, LeavesTheRangeAloneWhenNothingIsFound) {
  const auto module = Open({"abc"});
  Selection range{1, 1, -1, -1};
  EXPECT_FALSE(module->Find("d", range));
  EXPECT_EQ(range, (Selection{1, 1, -1, -1}));
}

TEST_P(SearchContract, StartsAtTheRangesStart) {
  const auto module = Open({"ab ab", "ab"});
  Selection range{1, 2, -1, -1};
  EXPECT_TRUE(module->Find("ab", range));
  EXPECT_EQ(range, (Selection{1, 4, 1, 6}));
}

TEST_P(SearchContract, EndsAtTheRangesEnd) {
  const auto module = Open({"x", "ab", "ab"});
  Selection firstLine{1, 1, 1, -1};
  EXPECT_FALSE(module->Find("ab", firstLine));
  Selection wholeSecondLine{2, 1, 2, 3};
  EXPECT_TRUE(module->Find("ab", wholeSecondLine));
  EXPECT_EQ(wholeSecondLine, (Selection{2, 1, 2, 3}));
  Selection toTheModulesEnd{3, 1, -1, -1};
  EXPECT_TRUE(module->Find("ab", toTheModulesEnd));
  EXPECT_EQ(toTheModulesEnd, (Selection{3, 1, 3, 3}));
}

TEST_P(SearchContract, FindsNothingBehindTheEnd) {
  const auto module = Open({"ab"});
  Selection range{2, 1, -1, -1};
  EXPECT_FALSE(module->Find("ab", range));
}

TEST_P(SearchContract, CountsColumnsInCharacters) {
  const auto module = Open({"Größe = 1", "\xF0\x9F\x98\x80\xF0\x9F\x98\x80 = 2 ="});
  Selection range{1, 1, -1, -1};
  EXPECT_TRUE(module->Find("= 1", range));
  EXPECT_EQ(range, (Selection{1, 7, 1, 10}));
  Selection second{2, 1, -1, -1};
  EXPECT_TRUE(module->Find("=", second));
  EXPECT_EQ(second, (Selection{2, 4, 2, 5}));
  Selection behindIt{2, 5, 2, 9};
  EXPECT_TRUE(module->Find("=", behindIt));
  EXPECT_EQ(behindIt, (Selection{2, 8, 2, 9}));
}

}  // namespace brimwork::contract
