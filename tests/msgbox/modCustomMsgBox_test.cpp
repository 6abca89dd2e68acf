// The custom message box as a whole: the answer, the time-out, and the timers that are left.
#include "msgbox/modCustomMsgBox.h"

#include <gmock/gmock.h>

#include <array>

#include "support/special_box_fixture.h"

namespace brimwork {
namespace modCustomMsgBox_test {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int32_t kYesNo = 4;
constexpr std::int32_t kSecondIsDefault = 256;

struct CustomMsgBoxTest : SpecialBoxFixture {
  /// The numbers of the timers that were started, in their order.
  std::vector<TimerId> Started() const {
    std::vector<TimerId> ids;
    for (const auto& timer : windowTimers.Started()) ids.push_back(timer.id);
    return ids;
  }
};

INSTANTIATE_TEST_SUITE_P(Copies, CustomMsgBoxTest, testing::Values(Copy::kAddIn, Copy::kModule),
                         CopyName);

TEST_P(CustomMsgBoxTest, ShowsTheSystemsBoxOverTheActiveForm) {
  messageBoxes.ClickAt(500, "&No");
  EXPECT_EQ(Show({.text = "Go on?", .buttons = 36, .title = "Question"}), message_box_result::kNo);
  EXPECT_EQ(Last().request, (MessageBoxRequest{owner, "Go on?", "Question", 36}));
}

TEST_P(CustomMsgBoxTest, ReturnsTheNumberOfTheButton) {
  const struct {
    std::int32_t buttons;
    const char* caption;
    int result;
  } kClicks[] = {{0, "OK", 1},      {1, "Cancel", 2}, {2, "&Abort", 3}, {2, "&Retry", 4},
                 {2, "&Ignore", 5}, {3, "&Yes", 6},   {4, "&No", 7},    {5, "Cancel", 2}};
  for (const auto& click : kClicks) {
    messageBoxes.ClickAt(100, click.caption);
    EXPECT_EQ(Show({.buttons = click.buttons}), click.result) << click.caption;
  }
}

TEST_P(CustomMsgBoxTest, AllButTheFirstThreeArgumentsCanBeLeftOut) {
  messageBoxes.ClickAt(100, "&Yes");
  EXPECT_EQ(boxes->ShowPlain({.buttons = kYesNo}), message_box_result::kYes);
  EXPECT_THAT(windowTimers.Started(), IsEmpty());
}

TEST_P(CustomMsgBoxTest, StartsTheTimersInTheirOrder) {
  messageBoxes.ClickAt(100, "&Yes");
  Show({.buttons = kYesNo,
        .timeOut = 5,
        .x = 10,
        .y = 20,
        .checkBoxText = "Always",
        .buttonCount = 2,
        .buttonText = ",&Never",
        .originalButtonText = "&Yes,&No"});
  const auto started = windowTimers.Started();
  ASSERT_GE(started.size(), 5u);
  using Timer = MemoryWindowTimers::StartedTimer;
  EXPECT_EQ(started[0], (Timer{owner, MB_MOVEMSGBOX, 0}));
  EXPECT_EQ(started[1], (Timer{owner, MB_CLOSEMSGBOX, 5000}));
  EXPECT_EQ(started[2], (Timer{owner, MB_CHANGEBUTTONTEXT, 0}));
  EXPECT_EQ(started[3], (Timer{owner, MB_CHECK_CHECKBOXVALUE, 0}));
  EXPECT_EQ(started[4], (Timer{owner, MB_ADDCHECKBOX, 0}));
}

TEST_P(CustomMsgBoxTest, ATimeOutClosesTheBoxByItsDefaultButton) {
  EXPECT_EQ(Show({.buttons = kYesNo + kSecondIsDefault, .timeOut = 5}), message_box_result::kNo);
  EXPECT_EQ(Last().milliseconds, 5000u);
  EXPECT_EQ(windowTimers.Count(), 0u);
}

TEST_P(CustomMsgBoxTest, ATimeOutClosesTheBoxByTheButtonThatHasTheFocus) {
  messageBoxes.PressKeysAt(100, "{Tab}");
  EXPECT_EQ(Show({.buttons = kYesNo, .timeOut = 1}), message_box_result::kNo);
  EXPECT_EQ(Last().milliseconds, 1000u);
}

TEST_P(CustomMsgBoxTest, ATimeOutOfZeroOrLessStartsNoTimer) {
  for (const auto timeOut : std::to_array<std::int16_t>({0, -1, -5})) {
    messageBoxes.ClickAt(40'000, "&Yes");
    EXPECT_EQ(Show({.buttons = kYesNo, .timeOut = timeOut}), message_box_result::kYes);
  }
  EXPECT_THAT(Started(), IsEmpty());
}

TEST_P(CustomMsgBoxTest, ThirtyTwoSecondsAreTheLongestTimeOut) {
  Show({.timeOut = 32});
  EXPECT_EQ(Last().milliseconds, 32'000u);
}

TEST_P(CustomMsgBoxTest, ALongerTimeOutOverflowsAndAFirstBoxStays) {
  messageBoxes.ClickAt(50'000, "OK");
  Show({.timeOut = 33});
  EXPECT_EQ(Last().milliseconds, 50'000 + MemoryMessageBoxes::kClickTakes);
  EXPECT_THAT(Started(), IsEmpty());
}

TEST_P(CustomMsgBoxTest, ALongerTimeOutLeavesTheFormerBoxsTimeOutInForce) {
  Show({.timeOut = 2});
  Show({.timeOut = 33});
  EXPECT_EQ(Last().milliseconds, 2000u);
  Show({.timeOut = -1});
  Show({.timeOut = -33});
  EXPECT_EQ(Last().milliseconds, MemoryMessageBoxes::kPatience);
}

TEST_P(CustomMsgBoxTest, ATimeOutThatTheUserForestalledEndsByItself) {
  messageBoxes.ClickAt(100, "OK");
  Show({.timeOut = 5});
  EXPECT_EQ(windowTimers.Count(), 1u);
  windowTimers.Pass(10'000);
  EXPECT_EQ(windowTimers.Count(), 0u);
  EXPECT_EQ(messageBoxes.Shown().size(), 1u);
}

TEST_P(CustomMsgBoxTest, ABoxThatIsNotFoundByItsTitleStaysAPlainOne) {
  SpecialBox box{.buttons = kYesNo,
                 .title = "",
                 .timeOut = 1,
                 .x = 10,
                 .y = 20,
                 .checkBoxText = "Always",
                 .buttonCount = 2,
                 .buttonText = "&Now,&Never",
                 .originalButtonText = "&Yes,&No"};
  messageBoxes.ClickAt(5000, "&No");
  EXPECT_EQ(Show(box), message_box_result::kNo);
  EXPECT_THAT(Last().window.positions, IsEmpty());
  EXPECT_THAT(LastCaptions(), ElementsAre("&Yes", "&No"));
  EXPECT_FALSE(box.checkBoxValue);
  EXPECT_EQ(windowTimers.Count(), 0u);
}

TEST_P(CustomMsgBoxTest, ADialogOfTheSameTitleInFrontIsChangedInTheBoxsPlace) {
  const WindowHandle other = nativeWindows.Add(
      {.className = "#32770", .text = "Question", .area = {50, 50, 100, 100}, .isTopMost = true});
  messageBoxes.ClickAt(500, "OK");
  Show({.x = 10, .y = 20});
  EXPECT_EQ(nativeWindows.windows[other].area.left, 10);
  EXPECT_THAT(Last().window.positions, IsEmpty());
}

TEST_P(CustomMsgBoxTest, WithoutAnActiveFormTheBoxHasNoOwnerAndStaysAPlainOne) {
  formScreen.activeForm = nullptr;
  messageBoxes.ClickAt(5000, "&Yes");
  SpecialBox box{.buttons = kYesNo, .timeOut = 1, .x = 10, .y = 20, .checkBoxText = "Always"};
  EXPECT_EQ(Show(box), message_box_result::kYes);
  EXPECT_EQ(Last().request.owner, 0u);
  EXPECT_THAT(Last().window.positions, IsEmpty());
  EXPECT_THAT(LastCaptions(), ElementsAre("&Yes", "&No"));
}

TEST_P(CustomMsgBoxTest, TheFormerBoxIsNoOwnerOnceTheFormHasGone) {
  Show({.timeOut = 1});
  formScreen.activeForm = nullptr;
  messageBoxes.ClickAt(100, "OK");
  EXPECT_EQ(Show({}), message_box_result::kOk);
  EXPECT_EQ(Last().request.owner, 0u);
}

TEST_P(CustomMsgBoxTest, ABoxOfAStyleThatThereIsNotReturnsZero) {
  EXPECT_EQ(Show({.buttons = 15, .checkBoxText = "Always"}), 0);
  EXPECT_THAT(messageBoxes.Shown(), IsEmpty());
}

TEST_P(CustomMsgBoxTest, ASecondBoxTakesThePlaceOfTheFirst) {
  messageBoxes.DoAt(500, [&] {
    messageBoxes.ClickAt(100, "Cancel");
    EXPECT_EQ(Show({.buttons = 1, .title = "Another"}), message_box_result::kCancel);
  });
  EXPECT_EQ(Show({.timeOut = 2}), message_box_result::kOk);
  EXPECT_EQ(Last().milliseconds, MemoryMessageBoxes::kPatience);
}

TEST_P(CustomMsgBoxTest, ATimerOfAnUnknownNumberIsKilledAndDoesNothing) {
  constexpr TimerId kUnknown = 0x6000;
  messageBoxes.DoAt(100, [&] {
    windowTimers.SetTimer(owner, kUnknown, 50'000, [](auto...) {});
    boxes->FireTimer(owner, kUnknown);
    EXPECT_FALSE(windowTimers.KillTimer(owner, kUnknown));
  });
  messageBoxes.ClickAt(200, "OK");
  EXPECT_EQ(Show({}), message_box_result::kOk);
  EXPECT_THAT(LastCaptions(), ElementsAre("OK"));
}

TEST(CustomMsgBox, KillsTheTimersThatAreLeftWhenItGoes) {
  MemoryEnvironment memory;
  const WindowHandle owner = memory.nativeWindows.Add({});
  memory.formScreen.activeForm = std::make_shared<MemoryScreenForm>(owner);
  {
    CustomMsgBox msgBox(memory.Parts());
    memory.messageBoxes.ClickAt(100, "OK");
    msgBox.CreateSpecialMsgbox("Go on?", 0, "Question", 30);
    EXPECT_EQ(memory.windowTimers.Count(), 1u);
  }
  EXPECT_EQ(memory.windowTimers.Count(), 0u);
}

TEST(CustomMsgBox, KeepsTheArgumentsForItsTimers) {
  MemoryEnvironment memory;
  CustomMsgBox msgBox(memory.Parts());
  msgBox.CreateSpecialMsgbox("Go on?", 4, "Question", 3, 5, 6, "Always", nullptr, 2, "A,,B", "C");
  const CustomMsgBoxState& state = msgBox.State();
  EXPECT_EQ(state.MsgBoxText, "Go on?");
  EXPECT_EQ(state.MsgBoxButtons, 4);
  EXPECT_EQ(state.MsgBoxTitle, "Question");
  EXPECT_EQ(state.MsgBoxTimeOut, 3000);
  EXPECT_EQ(state.MsgBoxX, 5);
  EXPECT_EQ(state.MsgBoxY, 6);
  EXPECT_EQ(state.MsgBoxCheckBoxText, "Always");
  EXPECT_EQ(state.MsgBoxButtonCount, 2);
  EXPECT_THAT(state.MsgBoxButtonText, ElementsAre("A", "", "B"));
  EXPECT_THAT(state.MsgBoxOriginalButtonText, ElementsAre("C"));
}

TEST(CustomMsgBox, TheArgumentsThatAreLeftOutAskForNothing) {
  MemoryEnvironment memory;
  CustomMsgBox msgBox(memory.Parts());
  msgBox.CreateSpecialMsgbox("Go on?", 4, "Question");
  const CustomMsgBoxState& state = msgBox.State();
  EXPECT_EQ(state.MsgBoxTimeOut, -1000);
  EXPECT_EQ(state.MsgBoxX, -1);
  EXPECT_EQ(state.MsgBoxY, -1);
  EXPECT_EQ(state.MsgBoxCheckBoxText, "");
  EXPECT_FALSE(state.MsgBoxCheckBoxValue);
  EXPECT_EQ(state.MsgBoxButtonCount, 0);
  EXPECT_THAT(state.MsgBoxButtonText, IsEmpty());
  EXPECT_THAT(state.MsgBoxOriginalButtonText, IsEmpty());
}

}  // namespace modCustomMsgBox_test
}  // namespace brimwork
