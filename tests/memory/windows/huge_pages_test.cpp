// Windows has no large pages for everybody, so there the hints must do nothing.
#include "memory/huge_pages.h"

#include <gtest/gtest.h>

#include <string>

namespace brimwork {
namespace windows_huge_pages_test {

TEST(WindowsHugePages, LeaveMemoryAsItIs) {
  std::string large(16 << 20, 'x');
  PreferHugePages(large.data(), large.size());
  PreferHugePages(nullptr, 0);
  PreferHugeHeap();
  EXPECT_EQ(large, std::string(large.size(), 'x'));
  large.resize(large.size() * 2, 'y');
  EXPECT_EQ(large.back(), 'y');
}

}  // namespace windows_huge_pages_test
}  // namespace brimwork
