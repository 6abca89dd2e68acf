// Commands that need code, clicked in the bench while no code window is open.
#include <windows.h>

#include <gtest/gtest.h>

#include "support/windows/user.h"
#include "windows/end_to_end/bench_suite.h"
#include "windows/end_to_end/bench_windows.h"
#include "windows/end_to_end/entry_clicks.h"

namespace brimwork {
namespace no_code_source_test {

class EntryWithoutCode : public BenchSuite, public ::testing::WithParamInterface<int> {};

TEST_P(EntryWithoutCode, TellsTheUserOnce) {
  CloseDocuments(Bench());
  ASSERT_EQ(OpenDocuments(Bench()), 0);

  ClickEntry(Bench(), GetParam());

  const HWND box = WaitForDialog(Bench(), "Need Valid Code Source");
  ASSERT_NE(box, nullptr);
  EXPECT_EQ(MessageIn(box),
            "Please pick a valid code source to work with\r\n"
            "You need to set the focus on a valid code source to execute this command");
  PressKey(VK_RETURN);
  EXPECT_TRUE(Bench().WaitUntilGone(box));
  EXPECT_TRUE(WaitUntilAlone(Bench()));
  EXPECT_EQ(OpenDocuments(Bench()), 0);
}

/// One for each way on which commands come by their code, from the menu and from the toolbar.
INSTANTIATE_TEST_SUITE_P(Some, EntryWithoutCode, ::testing::Values(2, 3, 10, 20, 22, 37, 42, 47),
                         HandlerName);

}  // namespace no_code_source_test
}  // namespace brimwork
