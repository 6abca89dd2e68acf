// Text that is too long for the rich text control.
#include <gtest/gtest.h>
#include <sys/mman.h>

#include <string_view>

#include "environment/run_time_error.h"
#include "memory/rich_text.h"

namespace brimwork {
namespace rich_text_size_test {

template <class Action>
int ErrorOf(Action action) {
  try {
    action();
  } catch (const RunTimeError& error) {
    return error.Number();
  }
  return 0;
}

/// Addresses without memory behind them: nobody may look at so long a text.
TEST(RichTextSize, OfMoreThanTwoGigabytesRaisesErrorSix) {
  constexpr std::size_t kSize = RichText::kMostBytes + 1;
  void* const pages =
      mmap(nullptr, kSize, PROT_NONE, MAP_PRIVATE | MAP_ANONYMOUS | MAP_NORESERVE, -1, 0);
  if (pages == MAP_FAILED) GTEST_SKIP() << "the system gives no 2 GB of addresses";
  const std::string_view huge(static_cast<const char*>(pages), kSize);
  RichText content;
  content.SetText("kept");
  EXPECT_EQ(ErrorOf([&] { content.SetText(huge); }), error_number::kOverflow);
  EXPECT_EQ(ErrorOf([&] { content.Replace({0, 0}, huge); }), error_number::kOverflow);
  EXPECT_EQ(content.Text(), "kept");
  munmap(pages, kSize);
}

}  // namespace rich_text_size_test
}  // namespace brimwork
