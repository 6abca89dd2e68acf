#include "environment/list_box.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/sample_form.h"

namespace brimwork {
namespace list_box_test {

using ::testing::ElementsAre;
using ::testing::IsEmpty;

TEST(ListBox, ShowsItsDesignedItemsNoneOfThemChosen) {
  ShownSample sample;
  EXPECT_THAT(sample.form.lstWords.Items(), ElementsAre("Red", "Green", "Blue"));
  EXPECT_EQ(sample.form.lstWords.ListIndex, -1);
  EXPECT_EQ(sample.form.lstWords.Text(), "");
}

TEST(ListBox, ReadsAsEmptyBeyondItsItems) {
  ShownSample sample;
  EXPECT_EQ(sample.form.lstWords.List(2), "Blue");
  EXPECT_EQ(sample.form.lstWords.List(3), "");
  EXPECT_EQ(sample.form.lstWords.List(-1), "");
}

TEST(ListBox, AddsAtItsEnd) {
  ShownSample sample;
  sample.form.lstWords.AddItem("Red");
  EXPECT_THAT(sample.form.lstWords.Items(), ElementsAre("Red", "Green", "Blue", "Red"));
}

TEST(ListBox, KeepsTheChoiceWithItsItemWhenAnEarlierOneGoes) {
  ShownSample sample;
  ListBox& list = sample.form.lstWords;
  list.Choose(1);
  sample.form.events.clear();
  list.RemoveItem(0);
  EXPECT_EQ(list.ListIndex, 0);
  EXPECT_EQ(list.Text(), "Green");
  list.RemoveItem(1);
  EXPECT_EQ(list.Text(), "Green");
  list.RemoveItem(0);
  EXPECT_EQ(list.ListIndex, -1);
  EXPECT_THAT(sample.form.events, IsEmpty());
}

TEST(ListBox, RefusesToRemoveAnItemThatItHasNot) {
  ShownSample sample;
  EXPECT_THROW(sample.form.lstWords.RemoveItem(3), RunTimeError);
  EXPECT_THROW(sample.form.lstWords.RemoveItem(-1), RunTimeError);
}

TEST(ListBox, IsCleared) {
  ShownSample sample;
  sample.form.lstWords.Choose(2);
  sample.form.lstWords.Clear();
  EXPECT_EQ(sample.form.lstWords.ListCount(), 0);
  EXPECT_EQ(sample.form.lstWords.ListIndex, -1);
}

TEST(ComboBox, RaisesClickForEachChoiceOfTheUser) {
  ShownSample sample;
  sample.form.cmbWords.Choose(2);
  sample.form.cmbWords.Choose(2);
  sample.form.cmbWords.Choose(3);
  EXPECT_EQ(sample.form.cmbWords.Text(), "Blue");
  EXPECT_EQ(std::count(sample.form.events.begin(), sample.form.events.end(), "cmbWords Click"), 2);
}

TEST(ComboBox, RaisesClickWhenCodeChoosesAnotherItem) {
  ShownSample sample;
  sample.form.cmbWords.ListIndex = 1;
  sample.form.cmbWords.ListIndex = 1;
  EXPECT_THAT(sample.form.events, ElementsAre("cmbWords Click"));
}

TEST(ComboBox, CannotBeUsedWhileItIsDisabled) {
  ShownSample sample;
  sample.form.cmbWords.Enabled = false;
  sample.form.cmbWords.Choose(1);
  EXPECT_EQ(sample.form.cmbWords.ListIndex, -1);
}

}  // namespace list_box_test
}  // namespace brimwork
