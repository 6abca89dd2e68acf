#include "memory/number_table.h"

#include <gtest/gtest.h>

#include <cstdint>

namespace brimwork {
namespace number_table_test {

TEST(NumberTable, NumbersValuesInTheOrderInWhichTheyAreMet) {
  NumberTable<std::uint32_t> table;
  EXPECT_EQ(table.NumberOf(700), 0);
  EXPECT_EQ(table.NumberOf(0), 1);
  EXPECT_EQ(table.NumberOf(700), 0);
  EXPECT_EQ(table.NumberOf(0xFFFFFFFF), 2);
  EXPECT_EQ(table.Values(), (std::vector<std::uint32_t>{700, 0, 0xFFFFFFFF}));
}

TEST(NumberTable, HasNoValuesAtFirst) {
  EXPECT_TRUE(NumberTable<std::uint16_t>().Values().empty());
}

TEST(NumberTable, RemembersManyValues) {
  NumberTable<std::uint16_t> table;
  constexpr int kValues = 65536;
  for (int i = 0; i < kValues; ++i) {
    ASSERT_EQ(table.NumberOf(static_cast<std::uint16_t>(i ^ 0x5555)), i);
  }
  for (int i = kValues - 1; i >= 0; --i) {
    ASSERT_EQ(table.NumberOf(static_cast<std::uint16_t>(i ^ 0x5555)), i);
  }
}

}  // namespace number_table_test
}  // namespace brimwork
