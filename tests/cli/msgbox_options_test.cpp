#include "cli/msgbox_options.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cli/command_request.h"
#include "cli/msgbox_choices.h"

namespace brimwork {
namespace msgbox_options_test {

using testing::ElementsAre;
using testing::IsEmpty;

struct MsgBoxOptionsTest : testing::Test {
  std::string Error() const {
    try {
      MakeMsgBoxRequest(options);
    } catch (const UsageError& error) {
      return error.what();
    }
    return "no error";
  }

  std::vector<std::string> Warnings() const { return WarningsOf(MakeMsgBoxRequest(options)); }

  MsgBoxOptions options;
};

TEST_F(MsgBoxOptionsTest, AreThoseOfTheDesignerAtItsStart) {
  const MsgBoxRequest request = MakeMsgBoxRequest(options);
  EXPECT_EQ(request.buttons, kFirstButtonsSet);
  EXPECT_EQ(request.icon, 0);
  EXPECT_EQ(request.defaultButton, 0);
  EXPECT_EQ(request.modality, 0);
  EXPECT_THAT(request.options, testing::Each(false));
  EXPECT_FALSE(request.timeOut || request.position || request.checkBox);
  EXPECT_THAT(request.captions, IsEmpty());
  EXPECT_THAT(Warnings(), IsEmpty());
}

TEST_F(MsgBoxOptionsTest, BecomeChoicesOfTheDesigner) {
  options.buttons = "vbYesNo";
  options.icon = "question";
  options.defaultButton = "2";
  options.modality = "system";
  options.rightToLeft = true;
  const MsgBoxRequest request = MakeMsgBoxRequest(options);
  EXPECT_EQ(request.buttons, ButtonsSetNamed("yes-no"));
  EXPECT_EQ(request.icon, IconNamed("question"));
  EXPECT_EQ(request.defaultButton, 1);
  EXPECT_EQ(request.modality, 1);
  EXPECT_THAT(request.options, ElementsAre(false, false, true, false));
}

TEST_F(MsgBoxOptionsTest, TakeAPositionApart) {
  options.position = "10, 20";
  const MsgBoxRequest request = MakeMsgBoxRequest(options);
  EXPECT_EQ(request.position->x, "10");
  EXPECT_EQ(request.position->y, " 20");
  EXPECT_THAT(Warnings(), IsEmpty());
}

TEST_F(MsgBoxOptionsTest, RefuseAPositionThatIsNoPair) {
  for (const std::string text : {"10", "", "10;20", "1,2,3"}) {
    options.position = text;
    EXPECT_EQ(Error(), "--position " + text + ": write it as X,Y, as in 100,50");
  }
}

TEST_F(MsgBoxOptionsTest, TakeCaptionsApart) {
  options.buttons = "yes-no-cancel";
  options.captions = "Save,,&Back";
  EXPECT_THAT(MakeMsgBoxRequest(options).captions, ElementsAre("Save", "", "&Back"));
  options.captions = "Save";
  EXPECT_THAT(MakeMsgBoxRequest(options).captions, ElementsAre("Save"));
}

TEST_F(MsgBoxOptionsTest, RefuseMoreCaptionsThanThereAreButtons) {
  options.captions = "A,B";
  EXPECT_EQ(Error(), "--captions A,B: vbOKOnly has 1 button");
  options.buttons = "yes-no";
  options.captions = "A,B,";
  EXPECT_EQ(Error(), "--captions A,B,: vbYesNo has 2 buttons");
}

TEST_F(MsgBoxOptionsTest, RefuseCaptionsThatNameNone) {
  options.buttons = "yes-no";
  for (const char* text : {"", ",", " , "}) {
    options.captions = text;
    EXPECT_EQ(Error(), "--captions names no caption: write them as A,B,C, as in Save,Discard");
  }
}

TEST_F(MsgBoxOptionsTest, RefuseAProjectWithoutAName) {
  options.project = "";
  EXPECT_EQ(Error(), "--add-to needs the name of a project");
}

TEST_F(MsgBoxOptionsTest, WarnOfATimeOutThatCountsAsNotSet) {
  for (const std::string text : {"ten", "", "40000", "-1", "&H5", "1 2"}) {
    options.timeOut = text;
    EXPECT_THAT(Warnings(),
                ElementsAre("--timeout \"" + text + "\" counts as not set: write 1 to 32"));
  }
}

TEST_F(MsgBoxOptionsTest, WarnOfATimeOutThatNeverComes) {
  for (const std::string text : {"0", "33", "-5", "32767"}) {
    options.timeOut = text;
    EXPECT_THAT(Warnings(),
                ElementsAre("--timeout \"" + text +
                            "\" does not close the message box: only 1 to 32 seconds do"));
  }
  for (const char* text : {"1", "32", " 5 ", "2.5"}) {
    options.timeOut = text;
    EXPECT_THAT(Warnings(), IsEmpty()) << text;
  }
}

TEST_F(MsgBoxOptionsTest, WarnOfAPositionThatCountsAsNotSet) {
  for (const std::string text : {"a,b", "1,", ",1", "-1,5", "5,-1", "99999999999,1"}) {
    options.position = text;
    EXPECT_THAT(Warnings(),
                ElementsAre("--position \"" + text +
                            "\" counts as not set: write two whole numbers, as in 100,50"));
  }
}

TEST_F(MsgBoxOptionsTest, WarnOfACheckBoxThatSaysNothing) {
  for (const char* text : {"", "  "}) {
    options.checkBox = text;
    EXPECT_THAT(Warnings(), ElementsAre("--check-box without a text counts as not set"));
  }
}

TEST_F(MsgBoxOptionsTest, WarnOfQuotesThatEndALiteral) {
  options.text = "\"quotes\" are well here";
  EXPECT_THAT(Warnings(), IsEmpty());
  options.title = options.checkBox.emplace("a \"b\"");
  options.captions = "\"";
  const std::string says =
      " holds a double quote, which ends the literal: correct the code by hand";
  EXPECT_THAT(Warnings(), ElementsAre("--title" + says, "--check-box" + says, "--captions" + says));
}

}  // namespace msgbox_options_test
}  // namespace brimwork
