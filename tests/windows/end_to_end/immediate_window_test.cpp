// "Clear Immediate Window", clicked in the bench.
#include <windows.h>

#include <gtest/gtest.h>

#include <string>

#include "support/windows/user.h"
#include "support/windows/users_clipboard.h"
#include "support/windows/waiting.h"
#include "windows/end_to_end/bench_suite.h"
#include "windows/end_to_end/bench_windows.h"
#include "windows/end_to_end/entry_clicks.h"

namespace brimwork {
namespace immediate_window_test {

using win32::Variant;

constexpr const char* kComponent = "modStock";
constexpr const char* kText = "Private Sub Count()\r\nEnd Sub";
constexpr const char* kTyped = "? Größe(1)";

class ImmediateWindowTest : public BenchSuite, public ::testing::WithParamInterface<int> {
 protected:
  void SetUp() override {
    pane_ = ShowText(kComponent, kText, 1, 1);
    PutOnClipboard(kUsersText);
    Immediate().Put(L"Visible", Variant(true));
    Immediate().Call(L"SetFocus");
    PressKey('A', {VK_CONTROL});
    TypeText(kTyped);
    ASSERT_TRUE(WaitUntil([&] { return TextShown() == kTyped; }));
  }

  static bench::Client Immediate() {
    return Bench().Vbe().Object(L"Windows").Object(L"Item", {Variant("Immediate")});
  }
  static std::string TextShown() {
    const auto handle = static_cast<INT_PTR>(Immediate().Number(L"HWnd"));
    return TitleOf(ChildOf(reinterpret_cast<HWND>(handle), "Edit"));
  }

  bench::Client pane_{nullptr};
};

class ClearImmediateWindowEntry : public ImmediateWindowTest {};

TEST_P(ClearImmediateWindowEntry, EmptiesTheWindowAndLeavesItTheKeyboard) {
  if (EntryOfHandler(GetParam()).place != EntryPlace::kImmediateWindowPopup) {
    pane_.Object(L"Window").Call(L"SetFocus");
  }

  ClickEntry(Bench(), GetParam());

  EXPECT_TRUE(WaitUntil([&] { return TextShown().empty(); })) << TextShown();
  EXPECT_EQ(Bench().Vbe().Object(L"ActiveWindow").Text(L"Caption"), "Immediate");
  EXPECT_EQ(TextOf(pane_), kText);
  EXPECT_EQ(TextOnClipboard(), kUsersText);
  EXPECT_TRUE(WaitUntilAlone(Bench()));
}

INSTANTIATE_TEST_SUITE_P(All, ClearImmediateWindowEntry, ::testing::Values(8, 26, 34, 49),
                         HandlerName);

class HiddenImmediateWindow : public ImmediateWindowTest {};

TEST_P(HiddenImmediateWindow, StaysAsItIsAndSoDoesTheCode) {
  Immediate().Put(L"Visible", Variant(false));
  pane_.Object(L"Window").Call(L"SetFocus");

  ClickEntry(Bench(), GetParam());
  TypeText("x");

  const std::string typedInto = std::string("x") + kText;
  EXPECT_TRUE(WaitUntil([&] { return TextOf(pane_) == typedInto; })) << TextOf(pane_);
  Immediate().Put(L"Visible", Variant(true));
  EXPECT_EQ(TextShown(), kTyped);
}

INSTANTIATE_TEST_SUITE_P(Some, HiddenImmediateWindow, ::testing::Values(8, 26), HandlerName);

}  // namespace immediate_window_test
}  // namespace brimwork
