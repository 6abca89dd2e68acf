#include "environment/buttons.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/sample_form.h"

namespace brimwork {
namespace buttons_test {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::Not;

TEST(CommandButton, IsClicked) {
  ShownSample sample;
  sample.form.cmdOk.Click();
  EXPECT_THAT(sample.form.events, Contains("cmdOk Click"));
  EXPECT_EQ(sample.form.ActiveControl(), &sample.form.cmdOk);
}

TEST(CommandButton, DoesNothingWhileItIsDisabledOrHidden) {
  ShownSample sample;
  sample.form.cmdOk.Enabled = false;
  sample.form.cmdOk.Click();
  sample.form.cmdOk.Enabled = true;
  sample.form.cmdOk.Visible = false;
  sample.form.cmdOk.Click();
  EXPECT_THAT(sample.form.events, IsEmpty());
}

TEST(CommandButton, DoesNothingOnAFormThatIsNotVisible) {
  ShownSample sample;
  sample.form.Hide();
  sample.form.cmdOk.Click();
  EXPECT_THAT(sample.form.events, IsEmpty());
}

TEST(CheckBox, IsTurnedOverByEachClick) {
  ShownSample sample;
  CheckBox& box = sample.form.chkReady;
  box.Click();
  EXPECT_TRUE(box.Value);
  box.Click();
  EXPECT_FALSE(box.Value);
}

TEST(CheckBox, RaisesClickWhenCodeChangesItsValue) {
  ShownSample sample;
  sample.form.chkReady.Value = true;
  sample.form.chkReady.Value = true;
  EXPECT_THAT(sample.form.events, ElementsAre("chkReady Click"));
}

TEST(OptionButton, IsChosenInsteadOfTheOthersInItsContainer) {
  ShownSample sample;
  sample.form.optColor(1).Click();
  EXPECT_TRUE(sample.form.optColor(1).Value);
  EXPECT_FALSE(sample.form.optColor(0).Value);
  EXPECT_THAT(sample.form.events, Contains("optColor Click 1"));
  EXPECT_THAT(sample.form.events, Not(Contains("optColor Click 0")));
}

TEST(OptionButton, RaisesClickWhenCodeChoosesIt) {
  ShownSample sample;
  sample.form.optColor(1).Value = true;
  sample.form.optColor(1).Value = true;
  EXPECT_THAT(sample.form.events, ElementsAre("optColor Click 1"));
  EXPECT_FALSE(sample.form.optColor(0).Value);
}

TEST(OptionButton, IsGivenUpByCodeWithoutAClick) {
  ShownSample sample;
  sample.form.optColor(0).Value = false;
  EXPECT_THAT(sample.form.events, IsEmpty());
}

TEST(OptionButton, CannotBeClickedInADisabledOrHiddenFrame) {
  ShownSample sample;
  sample.form.fraColor.Enabled = false;
  sample.form.optColor(1).Click();
  sample.form.fraColor.Enabled = true;
  sample.form.fraColor.Visible = false;
  sample.form.optColor(1).Click();
  EXPECT_THAT(sample.form.events, IsEmpty());
  EXPECT_TRUE(sample.form.optColor(0).Value);
}

TEST(ControlArray, RefusesAnIndexThatNoElementHas) {
  ShownSample sample;
  EXPECT_THROW(sample.form.optColor(2), RunTimeError);
  EXPECT_THROW(sample.form.optColor(-1), RunTimeError);
}

TEST(ControlArray, GoesThroughItsElements) {
  ShownSample sample;
  std::vector<int> indexes;
  for (const OptionButton& option : sample.form.optColor) indexes.push_back(option.Index());
  EXPECT_THAT(indexes, ElementsAre(0, 1));
  EXPECT_EQ(sample.form.optColor.Count(), 2);
}

}  // namespace buttons_test
}  // namespace brimwork
