// "Close Windows" and "Full Screen", clicked in the bench.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "environment/window.h"
#include "support/windows/waiting.h"
#include "windows/end_to_end/bench_suite.h"
#include "windows/end_to_end/bench_windows.h"
#include "windows/end_to_end/entry_clicks.h"

namespace brimwork {
namespace window_entries_test {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAreArray;
using win32::Variant;

/// Without code windows, designers and the main window.
std::vector<std::string> ShownToolWindows(const RunningBench& bench) {
  constexpr int kOthers[] = {window_type::kCodeWindow, window_type::kDesigner,
                             window_type::kMainWindow};
  std::vector<std::string> windows = ShownWindows(bench);
  for (const int type : kOthers) {
    std::erase_if(windows, [&](const std::string& window) {
      return window.ends_with('|' + std::to_string(type));
    });
  }
  return windows;
}

class CloseWindowsEntry : public BenchSuite, public ::testing::WithParamInterface<int> {};

TEST_P(CloseWindowsEntry, LeavesTheActiveWindowAndAllToolWindows) {
  const bench::Client components = Bench().Vbe().Object(L"ActiveVBProject").Object(L"VBComponents");
  components.Object(L"Item", {Variant("frmDesk")}).Object(L"DesignerWindow").Call(L"SetFocus");
  for (const char* component : {"modPrices", "InvoiceLine"}) Bench().OpenModule(component);
  const std::string text = TextOf(Bench().OpenModule("modStock"));
  ASSERT_GE(OpenDocuments(Bench()), 4);
  const auto tools = ShownToolWindows(Bench());
  ASSERT_FALSE(tools.empty());

  ClickEntry(Bench(), GetParam());

  ASSERT_TRUE(WaitUntil([] { return OpenDocuments(Bench()) == 1; }));
  EXPECT_EQ(TextOf(Bench().Vbe().Object(L"ActiveCodePane")), text);
  EXPECT_EQ(ShownToolWindows(Bench()), tools);
  EXPECT_TRUE(WaitUntilAlone(Bench()));
}

INSTANTIATE_TEST_SUITE_P(All, CloseWindowsEntry, ::testing::Values(7, 48), HandlerName);

constexpr int kInMenu = 11;

class FullScreenTest : public BenchSuite, public ::testing::WithParamInterface<int> {
 protected:
  void SetUp() override {
    pane_ = ShowText("modStock", kText, 1, 1);
    tools_ = ShownToolWindows(Bench());
    bars_ = ShownBars(Bench());
    ASSERT_GE(tools_.size(), 2u);
    ASSERT_GE(bars_.size(), 3u);
  }

  void ExpectFullScreen() {
    EXPECT_TRUE(WaitUntil([] { return ShownBars(Bench()).size() == 1; }));
    EXPECT_THAT(ShownBars(Bench()), ElementsAre("Menu Bar"));
    EXPECT_THAT(ShownToolWindows(Bench()), IsEmpty());
    EXPECT_EQ(TextOf(Bench().Vbe().Object(L"ActiveCodePane")), kText);
  }
  void ExpectAsBefore() {
    EXPECT_TRUE(WaitUntil([&] { return ShownBars(Bench()).size() == bars_.size(); }));
    EXPECT_THAT(ShownBars(Bench()), UnorderedElementsAreArray(bars_));
    EXPECT_EQ(ShownToolWindows(Bench()), tools_);
    EXPECT_TRUE(WaitUntilAlone(Bench()));
  }

  static constexpr const char* kText = "Private Sub Count()\r\nEnd Sub";
  std::vector<std::string> tools_;
  std::vector<std::string> bars_;
  bench::Client pane_{nullptr};
};

class FullScreenEntry : public FullScreenTest {};

TEST_P(FullScreenEntry, HidesToolWindowsAndBarsAndShowsThemAgain) {
  ClickEntry(Bench(), GetParam());
  ExpectFullScreen();
  // The toolbar is hidden by then.
  const bool isOnToolbar = EntryOfHandler(GetParam()).place == EntryPlace::kToolbar;
  ClickEntry(Bench(), isOnToolbar ? kInMenu : GetParam());
  ExpectAsBefore();
}

INSTANTIATE_TEST_SUITE_P(All, FullScreenEntry, ::testing::Values(11, 27, 52), HandlerName);

class FullScreenAcrossConnections : public FullScreenTest {};

TEST_P(FullScreenAcrossConnections, KnowsWhatItHid) {
  ClickEntry(Bench(), GetParam());
  ExpectFullScreen();
  Bench().Connect(false);
  Bench().Connect(true);
  ExpectFullScreen();
  ClickEntry(Bench(), kInMenu);
  ExpectAsBefore();
}

INSTANTIATE_TEST_SUITE_P(Some, FullScreenAcrossConnections, ::testing::Values(52), HandlerName);

}  // namespace window_entries_test
}  // namespace brimwork
