// Windows by handle, on windows of the test's own.
#include <gtest/gtest.h>

#include "win32/wide_text.h"
#include "windows/desktop/handles.h"
#include "windows/desktop/system_dialog_windows.h"
#include "windows/desktop/system_native_windows.h"
#include "windows/desktop/thread_messages.h"

namespace brimwork::windows {
namespace system_windows_test {

class SystemWindowsTest : public testing::Test {
 protected:
  SystemWindowsTest() {
    window_ =
        CreateWindowExW(0, L"STATIC", L"Brimwork Fenster 日本", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                        30, 40, 300, 200, nullptr, nullptr, nullptr, nullptr);
    for (HWND& button : buttons_) {
      button = CreateWindowExW(0, L"BUTTON", L"&Ja", WS_CHILD | WS_VISIBLE, 1, 2, 50, 20, window_,
                               nullptr, nullptr, nullptr);
    }
  }
  ~SystemWindowsTest() override {
    DestroyWindow(window_);
    ThreadMessages().DoEvents();
  }

  WindowHandle Window() const { return AsHandle(window_); }

  HWND window_;
  HWND buttons_[2];
  SystemNativeWindows native_;
  SystemDialogWindows dialog_;
};

TEST_F(SystemWindowsTest, ADestroyedWindowIsNone) {
  EXPECT_TRUE(native_.IsWindow(Window()));
  DestroyWindow(window_);
  EXPECT_FALSE(native_.IsWindow(Window()));
  EXPECT_FALSE(native_.IsWindow(0));
}

TEST_F(SystemWindowsTest, SetWindowPosMovesAndKeepsOnTop) {
  native_.SetWindowPos(Window(), {.insertAfter = window_order::kTopMost,
                                  .x = 50,
                                  .y = 60,
                                  .flags = window_position_flag::kNoSize});
  EXPECT_EQ(dialog_.GetWindowRect(Window()), (WindowRectangle{50, 60, 350, 260}));
  EXPECT_NE(GetWindowLongPtrW(window_, GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
  native_.SetWindowPos(Window(),
                       {.insertAfter = window_order::kNotTopMost,
                        .flags = window_position_flag::kNoMove | window_position_flag::kNoSize});
  EXPECT_EQ(GetWindowLongPtrW(window_, GWL_EXSTYLE) & WS_EX_TOPMOST, 0);
}

TEST_F(SystemWindowsTest, ItemsOfTheSystemMenuAreReadAndChanged) {
  constexpr std::int32_t kOwnNumber = -10;
  const MenuHandle menu = native_.GetSystemMenu(Window(), false);
  ASSERT_NE(menu, 0u);
  MenuItemInfo info;
  info.mask = menu_item_mask::kState;
  ASSERT_TRUE(native_.GetMenuItemInfo(menu, SC_CLOSE, info));
  info.mask = menu_item_mask::kId;
  info.id = kOwnNumber;
  ASSERT_TRUE(native_.SetMenuItemInfo(menu, SC_CLOSE, info));
  EXPECT_FALSE(native_.GetMenuItemInfo(menu, SC_CLOSE, info));
  info.mask = menu_item_mask::kState;
  info.state |= menu_item_state::kGrayed;
  ASSERT_TRUE(native_.SetMenuItemInfo(menu, kOwnNumber, info));
  MenuItemInfo read;
  read.mask = menu_item_mask::kState | menu_item_mask::kId;
  ASSERT_TRUE(native_.GetMenuItemInfo(menu, kOwnNumber, read));
  EXPECT_EQ(read.state & menu_item_state::kGrayed, menu_item_state::kGrayed);
  EXPECT_EQ(read.id, kOwnNumber);
}

TEST_F(SystemWindowsTest, TheStandardSystemMenuIsPutBack) {
  MenuItemInfo info;
  info.mask = menu_item_mask::kId;
  info.id = 1;
  ASSERT_TRUE(native_.SetMenuItemInfo(native_.GetSystemMenu(Window(), false), SC_CLOSE, info));
  native_.GetSystemMenu(Window(), true);
  EXPECT_TRUE(native_.GetMenuItemInfo(native_.GetSystemMenu(Window(), false), SC_CLOSE, info));
}

TEST_F(SystemWindowsTest, WhatIsNotThereIsNotDone) {
  MenuItemInfo info;
  info.mask = menu_item_mask::kState;
  EXPECT_EQ(native_.GetSystemMenu(0xBAD, false), 0u);
  EXPECT_FALSE(native_.GetMenuItemInfo(0, SC_CLOSE, info));
  EXPECT_FALSE(native_.SetMenuItemInfo(0, SC_CLOSE, info));
  EXPECT_EQ(native_.SendMessage(0xBAD, WM_GETTEXTLENGTH, 0, 0), 0);
  native_.SetWindowPos(0xBAD, {});
  dialog_.MoveWindow(0xBAD, {}, true);
  dialog_.SetWindowText(0xBAD, "text");
  dialog_.SetForegroundWindow(0xBAD);
  EXPECT_EQ(dialog_.GetWindowRect(0xBAD), WindowRectangle());
  EXPECT_EQ(dialog_.CreateWindowEx({.className = "no such class"}), 0u);
  EXPECT_EQ(dialog_.FindWindow("Static", "no such window"), 0u);
  EXPECT_EQ(dialog_.FindWindowEx(0xBAD, 0, "Button", "&Ja"), 0u);
}

TEST_F(SystemWindowsTest, AMessageGivesTheWindowsAnswer) {
  EXPECT_EQ(native_.SendMessage(Window(), WM_GETTEXTLENGTH, 0, 0), 19);
}

TEST_F(SystemWindowsTest, WindowsAreFoundByClassAndTitleWhateverTheCase) {
  EXPECT_EQ(dialog_.FindWindow("sTATIC", "bRIMWORK Fenster 日本"), Window());
  EXPECT_EQ(dialog_.FindWindow("Button", "Brimwork Fenster 日本"), 0u);
}

TEST_F(SystemWindowsTest, ChildrenAreFoundOneBehindTheOther) {
  const WindowHandle first = dialog_.FindWindowEx(Window(), 0, "Button", "&ja");
  const WindowHandle second = dialog_.FindWindowEx(Window(), first, "Button", "&Ja");
  EXPECT_NE(first, second);
  EXPECT_TRUE(first == AsHandle(buttons_[0]) || first == AsHandle(buttons_[1]));
  EXPECT_TRUE(second == AsHandle(buttons_[0]) || second == AsHandle(buttons_[1]));
  EXPECT_EQ(dialog_.FindWindowEx(Window(), second, "Button", "&Ja"), 0u);
}

TEST_F(SystemWindowsTest, ACheckBoxIsAddedAndAsked) {
  using namespace window_style;
  const WindowHandle box =
      dialog_.CreateWindowEx({.className = "Button",
                              .text = "Größe 日本",
                              .style = kChild | kVisible | kTabStop | kAutoCheckBox,
                              .area = {3, 100, 120, 16},
                              .parent = Window()});
  ASSERT_NE(box, 0u);
  EXPECT_EQ(dialog_.FindWindowEx(Window(), 0, "Button", "Größe 日本"), box);
  EXPECT_EQ(dialog_.GetWindowRect(box).Width(), 120);
  EXPECT_EQ(native_.SendMessage(box, window_message::kGetButtonState, 0, 0), 0);
  native_.SendMessage(box, BM_SETCHECK, BST_CHECKED, 0);
  EXPECT_EQ(
      native_.SendMessage(box, window_message::kGetButtonState, 0, 0) & button_state::kChecked,
      button_state::kChecked);
}

TEST_F(SystemWindowsTest, WindowsTakeTextAndPlace) {
  dialog_.SetWindowText(AsHandle(buttons_[0]), "&Oui 日本");
  EXPECT_EQ(dialog_.FindWindowEx(Window(), 0, "Button", "&Oui 日本"), AsHandle(buttons_[0]));
  dialog_.MoveWindow(Window(), {10, 20, 400, 150}, true);
  EXPECT_EQ(dialog_.GetWindowRect(Window()), (WindowRectangle{10, 20, 410, 170}));
}

TEST_F(SystemWindowsTest, TheWindowBroughtToTheFrontHasTheFocusThatItIsGiven) {
  dialog_.SetForegroundWindow(Window());
  SetFocus(buttons_[1]);
  if (::GetFocus() != buttons_[1]) GTEST_SKIP() << "this desktop gives a window no focus";
  EXPECT_EQ(dialog_.GetFocus(), AsHandle(buttons_[1]));
}

}  // namespace system_windows_test
}  // namespace brimwork::windows
