// What is trusted to notice a lost line must notice one.
#include "support/kept_lines.h"

#include <gtest/gtest.h>

namespace brimwork {
namespace kept_lines_test {

TEST(KeptLines, NamesTheFirstLineThatIsMissing) {
  EXPECT_EQ(FirstLostLine("a = 1\r\nb = 2\r\nc = 3", "a = 1\r\nc = 3"), "b = 2");
}

TEST(KeptLines, NamesALineThatChangedItsPlace) {
  EXPECT_EQ(FirstLostLine("a = 1\r\nb = 2", "b = 2\r\na = 1"), "b = 2");
}

TEST(KeptLines, NamesALineThatStandsThereFewerTimes) {
  EXPECT_EQ(FirstLostLine("a = 1\r\na = 1", "a = 1"), "a = 1");
}

TEST(KeptLines, NamesALineWhoseTextChanged) {
  EXPECT_EQ(FirstLostLine("a = 1", "a = 1 ' one"), "a = 1");
}

TEST(KeptLines, AllowsLayoutAndLineNumbersToChangeAndLinesToComeBetween) {
  EXPECT_EQ(FirstLostLine("10: a = 1\r\n\tb = 2 \r\n\r\n", "' new\r\n    a = 1\r\n3:     b = 2"),
            std::nullopt);
}

TEST(KeptLines, AllowsAClosingLineAnotherComment) {
  EXPECT_EQ(FirstLostLine("End Sub ' done", "End Sub 'A()"), std::nullopt);
  EXPECT_EQ(FirstLostLine("End Sub ' done", "End Function 'A()"), "End Sub ' done");
}

TEST(KeptLines, CountsNoBlankLinesAndNoBareNumbers) {
  EXPECT_EQ(CountWrittenLines("a = 1\r\n \t\r\n12:    \r\n13:    b = 2\r\n"), 2);
}

}  // namespace kept_lines_test
}  // namespace brimwork
