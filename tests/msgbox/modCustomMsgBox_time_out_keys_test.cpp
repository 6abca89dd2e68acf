// The keys that a time-out presses, and what has the focus when it does.
#include <gmock/gmock.h>

#include "support/faulty_environment.h"
#include "support/special_box_fixture.h"

namespace brimwork {
namespace modCustomMsgBox_time_out_keys_test {

using testing::ElementsAre;

constexpr std::int32_t kYesNo = 4;
constexpr const char* kCheckBox = "Always";

/// Notes each text of keys with the caption of the control that it goes to.
class NotingKeyboard : public Keyboard {
 public:
  NotingKeyboard(Keyboard& inner, const MemoryNativeWindows& windows)
      : inner_(inner), windows_(windows) {}
  void SendKeys(std::string_view keys, bool wait) override {
    notes.push_back(std::string(keys) + " at " + windows_.windows.at(windows_.focus).text);
    inner_.SendKeys(keys, wait);
  }

  std::vector<std::string> notes;

 private:
  Keyboard& inner_;
  const MemoryNativeWindows& windows_;
};

struct CustomMsgBoxTimeOutKeys : SpecialBoxFixture {
  CustomMsgBoxTimeOutKeys() { boxes = MakeSpecialBoxes(GetParam(), listed.Parts()); }

  int ShowWithCheckBox(std::int32_t buttons, std::int16_t count) {
    return Show(
        {.buttons = buttons, .timeOut = 1, .checkBoxText = kCheckBox, .buttonCount = count});
  }

  std::ptrdiff_t ForegroundCalls() const {
    return std::ranges::count(listed.Operations(), "DialogWindows.SetForegroundWindow");
  }

  NotingKeyboard noting{keyboard, nativeWindows};
  FaultyEnvironment listed{Parts({.keyboard = &noting}), {}};
};

INSTANTIATE_TEST_SUITE_P(Copies, CustomMsgBoxTimeOutKeys,
                         testing::Values(Copy::kAddIn, Copy::kModule), CopyName);

TEST_P(CustomMsgBoxTimeOutKeys, AreEnterAloneInABoxWithoutACheckBox) {
  EXPECT_EQ(Show({.timeOut = 1, .buttonCount = 1}), message_box_result::kOk);
  EXPECT_THAT(noting.notes, ElementsAre("{ENTER} at OK"));
  EXPECT_EQ(ForegroundCalls(), 1);
}

TEST_P(CustomMsgBoxTimeOutKeys, AreEnterAloneWhereTheCheckBoxHasNotTheFocus) {
  EXPECT_EQ(ShowWithCheckBox(0, 1), message_box_result::kOk);
  EXPECT_THAT(noting.notes, ElementsAre("{ENTER} at OK"));
  EXPECT_EQ(ForegroundCalls(), 1);
}

TEST_P(CustomMsgBoxTimeOutKeys, MoveTheFocusFromTheCheckBoxToASingleButtonFirst) {
  messageBoxes.PressKeysAt(100, "{Tab}");
  EXPECT_EQ(ShowWithCheckBox(0, 1), message_box_result::kOk);
  EXPECT_THAT(noting.notes, ElementsAre("{TAB} at Always", "{ENTER} at OK"));
  EXPECT_EQ(ForegroundCalls(), 1);
}

TEST_P(CustomMsgBoxTimeOutKeys, LeaveTheFocusOnTheCheckBoxBesideSeveralButtons) {
  messageBoxes.PressKeysAt(100, "{Tab}{Tab}");
  EXPECT_EQ(ShowWithCheckBox(kYesNo, 2), message_box_result::kYes);
  EXPECT_THAT(noting.notes, ElementsAre("{ENTER} at Always"));
  EXPECT_EQ(ForegroundCalls(), 2);
}

TEST_P(CustomMsgBoxTimeOutKeys, AreEnterAloneWhereTheButtonsWereNotCounted) {
  messageBoxes.PressKeysAt(100, "{Tab}");
  EXPECT_EQ(ShowWithCheckBox(0, 0), message_box_result::kOk);
  EXPECT_THAT(noting.notes, ElementsAre("{ENTER} at Always"));
  EXPECT_EQ(ForegroundCalls(), 1);
}

TEST_P(CustomMsgBoxTimeOutKeys, ComeWhenTheBoxIsInFront) {
  const WindowHandle other = nativeWindows.Add({.className = "ThunderForm", .text = "Another"});
  messageBoxes.DoAt(500, [&] { nativeWindows.BringToFront(other); });
  Show({.timeOut = 1});
  EXPECT_GT(Last().window.cameToFront, nativeWindows.windows[other].cameToFront);
}

}  // namespace modCustomMsgBox_time_out_keys_test
}  // namespace brimwork
