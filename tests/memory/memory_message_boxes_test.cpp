// Message boxes in memory: their windows, the user who works on them, and the time that passes.
#include "memory/memory_message_boxes.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <stdexcept>

#include "memory/memory_environment.h"
#include "memory/memory_text_window.h"

namespace brimwork {
namespace memory_message_boxes_test {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int32_t kYesNo = 4;
constexpr std::int32_t kSecondIsDefault = 256;
constexpr std::int32_t kHelp = 16384;

struct MemoryMessageBoxesTest : testing::Test, MemoryEnvironment {
  int Show(std::int32_t style, const std::string& title = "Question") {
    return messageBoxes.MessageBox(owner, "Go on?", title, style);
  }

  const ShownMessageBox& Last() const { return messageBoxes.Shown().back(); }

  std::vector<std::string> Texts() const {
    std::vector<std::string> texts;
    for (const auto& control : Last().controls) texts.push_back(control.text);
    return texts;
  }

  /// The text of the control with the focus.
  std::string Focused() { return nativeWindows.windows[nativeWindows.focus].text; }

  WindowHandle AddCheckBox() {
    return dialogWindows.CreateWindowEx({.className = "Button",
                                         .text = "Always",
                                         .style = window_style::kTabStop,
                                         .parent = messageBoxes.Open()});
  }

  WindowHandle owner = nativeWindows.Add({.className = "ThunderForm"});
};

TEST_F(MemoryMessageBoxesTest, HaveThePromptAndTheButtonsOfTheirStyle) {
  const struct {
    std::int32_t style;
    std::vector<std::string> texts;
  } kBoxes[] = {{0, {"Go on?", "OK"}},
                {1, {"Go on?", "OK", "Cancel"}},
                {2, {"Go on?", "&Abort", "&Retry", "&Ignore"}},
                {3, {"Go on?", "&Yes", "&No", "Cancel"}},
                {4 + 32, {"Go on?", "&Yes", "&No"}},
                {5 + 4096, {"Go on?", "&Retry", "Cancel"}},
                {kHelp, {"Go on?", "OK", "Help"}}};
  for (const auto& box : kBoxes) {
    Show(box.style);
    EXPECT_EQ(Texts(), box.texts) << box.style;
  }
}

TEST_F(MemoryMessageBoxesTest, StandInTheMiddleOfTheScreenInFrontOfTheOthers) {
  messageBoxes.DoAt(0, [&] {
    EXPECT_EQ(dialogWindows.FindWindow("#32770", "Question"), messageBoxes.Open());
    EXPECT_TRUE(nativeWindows.LiesInFrontOf(messageBoxes.Open(), owner));
  });
  Show(0);
  EXPECT_EQ(Last().window.area, (WindowArea{362, 314, 300, 140}));
}

TEST_F(MemoryMessageBoxesTest, GoWithAllTheirWindowsAndGiveTheFocusBack) {
  MemoryTextWindow text;
  keyboard.SetFocus(&text);
  nativeWindows.focus = owner;
  Show(0);
  EXPECT_EQ(nativeWindows.windows.size(), 1u);
  EXPECT_EQ(nativeWindows.focus, owner);
  EXPECT_EQ(keyboard.Focus(), &text);
  EXPECT_EQ(messageBoxes.Open(), 0u);
}

TEST_F(MemoryMessageBoxesTest, AreNotShownWithABadOwnerOrABadStyle) {
  EXPECT_EQ(messageBoxes.MessageBox(9, "Go on?", "Question", 0), 0);
  EXPECT_EQ(Show(6), 0);
  EXPECT_THAT(messageBoxes.Shown(), IsEmpty());
  EXPECT_EQ(messageBoxes.MessageBox(0, "Go on?", "Question", 0), message_box_result::kOk);
}

TEST_F(MemoryMessageBoxesTest, HaveATitleOfTheSystemWhereTheirsIsEmpty) {
  Show(0, "");
  EXPECT_EQ(Last().window.text, "Error");
  EXPECT_EQ(Last().request.title, "");
}

TEST_F(MemoryMessageBoxesTest, AreClosedByAClickWhichTakesItsTime) {
  messageBoxes.ClickAt(500, "&No");
  messageBoxes.DoAt(530, [&] { EXPECT_EQ(Focused(), "&No"); });
  EXPECT_EQ(Show(kYesNo), message_box_result::kNo);
  EXPECT_EQ(Last().milliseconds, 500 + MemoryMessageBoxes::kClickTakes);
}

TEST_F(MemoryMessageBoxesTest, AreDismissedByTheirDefaultButtonWhenNobodyDoesAnything) {
  EXPECT_EQ(Show(kYesNo), message_box_result::kYes);
  EXPECT_EQ(Show(kYesNo + kSecondIsDefault), message_box_result::kNo);
  EXPECT_EQ(Show(kYesNo + 512), message_box_result::kYes);
  EXPECT_EQ(Last().milliseconds, MemoryMessageBoxes::kPatience);
}

TEST_F(MemoryMessageBoxesTest, StayOpenForTheHelpButton) {
  messageBoxes.ClickAt(100, "Help");
  EXPECT_EQ(Show(kHelp + kSecondIsDefault), message_box_result::kOk);
  EXPECT_EQ(Last().milliseconds, MemoryMessageBoxes::kPatience);
}

TEST_F(MemoryMessageBoxesTest, PassTheFocusRoundByTab) {
  messageBoxes.DoAt(0, [&] {
    EXPECT_EQ(Focused(), "&Yes");
    AddCheckBox();
    for (const char* next : {"&No", "Always", "&Yes"}) {
      keyboard.SendKeys("{TAB}", false);
      EXPECT_EQ(Focused(), next);
    }
  });
  Show(kYesNo);
}

TEST_F(MemoryMessageBoxesTest, TakeEnterForTheButtonWithTheFocus) {
  messageBoxes.PressKeysAt(100, "{Tab}{Enter}");
  EXPECT_EQ(Show(kYesNo), message_box_result::kNo);
}

TEST_F(MemoryMessageBoxesTest, TakeEnterForTheDefaultButtonWhereTheFocusIsOnNone) {
  messageBoxes.DoAt(50, [&] { nativeWindows.focus = AddCheckBox(); });
  messageBoxes.PressKeysAt(100, "{Enter}");
  EXPECT_EQ(Show(kYesNo + kSecondIsDefault), message_box_result::kNo);
  EXPECT_FALSE(Last().controls.back().isChecked);
}

TEST_F(MemoryMessageBoxesTest, TurnACheckBoxOverByAClickOrTheBlank) {
  messageBoxes.DoAt(0, [&] { AddCheckBox(); });
  messageBoxes.ClickAt(100, "Always");
  messageBoxes.DoAt(200, [&] {
    EXPECT_TRUE(nativeWindows.windows[nativeWindows.focus].isChecked);
    keyboard.SendKeys(" ", false);
    EXPECT_FALSE(nativeWindows.windows[nativeWindows.focus].isChecked);
    keyboard.SendKeys("x ", false);
  });
  messageBoxes.ClickAt(300, "&Yes");
  EXPECT_EQ(Show(kYesNo), message_box_result::kYes);
  EXPECT_TRUE(Last().controls.back().isChecked);
}

TEST_F(MemoryMessageBoxesTest, ComplainOfAClickOnWhatIsNotThere) {
  messageBoxes.ClickAt(100, "&Maybe");
  EXPECT_THROW(Show(kYesNo), std::logic_error);
  EXPECT_EQ(nativeWindows.windows.size(), 1u);
  EXPECT_EQ(messageBoxes.Open(), 0u);
}

TEST_F(MemoryMessageBoxesTest, LetTimersFireWhileTheyAreUp) {
  std::vector<std::uint32_t> times;
  windowTimers.SetTimer(
      owner, 1, 100,
      [&](WindowHandle, std::uint32_t, TimerId, std::uint32_t time) { times.push_back(time); });
  messageBoxes.ClickAt(250, "OK");
  Show(0);
  EXPECT_THAT(times, ElementsAre(100, 200, 300));
  EXPECT_EQ(windowTimers.Now(), 310u);
}

TEST_F(MemoryMessageBoxesTest, EndWithATimerThatPressesEnter) {
  windowTimers.SetTimer(owner, 1, 100, [&](auto...) { keyboard.SendKeys("{ENTER}", false); });
  messageBoxes.ClickAt(250, "&No");
  EXPECT_EQ(Show(kYesNo), message_box_result::kYes);
  EXPECT_EQ(Last().milliseconds, 100u);
}

TEST_F(MemoryMessageBoxesTest, ForgetWhatTheUserHadPlannedForLater) {
  messageBoxes.ClickAt(100, "&Yes");
  messageBoxes.ClickAt(5000, "&No");
  Show(kYesNo);
  EXPECT_EQ(Show(kYesNo), message_box_result::kYes);
  EXPECT_EQ(Last().milliseconds, MemoryMessageBoxes::kPatience);
}

TEST_F(MemoryMessageBoxesTest, StandOverEachOther) {
  WindowHandle outer = 0;
  messageBoxes.DoAt(100, [&] {
    outer = messageBoxes.Open();
    messageBoxes.ClickAt(100, "OK");
    Show(0, "Another");
    EXPECT_EQ(messageBoxes.Open(), outer);
  });
  messageBoxes.ClickAt(300, "&No");
  EXPECT_EQ(Show(kYesNo), message_box_result::kNo);
  EXPECT_EQ(messageBoxes.Shown().front().request.title, "Another");
}

TEST_F(MemoryMessageBoxesTest, HaveNoTextForTheClipboard) {
  clipboard.SetText("mine");
  messageBoxes.PressKeysAt(100, "^(a)^(c)^(v){Del}");
  EXPECT_EQ(Show(0), message_box_result::kOk);
  EXPECT_EQ(clipboard.GetText(), "mine");
}

TEST(MemoryKeyboardInText, TakesEnterAndTabForText) {
  MemoryClipboard clipboard;
  MemoryKeyboard keyboard(clipboard);
  MemoryTextWindow text;
  keyboard.SetFocus(&text);
  keyboard.SendKeys("a{ENTER}{Tab}b", true);
  EXPECT_EQ(text.Text(), "a\r\n\tb");
}

}  // namespace memory_message_boxes_test
}  // namespace brimwork
