// The designer's choices that make up the style of a message box, read off the generated code.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/designer_fixture.h"
#include "support/form_checks.h"

namespace brimwork {
namespace frmMsgBox_styles_test {

using testing::ElementsAre;
using testing::IsEmpty;

struct DesignerStyle : testing::Test, DesignerFixture {
  /// The style number of the plain message box.
  std::string Style() {
    const std::string code = Code();
    const auto first = code.find(',') + 1;
    return code.substr(first, code.find(',', first) - first);
  }

  std::vector<std::string> PreviewCaptions() const {
    std::vector<std::string> captions;
    for (const CommandButton& button : form.MsgBoxButtons) {
      captions.push_back(button.Visible ? button.Caption.Get() : "-");
    }
    return captions;
  }
};

/// The numbers of the frames with a border.
template <class Frames>
std::vector<int> Marked(const Frames& frames) {
  std::vector<int> marked;
  for (const PictureBox& frame : frames) {
    if (frame.BorderStyle == border_style::kFixedSingle) marked.push_back(frame.Index());
  }
  return marked;
}

TEST_F(DesignerStyle, StartsAsAnOkButtonAndNothingElse) {
  EXPECT_EQ(form.cmbButtons.Text(), "vbOKOnly");
  EXPECT_THAT(PreviewCaptions(), ElementsAre("OK", "-", "-"));
  EXPECT_THAT(Marked(form.picIconFrame), ElementsAre(0));
  EXPECT_THAT(Marked(form.picButtonFrame), ElementsAre(0));
  EXPECT_TRUE(form.optMsgBox(0).Value);
  EXPECT_FALSE(form.chkViewSpecial.Value);
  EXPECT_EQ(Code(), "MsgBox \"\",0,\"\"");
}

TEST_F(DesignerStyle, ListsTheButtonsSetsInTheirOrder) {
  EXPECT_THAT(form.cmbButtons.Items(), ElementsAre("vbAbortRetryIgnore", "vbOKCancel", "vbOKOnly",
                                                   "vbRetryCancel", "vbYesNo", "vbYesNoCancel"));
}

TEST_F(DesignerStyle, ComesFromTheButtonsSetWhichTheButtonsShow) {
  const struct {
    const char* name;
    const char* style;
    std::vector<std::string> captions;
  } kSets[] = {{"vbAbortRetryIgnore", "2", {"&Abort", "&Retry", "&Ignore"}},
               {"vbOKCancel", "1", {"OK", "Cancel", "-"}},
               {"vbOKOnly", "0", {"OK", "-", "-"}},
               {"vbRetryCancel", "5", {"&Retry", "Cancel", "-"}},
               {"vbYesNo", "4", {"&Yes", "&No", "-"}},
               {"vbYesNoCancel", "3", {"&Yes", "&No", "Cancel"}}};
  for (const auto& set : kSets) {
    ChooseButtons(set.name);
    EXPECT_EQ(PreviewCaptions(), set.captions) << set.name;
    EXPECT_EQ(Style(), set.style) << set.name;
  }
}

TEST_F(DesignerStyle, ComesFromTheIconThatTheBorderMarks) {
  const char* const kStyles[] = {"0", "16", "48", "64", "32"};
  for (const int icon : {4, 3, 2, 1, 0}) {
    form.cmdIcons(icon).Click();
    EXPECT_THAT(Marked(form.picIconFrame), ElementsAre(icon));
    EXPECT_EQ(Style(), kStyles[icon]);
  }
}

TEST_F(DesignerStyle, ComesFromTheDefaultButtonThatTheBorderMarks) {
  ChooseButtons("vbYesNoCancel");
  const char* const kStyles[] = {"3", "259", "515"};
  for (const int button : {2, 1, 0}) {
    form.MsgBoxButtons(button).Click();
    EXPECT_THAT(Marked(form.picButtonFrame), ElementsAre(button));
    EXPECT_EQ(Style(), kStyles[button]);
  }
}

TEST_F(DesignerStyle, LetsNobodyChooseAButtonThatIsNotUsed) {
  form.MsgBoxButtons(1).Click();
  EXPECT_THAT(Marked(form.picButtonFrame), ElementsAre(0));
  EXPECT_EQ(Style(), "0");
}

TEST_F(DesignerStyle, ComesFromTheModality) {
  form.optMsgBox(1).Click();
  EXPECT_EQ(Style(), "4096");
  form.optMsgBox(0).Click();
  EXPECT_EQ(Style(), "0");
}

TEST_F(DesignerStyle, ComesFromEveryTickedOption) {
  form.chkMsgBox(0).Click();
  EXPECT_EQ(Style(), "16384");
  form.chkMsgBox(1).Click();
  EXPECT_EQ(Style(), "540672");
  form.chkMsgBox(2).Click();
  EXPECT_EQ(Style(), "1589248");
  form.chkMsgBox(3).Click();
  EXPECT_EQ(Style(), "1654784");
  form.chkMsgBox(1).Click();
  EXPECT_EQ(Style(), "1130496");
}

TEST_F(DesignerStyle, AddsUpEverything) {
  ChooseButtons("vbYesNo");
  form.cmdIcons(4).Click();
  EXPECT_EQ(Style(), "36");
  form.MsgBoxButtons(1).Click();
  form.optMsgBox(1).Click();
  form.chkMsgBox(0).Click();
  EXPECT_EQ(Style(), "20772");
}

TEST_F(DesignerStyle, StartsAnewWhenTheDesignerIsOpenedAgain) {
  ChooseButtons("vbYesNo");
  form.cmdIcons(1).Click();
  form.chkMsgBox(0).Click();
  form.optMsgBox(1).Click();
  form.txtMsgBoxText.Type("Sure?");
  form.cmdExit.Click();
  form.Show();
  EXPECT_EQ(Code(), "MsgBox \"\",0,\"\"");
  EXPECT_THAT(Marked(form.picIconFrame), ElementsAre(0));
  EXPECT_THAT(PreviewCaptions(), ElementsAre("OK", "-", "-"));
}

TEST_F(DesignerStyle, HasAControlForEachChoiceInItsPlaceWhicheverButtonsAreShown) {
  EXPECT_THAT(LayoutFaults(form), IsEmpty());
  for (int set = 0; set < form.cmbButtons.ListCount(); ++set) {
    form.cmbButtons.Choose(set);
    EXPECT_THAT(PageFaults(form), IsEmpty()) << form.cmbButtons.Text();
  }
}

TEST_F(DesignerStyle, IsReachedByTheKeyboardAlone) {
  form.PressAlt('b');
  EXPECT_EQ(form.ActiveControl(), &form.cmbButtons);
  form.PressAlt('o');
  EXPECT_EQ(form.ActiveControl(), &form.cmdIcons(0));
  form.Press(Key::kTab);
  form.Press(Key::kEnter);
  EXPECT_THAT(Marked(form.picIconFrame), ElementsAre(1));
  form.PressAlt('w');
  EXPECT_TRUE(form.chkMsgBox(3).Value);
}

}  // namespace frmMsgBox_styles_test
}  // namespace brimwork
