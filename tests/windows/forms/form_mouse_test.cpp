// What the user does with the mouse.
#include <gmock/gmock.h>

#include "windows/forms/native_forms.h"

namespace brimwork::windows {
namespace form_mouse_test {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;

TEST(FormMouse, AClickOnAButtonMovesTheFocusAndClicksIt) {
  NativeSample sample;
  BRIMWORK_NEEDS_KEYBOARD(sample);
  sample.Click(sample.form.cmdOk);
  EXPECT_THAT(sample.form.events,
              ElementsAre("txtName Validate", "txtName LostFocus", "cmdOk Click"));
  EXPECT_EQ(sample.Focused(sample.form), &sample.form.cmdOk);
}

TEST(FormMouse, AClickIsRefusedWithTheFocus) {
  NativeSample sample;
  BRIMWORK_NEEDS_KEYBOARD(sample);
  sample.form.refusesName = true;
  sample.Click(sample.form.cmdOk);
  sample.Click(sample.form.chkReady);
  EXPECT_THAT(sample.form.events, ElementsAre("txtName Validate", "txtName Validate"));
  EXPECT_FALSE(sample.form.chkReady.Value);
  EXPECT_EQ(sample.Focused(sample.form), &sample.form.txtName);
  sample.Click(sample.form.cmdLeave);
  EXPECT_THAT(sample.form.events, Contains("cmdLeave Click"));
}

TEST(FormMouse, ChecksAndOptionsFollowTheData) {
  NativeSample sample;
  BRIMWORK_NEEDS_KEYBOARD(sample);
  const auto isChecked = [&](const Control& control) {
    return SendMessageW(sample.WindowOf(control), BM_GETCHECK, 0, 0) == BST_CHECKED;
  };
  sample.Click(sample.form.chkReady);
  EXPECT_TRUE(sample.form.chkReady.Value);
  EXPECT_TRUE(isChecked(sample.form.chkReady));
  sample.form.chkReady.OnClick = [&] { sample.form.chkReady.Value = true; };
  sample.Click(sample.form.chkReady);
  EXPECT_TRUE(isChecked(sample.form.chkReady));
  sample.Click(sample.form.optColor(1));
  EXPECT_TRUE(isChecked(sample.form.optColor(1)));
  EXPECT_FALSE(isChecked(sample.form.optColor(0)));
  EXPECT_THAT(sample.form.events, Contains("optColor Click 1"));
}

TEST(FormMouse, ListsAndTabsTellWhatWasChosen) {
  NativeSample sample;
  BRIMWORK_NEEDS_KEYBOARD(sample);
  const HWND list = sample.WindowOf(sample.form.lstWords);
  const auto lineHeight = static_cast<int>(SendMessageW(list, LB_GETITEMHEIGHT, 0, 0));
  sample.ClickInside(sample.form.lstWords, 10, lineHeight + lineHeight / 2);
  EXPECT_EQ(sample.form.lstWords.Text(), "Green");
  EXPECT_THAT(sample.form.events, Contains("lstWords Click"));
  sample.ClickInside(sample.form.tabPages, 60, 8);
  EXPECT_EQ(sample.form.tabPages.SelectedItem, 2);
  EXPECT_EQ(sample.Focused(sample.form), &sample.form.tabPages);
}

TEST(FormMouse, ALabelIsClickedWhenTheButtonGoesUpOverIt) {
  NativeSample sample;
  BRIMWORK_NEEDS_KEYBOARD(sample);
  sample.Click(sample.form.lblName);
  EXPECT_THAT(sample.form.events, ElementsAre("lblName Click"));
  const HWND label = sample.WindowOf(sample.form.lblName);
  SendMessageW(label, WM_LBUTTONDOWN, MK_LBUTTON, MAKELPARAM(5, 5));
  SendMessageW(label, WM_LBUTTONUP, 0, MAKELPARAM(5, 200));
  EXPECT_THAT(sample.form.events, ElementsAre("lblName Click"));
  EXPECT_EQ(sample.Focused(sample.form), &sample.form.txtName);
}

TEST(FormMouse, ADisabledControlIsNotClicked) {
  NativeSample sample;
  BRIMWORK_NEEDS_KEYBOARD(sample);
  sample.form.cmdOk.Enabled = false;
  sample.Click(sample.form.cmdOk);
  EXPECT_THAT(sample.form.events, Not(Contains("cmdOk Click")));
}

TEST(FormMouse, AClickIntoTextMovesTheCaret) {
  NativeSample sample;
  BRIMWORK_NEEDS_KEYBOARD(sample);
  sample.ClickInside(sample.form.txtName, 90, 8);
  EXPECT_EQ(sample.form.txtName.SelStart(), 4);
  sample.Type("x");
  EXPECT_EQ(sample.form.txtName.Text, "Annex");
}

}  // namespace form_mouse_test
}  // namespace brimwork::windows
