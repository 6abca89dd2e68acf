// New captions for the buttons of a message box.
#include <gmock/gmock.h>

#include "support/special_box_fixture.h"

namespace brimwork {
namespace modCustomMsgBox_captions_test {

using testing::ElementsAre;
using testing::IsEmpty;

constexpr std::int32_t kAbortRetryIgnore = 2;
constexpr std::int32_t kYesNo = 4;
constexpr const char* kStandard = "&Abort,&Retry,&Ignore";

struct CustomMsgBoxCaptions : SpecialBoxFixture {
  std::vector<std::string> Renamed(std::int32_t buttons, const std::string& captions,
                                   const std::string& standard) {
    Show(
        {.buttons = buttons, .timeOut = 1, .buttonText = captions, .originalButtonText = standard});
    return LastCaptions();
  }
};

INSTANTIATE_TEST_SUITE_P(Copies, CustomMsgBoxCaptions, testing::Values(Copy::kAddIn, Copy::kModule),
                         CopyName);

TEST_P(CustomMsgBoxCaptions, TakeThePlaceOfTheStandardOnes) {
  EXPECT_THAT(Renamed(kAbortRetryIgnore, "&Stop,&Again,Go on", kStandard),
              ElementsAre("&Stop", "&Again", "Go on"));
}

TEST_P(CustomMsgBoxCaptions, ThatAreEmptyLeaveTheButtonsTheirs) {
  EXPECT_THAT(Renamed(kAbortRetryIgnore, ",&Again,", kStandard),
              ElementsAre("&Abort", "&Again", "&Ignore"));
}

TEST_P(CustomMsgBoxCaptions, ThatAreTooFewLeaveTheRestOfTheButtonsTheirs) {
  EXPECT_THAT(Renamed(kAbortRetryIgnore, "&Stop", kStandard),
              ElementsAre("&Stop", "&Retry", "&Ignore"));
}

TEST_P(CustomMsgBoxCaptions, ThatAreTooManyAreDropped) {
  EXPECT_THAT(Renamed(kYesNo, "&Now,&Never,&Perhaps", "&Yes,&No"), ElementsAre("&Now", "&Never"));
}

TEST_P(CustomMsgBoxCaptions, FindTheButtonsWithTheAmpersandOfTheirAccessKeys) {
  EXPECT_THAT(Renamed(kYesNo, "&Now,&Never", "Yes,&No"), ElementsAre("&Yes", "&Never"));
}

TEST_P(CustomMsgBoxCaptions, AreKeptAsTheyAreBlanksIncluded) {
  EXPECT_THAT(Renamed(kYesNo, " , Never", "&Yes,&No"), ElementsAre(" ", " Never"));
}

TEST_P(CustomMsgBoxCaptions, FindAButtonByTheCaptionThatItHasByThen) {
  EXPECT_THAT(Renamed(kYesNo, "&No,&Yes", "&Yes,&No"), ElementsAre("&Yes", "&No"));
}

TEST_P(CustomMsgBoxCaptions, NeedBothLists) {
  EXPECT_THAT(Renamed(kYesNo, "", "&Yes,&No"), ElementsAre("&Yes", "&No"));
  EXPECT_THAT(Renamed(kYesNo, "&Now,&Never", ""), ElementsAre("&Yes", "&No"));
  for (const auto& timer : windowTimers.Started()) EXPECT_EQ(timer.milliseconds, 1000u);
}

TEST_P(CustomMsgBoxCaptions, LeaveTheResultsAsTheyAre) {
  messageBoxes.ClickAt(500, "&Never");
  EXPECT_EQ(
      Show({.buttons = kYesNo, .buttonText = "&Now,&Never", .originalButtonText = "&Yes,&No"}),
      message_box_result::kNo);
}

}  // namespace modCustomMsgBox_captions_test
}  // namespace brimwork
