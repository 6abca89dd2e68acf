// The check box of a custom message box: how it comes there, and what it hands back.
#include <gmock/gmock.h>

#include "msgbox/modCustomMsgBox.h"
#include "support/special_box_fixture.h"

namespace brimwork {
namespace modCustomMsgBox_check_box_test {

using testing::ElementsAre;
using testing::SizeIs;

constexpr std::int32_t kYesNo = 4;
constexpr const char* kCaption = "Do not ask again";
constexpr int kLineHeight = 13;

struct CustomMsgBoxCheckBox : SpecialBoxFixture {
  SpecialBox Asking() const {
    return {.buttons = kYesNo, .checkBoxText = kCaption, .buttonCount = 2};
  }

  /// The value after the user has clicked one thing after the other.
  bool ValueAfter(const std::vector<std::string>& clicks, bool before = false) {
    std::uint32_t time = 0;
    for (const std::string& caption : clicks) messageBoxes.ClickAt(time += 200, caption);
    SpecialBox box = Asking();
    box.checkBoxValue = before;
    Show(box);
    return box.checkBoxValue;
  }

  const MemoryNativeWindows::NativeWindow& CheckBox() const { return Last().controls.back(); }

  std::ptrdiff_t Samples() const {
    return std::ranges::count(CheckBox().messages, window_message::kGetButtonState,
                              &MemoryNativeWindows::SentMessage::message);
  }
};

INSTANTIATE_TEST_SUITE_P(Copies, CustomMsgBoxCheckBox, testing::Values(Copy::kAddIn, Copy::kModule),
                         CopyName);

TEST_P(CustomMsgBoxCheckBox, StandsBelowThePromptInTheGrownBox) {
  ValueAfter({"&Yes"});
  ASSERT_THAT(LastCaptions(), ElementsAre("&Yes", "&No", kCaption));
  EXPECT_EQ(CheckBox().className, "Button");
  EXPECT_EQ(CheckBox().style, 0x50010003u);
  EXPECT_EQ(CheckBox().instance, app.instance);
  EXPECT_EQ(CheckBox().area, (WindowArea{3, 140 - kLineHeight - 15, 16 * 6 + 22, kLineHeight}));
  EXPECT_EQ(LastPlace(), (WindowRectangle{362, 314, 662, 314 + 140 + kLineHeight}));
}

TEST_P(CustomMsgBoxCheckBox, HasTheFontOfThePrompt) {
  messageBoxes.DoAt(5, [&] {
    for (auto& [handle, window] : nativeWindows.windows) {
      if (window.className == "Static") window.font = 77;
    }
  });
  ValueAfter({"&Yes"});
  EXPECT_EQ(CheckBox().font, 77);
}

TEST_P(CustomMsgBoxCheckBox, GivesBackWhetherItIsTicked) {
  EXPECT_TRUE(ValueAfter({kCaption, "&Yes"}));
  EXPECT_TRUE(ValueAfter({kCaption, "&No"}));
  EXPECT_FALSE(ValueAfter({"&Yes"}));
  EXPECT_FALSE(ValueAfter({kCaption, kCaption, "&Yes"}));
}

TEST_P(CustomMsgBoxCheckBox, StartsUntickedWhateverTheCallerPasses) {
  EXPECT_FALSE(ValueAfter({"&Yes"}, true));
}

TEST_P(CustomMsgBoxCheckBox, LeavesTheCallersValueInABoxThatClosesAtOnce) {
  for (const bool before : {true, false}) {
    messageBoxes.PressKeysAt(1, "{Enter}");
    SpecialBox box = Asking();
    box.checkBoxValue = before;
    Show(box);
    EXPECT_EQ(box.checkBoxValue, before);
  }
}

TEST_P(CustomMsgBoxCheckBox, CountsAsTickedForAsLongAsItHasTheFocus) {
  messageBoxes.PressKeysAt(100, "{Tab}{Tab}");
  messageBoxes.PressKeysAt(200, "{Enter}");
  SpecialBox box = Asking();
  EXPECT_EQ(Show(box), message_box_result::kYes);
  EXPECT_FALSE(CheckBox().isChecked);
  EXPECT_TRUE(box.checkBoxValue);
}

TEST_P(CustomMsgBoxCheckBox, IsSampledAtTheShortestIntervalUntilTheBoxCloses) {
  ValueAfter({"&Yes"});
  ASSERT_EQ(Last().milliseconds, 260u);
  EXPECT_EQ(Samples(), 25);  // made after 10 milliseconds, then every 10
  EXPECT_EQ(windowTimers.Count(), 0u);
}

TEST_P(CustomMsgBoxCheckBox, IsSampledWhicheverTimerTheSystemTakesFirst) {
  windowTimers.tie = MemoryWindowTimers::Tie::kEarliestSetFirst;
  EXPECT_TRUE(ValueAfter({kCaption, "&Yes"}));
  EXPECT_FALSE(ValueAfter({"&Yes"}));
  EXPECT_EQ(Samples(), 25);
  EXPECT_EQ(windowTimers.Count(), 0u);
}

TEST_P(CustomMsgBoxCheckBox, IsNotThereInAnotherBoxAfterwards) {
  ValueAfter({kCaption, "&Yes"});
  messageBoxes.ClickAt(100, "OK");
  SpecialBox plain;
  Show(plain);
  EXPECT_FALSE(plain.checkBoxValue);
  EXPECT_THAT(LastCaptions(), ElementsAre("OK"));
}

TEST_P(CustomMsgBoxCheckBox, IsWhollyOnTheScreenInABoxThatIsDrawnBack) {
  messageBoxes.ClickAt(500, "&Yes");
  SpecialBox box = Asking();
  box.x = box.y = 5000;
  Show(box);
  EXPECT_EQ(LastPlace(), (WindowRectangle{723, 767 - 140 - kLineHeight, 1023, 767}));
}

TEST_P(CustomMsgBoxCheckBox, RoundsItsHeightAndWidthHalvesToTheEvenNeighbour) {
  const struct {
    double twips;
    int pixels;
  } kHeights[] = {{187.5, 12}, {202.5, 14}, {203, 14}, {189, 13}};
  for (const auto& height : kHeights) {
    form->textHeight = height.twips;
    form->characterWidth = 82.5 / 16;
    ValueAfter({"&Yes"});
    EXPECT_EQ(CheckBox().area.height, height.pixels) << height.twips;
    EXPECT_EQ(CheckBox().area.width, 28);  // 5.5 + 22
  }
}

TEST_P(CustomMsgBoxCheckBox, HasNoHeightWhereTheHeightOverflows) {
  form->textHeight = 15.0 * 32'768;
  ValueAfter({"&Yes"});
  EXPECT_EQ(CheckBox().area.height, 0);
  EXPECT_EQ(LastPlace().Height(), 140);
}

TEST_P(CustomMsgBoxCheckBox, IsLeftOutWhenTheFormGoesBeforeItCouldBeMeasured) {
  messageBoxes.DoAt(5, [&] { formScreen.activeForm = nullptr; });
  EXPECT_FALSE(ValueAfter({"&Yes"}));
  EXPECT_THAT(LastCaptions(), ElementsAre("&Yes", "&No"));
}

TEST_P(CustomMsgBoxCheckBox, IsAddedOnce) {
  ValueAfter({"&Yes"});
  EXPECT_THAT(Last().controls, SizeIs(4));
}

TEST(CustomMsgBoxCheckBoxValue, IsDroppedForACallerThatDoesNotAskForIt) {
  MemoryEnvironment memory;
  const WindowHandle owner = memory.nativeWindows.Add({});
  memory.formScreen.activeForm = std::make_shared<MemoryScreenForm>(owner);
  CustomMsgBox msgBox(memory.Parts());
  memory.messageBoxes.ClickAt(100, kCaption);
  memory.messageBoxes.ClickAt(300, "OK");
  EXPECT_EQ(msgBox.CreateSpecialMsgbox("Go on?", 0, "Question", -1, -1, -1, kCaption), 1);
  EXPECT_TRUE(msgBox.State().MsgBoxCheckBoxValue);
  EXPECT_EQ(msgBox.State().MsgBoxCheckBoxHWND, 0u);
}

}  // namespace modCustomMsgBox_check_box_test
}  // namespace brimwork
