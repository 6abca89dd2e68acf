// What comes out of the designer: the preview and what the status bar says of it, the code, the
// module in the user's project, and the way out.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "environment/resume_next.h"
#include "msgbox/module_source.h"
#include "support/designer_fixture.h"

namespace brimwork {
namespace frmMsgBox_result_test {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

struct Designer : testing::Test, DesignerFixture {
  std::string PlainBoxSays() const {
    const ShownMessage& box = PlainBox();
    return box.title + '|' + box.prompt + '|' + std::to_string(box.style);
  }
};

TEST_F(Designer, PreviewsThePlainMessageBox) {
  form.txtMsgBoxText.Type(" Save \"it\"?\n\n");
  form.txtMsgBoxTitle.Type(" My Program ");
  ChooseButtons("vbYesNo");
  form.cmdIcons(4).Click();
  Preview();
  EXPECT_EQ(PlainBoxSays(), "My Program|Save \"it\"?|36");
  EXPECT_THAT(memory.messageBoxes.Shown(), IsEmpty());
}

TEST_F(Designer, SaysWhichButtonEndedThePreview) {
  const std::pair<int, const char*> kNames[] = {{1, "vbOK"},    {2, "vbCancel"}, {3, "vbAbort"},
                                                {4, "vbRetry"}, {5, "vbIgnore"}, {6, "vbYes"},
                                                {7, "vbNo"}};
  for (const auto& [button, name] : kNames) {
    memory.dialogs.AnswerMessage(button);
    EXPECT_EQ(Preview(), std::string("Button Clicked: ") + name);
  }
  EXPECT_EQ(form.sbStatus.SimpleText, "Button Clicked: vbNo");
}

TEST_F(Designer, SaysNothingOfABoxThatDidNotComeUp) {
  memory.dialogs.AnswerMessage(0);
  EXPECT_EQ(Preview(), "Button Clicked: ");
  memory.dialogs.AnswerMessage(8);
  EXPECT_EQ(Preview(), "Button Clicked: ");
}

TEST_F(Designer, PreviewsTheCustomMessageBox) {
  form.txtMsgBoxText.Type("Go on?");
  form.txtMsgBoxTitle.Type("Question");
  ChooseButtons("vbYesNo");
  SetPosition("100", "50");
  SetCaption(1, "Never");
  memory.messageBoxes.ClickAt(500, "Never");
  EXPECT_EQ(Preview(), "Button Clicked: vbNo");
  const MessageBoxRequest& request = SpecialBox().request;
  EXPECT_EQ(request.owner, form.hWnd());
  EXPECT_EQ(request.text, "Go on?");
  EXPECT_EQ(request.title, "Question");
  EXPECT_EQ(request.style, 4);
  EXPECT_EQ(SpecialBox().window.area.left, 100);
  EXPECT_EQ(SpecialBox().window.area.top, 50);
  EXPECT_THAT(memory.dialogs.Messages(), IsEmpty());
}

TEST_F(Designer, LetsTheCustomMessageBoxTimeOut) {
  form.txtMsgBoxTitle.Type("Question");
  SetTimeOut("3");
  EXPECT_EQ(Preview(), "Button Clicked: vbOK");
  EXPECT_GE(SpecialBox().milliseconds, 3000u);
  EXPECT_LT(SpecialBox().milliseconds, 4000u);
}

TEST_F(Designer, SaysWhatBecameOfTheCheckBox) {
  form.txtMsgBoxTitle.Type("Question");
  SetCheckBox("Ask again");
  memory.messageBoxes.ClickAt(500, "OK");
  EXPECT_EQ(Preview(), "Button Clicked: vbOK CheckBox Value: False");
  memory.messageBoxes.ClickAt(500, "Ask again");
  memory.messageBoxes.ClickAt(1500, "OK");
  EXPECT_EQ(Preview(), "Button Clicked: vbOK CheckBox Value: True");
}

TEST_F(Designer, ShowsTheCodeOfThePlainMessageBox) {
  form.txtMsgBoxText.Type("Say \"yes\"\nor no");
  form.txtMsgBoxTitle.Type(" Title ");
  EXPECT_EQ(Code(),
            "MsgBox \"Say \" & chr(34) & \"yes\" & chr(34) & vbCrLf & \"or no\",0,\"Title\"");
  EXPECT_TRUE(viewer.Visible());
  EXPECT_FALSE(memory.formHost.IsModal(viewer));
  EXPECT_THAT(memory.dialogs.Messages(), IsEmpty());
}

TEST_F(Designer, ShowsTheCodeOfTheCustomMessageBox) {
  UseProject().AddModule("modCustomMsgBox", "");
  form.txtMsgBoxText.Type("Go on?");
  form.txtMsgBoxTitle.Type("Question");
  ChooseButtons("vbYesNo");
  SetTimeOut("5");
  SetPosition("10", "20");
  SetCheckBox("Ask again");
  SetCaption(0, "Sure");
  EXPECT_EQ(Code(),
            "Dim CheckBoxValue As Boolean\r\n"
            "CreateSpecialMsgBox \"Go on?\",4,\"Question\",5,10,20,\"Ask again\", CheckBoxValue,2,"
            "\"Sure,&No\",\"&Yes,&No\"");
}

TEST_F(Designer, ShowsNewCodeInAViewerThatIsOpen) {
  Code();
  form.txtMsgBoxText.Type("x");
  EXPECT_EQ(Code(), "MsgBox \"x\",0,\"\"");
}

TEST_F(Designer, AddsTheRequiredModuleWhenTheUserWantsIt) {
  MemoryProject& project = UseProject();
  SetTimeOut("5");
  memory.dialogs.AnswerMessage(message_box_result::kYes);
  Code();
  const auto added = project.ComponentOfName("modCustomMsgBox");
  ASSERT_TRUE(added);
  EXPECT_EQ(added->Module()->Lines(1, added->Module()->CountOfLines()), kModCustomMsgBoxSource);
  EXPECT_TRUE(viewer.Visible());
}

TEST_F(Designer, ShowsTheCodeAllTheSameWhenTheUserWantsNoModule) {
  MemoryProject& project = UseProject();
  SetTimeOut("5");
  memory.dialogs.AnswerMessage(message_box_result::kNo);
  EXPECT_EQ(Code(), "CreateSpecialMsgBox \"\",0,\"\",5,-1,-1,\"\",,1,\"\",\"OK\"");
  EXPECT_THAT(project.VBComponents(), IsEmpty());
  EXPECT_THAT(memory.dialogs.Messages(), SizeIs(1));
}

TEST_F(Designer, PassesAnErrorOfTheEnvironmentOn) {
  memory.vbe.SetProject(nullptr);
  SetTimeOut("5");
  const auto error = ResumeNext([this] { form.cmdCode.Click(); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->Number(), error_number::kObjectNotSet);
  EXPECT_FALSE(viewer.Visible());
}

TEST_F(Designer, PreviewsOnEnterAndLeavesOnEscape) {
  form.txtMsgBoxTitle.Type("x");
  form.Press(Key::kEnter);
  EXPECT_EQ(form.sbStatus.SimpleText, "Button Clicked: vbOK");
  form.Press(Key::kEscape);
  EXPECT_FALSE(form.IsLoaded());
}

TEST_F(Designer, TakesTheCodeViewerAlongWhenItLeaves) {
  Code();
  form.cmdExit.Click();
  EXPECT_FALSE(form.IsLoaded());
  EXPECT_FALSE(viewer.IsLoaded());
  EXPECT_THAT(memory.formHost.LoadedForms(), IsEmpty());
}

}  // namespace frmMsgBox_result_test
}  // namespace brimwork
