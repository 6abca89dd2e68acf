// Where the focus goes, and what the keys do.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/sample_form.h"

namespace brimwork {
namespace form_keyboard_test {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

std::vector<std::string> TabbedThrough(frmSample& form, Key key, int count) {
  std::vector<std::string> names;
  for (int i = 0; i < count; ++i) {
    form.Press(key);
    names.emplace_back(form.ActiveControl()->Name());
  }
  return names;
}

TEST(Focus, MovesWithItsEventsInOrder) {
  ShownSample sample;
  sample.form.chkReady.Click();
  EXPECT_THAT(sample.form.events, ElementsAre("txtName Validate", "txtName LostFocus",
                                              "chkReady GotFocus", "chkReady Click"));
}

TEST(Focus, StaysWhereTheTextIsRefused) {
  ShownSample sample;
  sample.form.refusesName = true;
  sample.form.chkReady.Click();
  sample.form.Press(Key::kTab);
  EXPECT_THAT(sample.form.events, ElementsAre("txtName Validate", "txtName Validate"));
  EXPECT_EQ(sample.form.ActiveControl(), &sample.form.txtName);
  EXPECT_FALSE(sample.form.chkReady.Value);
}

TEST(Focus, GoesToAControlThatCausesNoValidationAllTheSame) {
  ShownSample sample;
  sample.form.refusesName = true;
  sample.form.cmdLeave.Click();
  EXPECT_THAT(sample.form.events,
              ElementsAre("txtName LostFocus", "cmdLeave GotFocus", "cmdLeave Click"));
}

TEST(Focus, IsMovedByCode) {
  ShownSample sample;
  sample.form.txtNotes.SetFocus();
  EXPECT_EQ(sample.form.ActiveControl(), &sample.form.txtNotes);
}

TEST(Focus, IsRefusedByAControlThatCannotHaveIt) {
  ShownSample sample;
  sample.form.txtNotes.Enabled = false;
  sample.form.fraColor.Visible = false;
  EXPECT_THROW(sample.form.txtNotes.SetFocus(), RunTimeError);
  EXPECT_THROW(sample.form.optColor(0).SetFocus(), RunTimeError);
  EXPECT_THROW(sample.form.lblName.SetFocus(), RunTimeError);
}

TEST(Focus, MovesOnWhenItsControlIsDisabledOrHidden) {
  ShownSample sample;
  sample.form.txtName.Enabled = false;
  EXPECT_THAT(sample.form.events, ElementsAre("txtName LostFocus", "txtNotes GotFocus"));
  sample.form.txtNotes.Visible = false;
  EXPECT_EQ(sample.form.ActiveControl(), &sample.form.chkReady);
}

TEST(Focus, MovesOutOfAFrameThatIsHidden) {
  ShownSample sample;
  sample.form.optColor(0).Click();
  sample.form.fraColor.Visible = false;
  EXPECT_EQ(sample.form.ActiveControl(), &sample.form.lstWords);
}

TEST(TabKey, GoesThroughTheControlsInTabOrderAndAround) {
  ShownSample sample;
  EXPECT_THAT(TabbedThrough(sample.form, Key::kTab, 9),
              ElementsAre("txtNotes", "chkReady", "optColor", "lstWords", "cmbWords", "tabPages",
                          "cmdOk", "cmdLeave", "txtName"));
}

TEST(TabKey, GoesBackwardsTogetherWithShift) {
  ShownSample sample;
  EXPECT_THAT(TabbedThrough(sample.form, Key::kShiftTab, 3),
              ElementsAre("cmdLeave", "cmdOk", "tabPages"));
}

TEST(TabKey, StopsAtTheChosenOptionOfAGroup) {
  ShownSample sample;
  sample.form.optColor(1).Value = true;
  sample.form.chkReady.SetFocus();
  sample.form.Press(Key::kTab);
  EXPECT_EQ(sample.form.ActiveControl(), &sample.form.optColor(1));
}

TEST(TabKey, PassesByWhatCannotBeUsed) {
  ShownSample sample;
  sample.form.txtNotes.Enabled = false;
  sample.form.chkReady.Visible = false;
  sample.form.fraColor.Enabled = false;
  sample.form.Press(Key::kTab);
  EXPECT_EQ(sample.form.ActiveControl(), &sample.form.lstWords);
}

TEST(EnterKey, ClicksTheDefaultButtonAndLeavesTheFocus) {
  ShownSample sample;
  sample.form.Press(Key::kEnter);
  EXPECT_THAT(sample.form.events, ElementsAre("cmdOk Click"));
  EXPECT_EQ(sample.form.ActiveControl(), &sample.form.txtName);
}

TEST(EnterKey, ClicksTheButtonThatHasTheFocus) {
  ShownSample sample;
  sample.form.cmdLeave.SetFocus();
  sample.form.events.clear();
  sample.form.Press(Key::kEnter);
  EXPECT_THAT(sample.form.events, ElementsAre("cmdLeave Click"));
}

TEST(EnterKey, StartsANewLineWhereNoButtonTakesIt) {
  ShownSample sample;
  sample.form.cmdOk.Enabled = false;
  sample.form.txtNotes.SetFocus();
  sample.form.Press(Key::kEnter);
  EXPECT_EQ(sample.form.txtNotes.Text, "\r\nOne\r\nTwo");
}

TEST(EscapeKey, ClicksTheCancelButton) {
  ShownSample sample;
  sample.form.refusesName = true;
  sample.form.Press(Key::kEscape);
  EXPECT_THAT(sample.form.events, ElementsAre("cmdLeave Click"));
}

TEST(EscapeKey, IsNothingWhileTheCancelButtonIsDisabled) {
  ShownSample sample;
  sample.form.cmdLeave.Enabled = false;
  sample.form.Press(Key::kEscape);
  EXPECT_THAT(sample.form.events, IsEmpty());
}

TEST(AccessKey, ClicksButtonsAndBoxes) {
  ShownSample sample;
  sample.form.PressAlt('R');
  EXPECT_TRUE(sample.form.chkReady.Value);
  sample.form.PressAlt('g');
  EXPECT_TRUE(sample.form.optColor(1).Value);
  sample.form.events.clear();
  sample.form.PressAlt('l');
  EXPECT_THAT(sample.form.events, ElementsAre("cmdLeave GotFocus", "cmdLeave Click"));
}

TEST(AccessKey, OfALabelOrAFrameGoesToTheControlBehindIt) {
  ShownSample sample;
  sample.form.PressAlt('o');
  EXPECT_EQ(sample.form.ActiveControl(), &sample.form.optColor(0));
  sample.form.PressAlt('n');
  EXPECT_EQ(sample.form.ActiveControl(), &sample.form.txtName);
}

TEST(AccessKey, IsNothingForAControlThatCannotBeUsed) {
  ShownSample sample;
  sample.form.chkReady.Enabled = false;
  sample.form.PressAlt('r');
  sample.form.PressAlt('?');
  EXPECT_THAT(sample.form.events, IsEmpty());
}

TEST(Keys, AreNothingWhileTheFormIsHidden) {
  ShownSample sample;
  sample.form.Hide();
  sample.form.Press(Key::kTab);
  sample.form.Press(Key::kEnter);
  sample.form.PressAlt('r');
  EXPECT_THAT(sample.form.events, IsEmpty());
}

}  // namespace form_keyboard_test
}  // namespace brimwork
