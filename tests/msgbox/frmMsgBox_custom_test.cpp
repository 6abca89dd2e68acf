// The designer's custom features: which boxes can be used, where the focus goes, and what counts as
// being in use.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "support/designer_fixture.h"

namespace brimwork {
namespace frmMsgBox_custom_test {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

struct CustomDesigner : DesignerFixture {
  /// No question about the module comes up.
  CustomDesigner() { UseProject().AddModule("modCustomMsgBox", ""); }

  bool IsCustom() { return Code().find("CreateSpecialMsgBox") != std::string::npos; }

  /// "time-out,X,Y" of the custom message box's code.
  std::string Numbers() {
    const std::string code = Code();
    const auto first = code.find("\"\",") + 3;
    const auto second = code.find("\"\",", first) + 3;
    return code.substr(second, code.find(",\"", second) - second);
  }

  /// The code from the check box's text on.
  std::string Tail() {
    const std::string code = Code();
    const std::string numbers = Numbers();
    return code.substr(code.find(numbers) + numbers.size() + 1);
  }

  static std::string NameAndIndex(const Control& control) {
    std::string name(control.Name());
    return control.Index() == kNoIndex ? name : name + std::to_string(control.Index());
  }

  std::string SelectedText() {
    const auto* box = dynamic_cast<TextBox*>(form.ActiveControl());
    return box == nullptr ? "no text box" : std::string(box->SelText());
  }
};

struct CustomFeatures : testing::Test, CustomDesigner {};

TEST_F(CustomFeatures, AreReachedOnlyWhileTheirFramesAreEnabled) {
  for (const Frame& frame : form.fraMsgBox) {
    EXPECT_EQ(frame.Enabled, frame.Index() < frmMsgBox::kFirstCustomFrame) << frame.Index();
  }
  form.chkSpecial(0).Click();
  form.chkButtonCaption(0).Click();
  EXPECT_FALSE(form.chkSpecial(0).Value);
  EXPECT_FALSE(form.chkButtonCaption(0).Value);
  form.chkViewSpecial.Click();
  for (const Frame& frame : form.fraMsgBox) EXPECT_TRUE(frame.Enabled) << frame.Index();
  form.chkViewSpecial.Click();
  for (int frame = 0; frame < 8; ++frame) EXPECT_EQ(form.fraMsgBox(frame).Enabled, frame < 5);
}

TEST_F(CustomFeatures, EachEnablesItsBoxes) {
  form.chkViewSpecial.Click();
  const auto enabled = [this] {
    return std::vector<bool>{form.txtPosition(0).Enabled, form.txtPosition(1).Enabled,
                             form.txtTimeOut.Enabled, form.txtCheckBoxText.Enabled};
  };
  EXPECT_THAT(enabled(), ElementsAre(false, false, false, false));
  form.chkSpecial(0).Click();
  EXPECT_THAT(enabled(), ElementsAre(true, true, false, false));
  form.chkSpecial(1).Click();
  EXPECT_THAT(enabled(), ElementsAre(true, true, true, false));
  form.chkSpecial(2).Click();
  EXPECT_THAT(enabled(), ElementsAre(true, true, true, true));
  form.chkSpecial(0).Click();
  EXPECT_THAT(enabled(), ElementsAre(false, false, true, true));
}

TEST_F(CustomFeatures, GiveTheFocusToTheLastOfTheirBoxesThatCanBeUsed) {
  form.chkViewSpecial.Click();
  form.chkSpecial(0).Click();
  EXPECT_EQ(form.ActiveControl(), &form.txtPosition(0));
  form.chkSpecial(1).Click();
  EXPECT_EQ(form.ActiveControl(), &form.txtTimeOut);
  form.chkSpecial(2).Click();
  EXPECT_EQ(form.ActiveControl(), &form.txtCheckBoxText);
  form.chkSpecial(0).Click();
  EXPECT_EQ(form.ActiveControl(), &form.txtCheckBoxText);
  form.chkSpecial(2).Click();
  EXPECT_EQ(form.ActiveControl(), &form.txtTimeOut);
}

TEST_F(CustomFeatures, SwitchingTheTimeOutOffGoesToTheSecondPositionBox) {
  SetPosition("10", "20");
  form.chkSpecial(1).Click();
  form.chkSpecial(1).Click();
  EXPECT_EQ(form.ActiveControl(), &form.txtPosition(1));
  EXPECT_EQ(SelectedText(), "20");
}

TEST_F(CustomFeatures, VisitTheirBoxesInOrderAndSelectEachText) {
  SetPosition("10", "20");
  SetTimeOut("5");
  SetCheckBox("Again");
  form.chkMsgBox(0).Click();
  std::vector<std::string> visited;
  for (Control* box :
       {static_cast<Control*>(&form.txtPosition(0)), static_cast<Control*>(&form.txtPosition(1)),
        static_cast<Control*>(&form.txtTimeOut), static_cast<Control*>(&form.txtCheckBoxText)}) {
    box->OnGotFocus = [&visited, box] { visited.push_back(NameAndIndex(*box)); };
  }
  form.chkSpecial(0).Click();
  form.chkSpecial(0).Click();
  EXPECT_THAT(visited, ElementsAre("txtTimeOut", "txtCheckBoxText", "txtPosition0", "txtTimeOut",
                                   "txtCheckBoxText"));
  EXPECT_EQ(form.txtPosition(0).SelText(), "10");
  EXPECT_EQ(form.txtTimeOut.SelText(), "5");
  EXPECT_EQ(form.txtCheckBoxText.SelText(), "Again");
}

TEST_F(CustomFeatures, AreNotInUseBeforeAnythingIsSet) {
  form.chkViewSpecial.Click();
  EXPECT_FALSE(IsCustom());
  for (const int feature : {0, 1, 2}) form.chkSpecial(feature).Click();
  EXPECT_FALSE(IsCustom());
}

TEST_F(CustomFeatures, PutTheTimeOutIntoTheCode) {
  SetTimeOut("5");
  EXPECT_EQ(Numbers(), "5,-1,-1");
}

TEST_F(CustomFeatures, TakeATimeOutThatIsNoNumberOrTooLargeForNone) {
  for (const char* text : {"", " ", "soon", "5 s", "32768", "-32769", "1e9", "&H10"}) {
    CustomDesigner other;
    other.SetTimeOut(text);
    EXPECT_FALSE(other.IsCustom()) << text;
  }
}

TEST_F(CustomFeatures, RoundATimeOutToAWholeNumber) {
  const std::pair<const char*, const char*> kExpected[] = {
      {" 7 ", "7"},       {"2.4", "2"}, {"2.5", "2"}, {"3.5", "4"}, {"1e1", "10"},
      {"32767", "32767"}, {"0", "0"},   {"+3", "3"},  {"-7", "-7"}};
  for (const auto& [typed, number] : kExpected) {
    CustomDesigner other;
    other.SetTimeOut(typed);
    EXPECT_EQ(other.Numbers(), std::string(number) + ",-1,-1") << typed;
  }
}

TEST_F(CustomFeatures, PutThePositionIntoTheCode) {
  SetPosition("100", "200000");
  EXPECT_EQ(Numbers(), "-1,100,200000");
}

TEST_F(CustomFeatures, NeedBothNumbersOfAPosition) {
  const std::pair<const char*, const char*> kHalves[] = {
      {"100", ""}, {"", "100"}, {"100", "here"}, {"2147483648", "5"}, {"-1", "5"}};
  for (const auto& [x, y] : kHalves) {
    CustomDesigner other;
    other.SetPosition(x, y);
    EXPECT_FALSE(other.IsCustom()) << x << " and " << y;
  }
}

TEST_F(CustomFeatures, WriteOneNumberOfAPositionWhenSomethingElseIsInUse) {
  SetTimeOut("5");
  SetPosition("2147483647", "no number");
  EXPECT_EQ(Numbers(), "5,2147483647,-1");
}

TEST_F(CustomFeatures, PutTheTrimmedCheckBoxTextIntoTheCode) {
  SetCheckBox("  Ask me again ");
  EXPECT_THAT(Code(), StartsWith("Dim CheckBoxValue As Boolean\r\nCreateSpecialMsgBox "));
  EXPECT_EQ(Tail(), "\"Ask me again\", CheckBoxValue,1,\"\",\"OK\"");
}

TEST_F(CustomFeatures, UntickACheckBoxWithoutText) {
  SetCheckBox("   ");
  EXPECT_FALSE(IsCustom());
  EXPECT_FALSE(form.chkSpecial(2).Value);
  EXPECT_FALSE(form.txtCheckBoxText.Enabled);
}

TEST_F(CustomFeatures, UntickACheckBoxWithoutTextBeforeThePreviewToo) {
  SetTimeOut("5");
  SetCheckBox("");
  EXPECT_EQ(Preview(), "Button Clicked: vbOK");
  EXPECT_FALSE(form.chkSpecial(2).Value);
}

TEST_F(CustomFeatures, CountNoMoreOnceTheyAreSwitchedOff) {
  SetTimeOut("5");
  SetPosition("1", "2");
  form.chkSpecial(1).Click();
  EXPECT_EQ(Numbers(), "-1,1,2");
  form.chkViewSpecial.Click();
  EXPECT_FALSE(IsCustom());
  form.chkViewSpecial.Click();
  EXPECT_EQ(Numbers(), "-1,1,2");
}

TEST_F(CustomFeatures, TurnACaptionBoxOverWithEachClick) {
  ChooseButtons("vbYesNoCancel");
  form.chkViewSpecial.Click();
  for (const int button : {0, 1, 2}) {
    form.chkButtonCaption(button).Click();
    EXPECT_TRUE(form.txtButtonCaption(button).Enabled);
    EXPECT_EQ(form.ActiveControl(), &form.txtButtonCaption(button));
    EXPECT_EQ(SelectedText(), form.MsgBoxButtons(button).Caption.Get());
  }
  form.chkButtonCaption(1).Click();
  EXPECT_FALSE(form.txtButtonCaption(1).Enabled);
  EXPECT_TRUE(form.txtButtonCaption(2).Enabled);
}

TEST_F(CustomFeatures, ShowACaptionOnItsButtonWhileItIsTyped) {
  ChooseButtons("vbYesNo");
  SetCaption(1, "&Never");
  EXPECT_EQ(form.MsgBoxButtons(0).Caption, "&Yes");
  EXPECT_EQ(form.MsgBoxButtons(1).Caption, "&Never");
  form.txtButtonCaption(1).Erase();
  EXPECT_EQ(form.MsgBoxButtons(1).Caption, "&Neve");
}

TEST_F(CustomFeatures, PutNewCaptionsIntoTheCodeInTheButtonsOrder) {
  ChooseButtons("vbYesNoCancel");
  SetCaption(1, "Never");
  EXPECT_EQ(Tail(), "\"\",,3,\"&Yes,Never,Cancel\",\"&Yes,&No,Cancel\"");
}

TEST_F(CustomFeatures, GoBackToTheStandardCaptionOfAButtonThatIsUnticked) {
  ChooseButtons("vbYesNo");
  SetCaption(0, "Sure");
  SetCaption(1, "Never");
  form.chkButtonCaption(0).Click();
  EXPECT_EQ(form.MsgBoxButtons(0).Caption, "&Yes");
  EXPECT_EQ(form.MsgBoxButtons(1).Caption, "Never");
  EXPECT_EQ(Tail(), "\"\",,2,\"&Yes,Never\",\"&Yes,&No\"");
  form.chkButtonCaption(1).Click();
  EXPECT_EQ(form.MsgBoxButtons(1).Caption, "&No");
  EXPECT_EQ(form.txtButtonCaption(0).Text, "");
  EXPECT_FALSE(IsCustom());
}

TEST_F(CustomFeatures, OfferTheCaptionsOfAnotherButtonsSet) {
  SetCaption(0, "Fine");
  ChooseButtons("vbRetryCancel");
  EXPECT_EQ(form.MsgBoxButtons(0).Caption, "&Retry");
  EXPECT_EQ(form.txtButtonCaption(0).Text, "&Retry");
  EXPECT_EQ(form.txtButtonCaption(1).Text, "Cancel");
  EXPECT_EQ(form.txtButtonCaption(2).Text, "");
  EXPECT_EQ(Tail(), "\"\",,2,\"&Retry,Cancel\",\"&Retry,Cancel\"");
}

TEST_F(CustomFeatures, LeaveTheCaptionBoxesEmptyWhileNoneIsTicked) {
  form.chkViewSpecial.Click();
  ChooseButtons("vbYesNo");
  for (const TextBox& box : form.txtButtonCaption) EXPECT_EQ(box.Text, "");
}

TEST_F(CustomFeatures, HoldTheFocusWhereAUsedButtonHasNoCaption) {
  for (const char* empty : {"", "  "}) {
    CustomDesigner other;
    other.ChooseButtons("vbYesNo");
    other.SetCaption(1, "x");
    other.form.txtButtonCaption(1).SelectAll();
    other.form.txtButtonCaption(1).Erase();
    other.form.txtButtonCaption(1).Type(empty);
    other.form.cmdView.Click();
    EXPECT_THAT(other.memory.dialogs.Messages(),
                ElementsAre(ShownMessage{"You need to have a caption for this button", 64,
                                         "Need Caption"}));
    EXPECT_EQ(other.form.ActiveControl(), &other.form.txtButtonCaption(1));
    EXPECT_EQ(other.form.sbStatus.SimpleText, "");
  }
}

TEST_F(CustomFeatures, LetTheFocusGoWhereAnUnusedButtonHasNoCaption) {
  SetCaption(2, "");
  form.txtMsgBoxText.Type("x");
  EXPECT_THAT(memory.dialogs.Messages(), IsEmpty());
  EXPECT_EQ(form.ActiveControl(), &form.txtMsgBoxText);
}

TEST_F(CustomFeatures, LetTheUserLeaveWithoutACaption) {
  SetCaption(0, "x");
  form.txtButtonCaption(0).Erase();
  form.cmdExit.Click();
  EXPECT_FALSE(form.IsLoaded());
  EXPECT_THAT(memory.dialogs.Messages(), IsEmpty());
}

}  // namespace frmMsgBox_custom_test
}  // namespace brimwork
