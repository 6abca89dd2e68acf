// The windows of dialogs in memory, and what windows by handle answer and remember.
#include "memory/memory_dialog_windows.h"

#include <gtest/gtest.h>

namespace brimwork {
namespace memory_dialog_windows_test {

struct MemoryDialogWindowsTest : testing::Test {
  WindowHandle AddChild(const std::string& text) {
    return native.Add({.className = "Button", .text = text, .parent = box, .area = {3, 4, 50, 20}});
  }

  MemoryNativeWindows native;
  MemoryDialogWindows windows{native};
  WindowHandle box =
      native.Add({.className = "#32770", .text = "Question", .area = {100, 200, 300, 140}});
};

TEST_F(MemoryDialogWindowsTest, FindsATopLevelWindowByClassAndTitleInAnyCase) {
  EXPECT_EQ(windows.FindWindow("#32770", "Question"), box);
  EXPECT_EQ(windows.FindWindow("#32770", "QUESTION"), box);
  EXPECT_EQ(windows.FindWindow("#32770", "Quest"), 0u);
  EXPECT_EQ(windows.FindWindow("Static", "Question"), 0u);
}

TEST_F(MemoryDialogWindowsTest, FindsNoChildAmongTheTopLevelWindows) {
  AddChild("OK");
  EXPECT_EQ(windows.FindWindow("Button", "OK"), 0u);
}

TEST_F(MemoryDialogWindowsTest, FindsTheForemostOfSeveral) {
  const WindowHandle second = native.Add({.className = "#32770", .text = "Question"});
  EXPECT_EQ(windows.FindWindow("#32770", "Question"), second);
  windows.SetForegroundWindow(box);
  EXPECT_EQ(windows.FindWindow("#32770", "Question"), box);
  native.SetWindowPos(second, {.insertAfter = window_order::kTopMost});
  EXPECT_EQ(windows.FindWindow("#32770", "Question"), second);
  native.SetWindowPos(second, {.insertAfter = window_order::kNotTopMost});
  EXPECT_EQ(windows.FindWindow("#32770", "Question"), box);
}

TEST_F(MemoryDialogWindowsTest, FindsChildrenInTheOrderOfTheirMaking) {
  const WindowHandle first = AddChild("OK");
  const WindowHandle second = AddChild("OK");
  native.BringToFront(second);
  EXPECT_EQ(windows.FindWindowEx(box, 0, "Button", "ok"), first);
  EXPECT_EQ(windows.FindWindowEx(box, first, "Button", "OK"), second);
  EXPECT_EQ(windows.FindWindowEx(box, second, "Button", "OK"), 0u);
  EXPECT_EQ(windows.FindWindowEx(first, 0, "Button", "OK"), 0u);
}

TEST_F(MemoryDialogWindowsTest, CountsRectanglesFromTheScreensCorner) {
  EXPECT_EQ(windows.GetWindowRect(box), (WindowRectangle{100, 200, 400, 340}));
  EXPECT_EQ(windows.GetWindowRect(AddChild("OK")), (WindowRectangle{103, 204, 153, 224}));
  EXPECT_EQ(windows.GetWindowRect(9), WindowRectangle());
  EXPECT_EQ(windows.GetWindowRect(0), WindowRectangle());
}

TEST_F(MemoryDialogWindowsTest, MovesAWindowWithItsChildren) {
  const WindowHandle button = AddChild("OK");
  windows.MoveWindow(box, {10, 20, 30, 40}, true);
  EXPECT_EQ(windows.GetWindowRect(box), (WindowRectangle{10, 20, 40, 60}));
  EXPECT_EQ(windows.GetWindowRect(button), (WindowRectangle{13, 24, 63, 44}));
}

TEST_F(MemoryDialogWindowsTest, PutsAWindowWhereThePositionSays) {
  native.SetWindowPos(box, {.x = 1, .y = 2, .width = 3, .height = 4});
  EXPECT_EQ(native.windows[box].area, (WindowArea{1, 2, 3, 4}));
  native.SetWindowPos(box, {.x = 5, .y = 6, .flags = window_position_flag::kNoSize});
  EXPECT_EQ(native.windows[box].area, (WindowArea{5, 6, 3, 4}));
  native.SetWindowPos(box, {.width = 7, .height = 8, .flags = window_position_flag::kNoMove});
  EXPECT_EQ(native.windows[box].area, (WindowArea{5, 6, 7, 8}));
}

TEST_F(MemoryDialogWindowsTest, MakesAChildWithAllThatWasAskedFor) {
  const WindowHandle made = windows.CreateWindowEx({.className = "Button",
                                                    .text = "Always",
                                                    .style = window_style::kChild,
                                                    .area = {1, 2, 3, 4},
                                                    .parent = box,
                                                    .instance = 5});
  ASSERT_NE(made, 0u);
  const auto& window = native.windows[made];
  EXPECT_EQ(window.className, "Button");
  EXPECT_EQ(window.text, "Always");
  EXPECT_EQ(window.style, window_style::kChild);
  EXPECT_EQ(window.area, (WindowArea{1, 2, 3, 4}));
  EXPECT_EQ(window.parent, box);
  EXPECT_EQ(window.instance, 5u);
}

TEST_F(MemoryDialogWindowsTest, MakesNoChildOfNoWindow) {
  EXPECT_EQ(windows.CreateWindowEx({.className = "Button", .parent = 9}), 0u);
  EXPECT_EQ(windows.CreateWindowEx({.className = "Button"}), 0u);
  EXPECT_EQ(native.windows.size(), 1u);
}

TEST_F(MemoryDialogWindowsTest, LeavesWindowsAloneThatAreNotThere) {
  windows.SetWindowText(9, "x");
  windows.MoveWindow(9, {1, 2, 3, 4}, true);
  windows.SetForegroundWindow(9);
  EXPECT_EQ(native.windows.size(), 1u);
}

TEST_F(MemoryDialogWindowsTest, GivesAWindowNewText) {
  windows.SetWindowText(box, "Answer");
  EXPECT_EQ(windows.FindWindow("#32770", "Answer"), box);
}

TEST_F(MemoryDialogWindowsTest, KnowsTheWindowWithTheFocus) {
  EXPECT_EQ(windows.GetFocus(), 0u);
  native.focus = AddChild("OK");
  EXPECT_EQ(windows.GetFocus(), native.focus);
}

TEST_F(MemoryDialogWindowsTest, TakesTheChildrenAndTheFocusAlongWhenAWindowGoes) {
  native.focus = AddChild("OK");
  native.Remove(box);
  EXPECT_TRUE(native.windows.empty());
  EXPECT_EQ(windows.GetFocus(), 0u);
}

TEST_F(MemoryDialogWindowsTest, AnswersTheMessagesAboutFonts) {
  EXPECT_EQ(native.SendMessage(box, window_message::kGetFont, 0, 0), 0);
  EXPECT_EQ(native.SendMessage(box, window_message::kSetFont, 33, 1), 0);
  EXPECT_EQ(native.SendMessage(box, window_message::kGetFont, 0, 0), 33);
  EXPECT_EQ(native.SendMessage(9, window_message::kGetFont, 0, 0), 0);
}

TEST_F(MemoryDialogWindowsTest, AnswersWhetherAButtonIsTickedAndHasTheFocus) {
  const WindowHandle button = AddChild("Always");
  const auto state = [&] {
    return native.SendMessage(button, window_message::kGetButtonState, 0, 0);
  };
  EXPECT_EQ(state(), 0);
  native.windows[button].isChecked = true;
  EXPECT_EQ(state(), button_state::kChecked);
  native.focus = button;
  EXPECT_EQ(state(), button_state::kChecked | button_state::kHasFocus);
}

}  // namespace memory_dialog_windows_test
}  // namespace brimwork
