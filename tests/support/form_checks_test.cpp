// The checks of a layout find what they are there for.
#include "support/form_checks.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/sample_form.h"

namespace brimwork {
namespace form_checks_test {

using ::testing::ElementsAre;
using ::testing::IsEmpty;
using ::testing::UnorderedElementsAre;

TEST(FormChecks, FindNothingInASoundLayout) {
  ShownSample sample;
  EXPECT_THAT(LayoutFaults(sample.form), IsEmpty());
}

struct TwoButtons : Form {
  using Form::Form;
  CommandButton cmdOne{*this, "cmdOne"};
  CommandButton cmdTwo{*this, "cmdTwo"};
};

/// The faults of a form with two buttons and these rows.
std::vector<std::string> FaultsOf(std::span<const ControlLayout> rows) {
  MemoryNativeWindows windows;
  MemoryFormHost host{windows};
  const FormLayout layout = {.name = "frmTwo", .width = 200, .height = 100, .controls = rows};
  TwoButtons form(host, layout);
  return LayoutFaults(form);
}

constexpr ControlLayout kOne = {
    .name = "cmdOne", .place = {8, 8, 75, 23}, .text = "&One", .tabIndex = 0};
constexpr ControlLayout kTwo = {
    .name = "cmdTwo", .place = {8, 40, 75, 23}, .text = "&Two", .tabIndex = 1};

ControlLayout Two(void (*change)(ControlLayout&)) {
  ControlLayout row = kTwo;
  change(row);
  return row;
}

std::vector<std::string> FaultsWithTwo(void (*change)(ControlLayout&)) {
  const ControlLayout rows[] = {kOne, Two(change)};
  return FaultsOf(rows);
}

TEST(FormChecks, FindControlsWithoutARowAndRowsWithoutAControl) {
  const ControlLayout rows[] = {kOne, kOne, {.name = "cmdThree"}};
  EXPECT_THAT(FaultsOf(rows), UnorderedElementsAre("cmdOne has 2 rows", "cmdTwo has 0 rows",
                                                   "cmdOne has the tab index of cmdOne",
                                                   "cmdThree has a row but is no control"));
}

TEST(FormChecks, FindAContainerThatHoldsNothing) {
  EXPECT_THAT(FaultsWithTwo([](ControlLayout& row) { row.container = {"cmdOne"}; }),
              ElementsAre("cmdTwo lies in nothing that holds controls"));
}

TEST(FormChecks, FindTabIndexesThatAreMissingOrTaken) {
  EXPECT_THAT(FaultsWithTwo([](ControlLayout& row) { row.tabIndex = kNoTabIndex; }),
              ElementsAre("cmdTwo has no tab index"));
  EXPECT_THAT(FaultsWithTwo([](ControlLayout& row) { row.tabIndex = 0; }),
              ElementsAre("cmdTwo has the tab index of cmdOne"));
}

TEST(FormChecks, FindASecondDefaultOrCancelButton) {
  ControlLayout rows[] = {kOne, kTwo};
  for (ControlLayout& row : rows) row.isDefault = row.isCancel = true;
  EXPECT_THAT(FaultsOf(rows),
              ElementsAre("more than one default button", "more than one cancel button"));
}

TEST(FormChecks, FindControlsOutsideOfTheForm) {
  EXPECT_THAT(FaultsWithTwo([](ControlLayout& row) { row.place.left = 126; }),
              ElementsAre("cmdTwo does not lie inside its container"));
  EXPECT_THAT(FaultsWithTwo([](ControlLayout& row) { row.place.top = 78; }),
              ElementsAre("cmdTwo does not lie inside its container"));
}

TEST(FormChecks, FindControlsOverEachOther) {
  EXPECT_THAT(FaultsWithTwo([](ControlLayout& row) { row.place.top = 30; }),
              ElementsAre("cmdOne and cmdTwo lie over each other"));
}

TEST(FormChecks, LeaveAloneWhatIsHidden) {
  EXPECT_THAT(FaultsWithTwo([](ControlLayout& row) {
                row.place.top = 30;
                row.isVisible = false;
              }),
              IsEmpty());
}

TEST(FormChecks, FindTextWithoutRoom) {
  EXPECT_THAT(FaultsWithTwo([](ControlLayout& row) { row.text = "A long &caption"; }),
              ElementsAre("cmdTwo has no room for its text"));
  EXPECT_THAT(FaultsWithTwo([](ControlLayout& row) { row.place.height = 20; }),
              ElementsAre("cmdTwo has no room for its text"));
}

TEST(FormChecks, FindAnAccessKeyThatIsTaken) {
  EXPECT_THAT(FaultsWithTwo([](ControlLayout& row) { row.text = "Tw&o"; }),
              ElementsAre("cmdTwo has the access key of cmdOne"));
}

struct Labelled : Form {
  using Form::Form;
  Frame fraBox{*this, "fraBox"};
  Label lblText{*this, "lblText"};
};

std::vector<std::string> FaultsOfLabel(const Place& place) {
  MemoryNativeWindows windows;
  MemoryFormHost host{windows};
  const ControlLayout rows[] = {
      {.name = "fraBox", .place = {0, 0, 200, 60}, .text = "Box"},
      {.name = "lblText", .container = {"fraBox"}, .place = place, .text = "Two words"}};
  const FormLayout layout = {.name = "frmLabelled", .width = 200, .height = 60, .controls = rows};
  Labelled form(host, layout);
  return LayoutFaults(form);
}

TEST(FormChecks, LetALabelWrapWhereItIsHighEnough) {
  EXPECT_THAT(FaultsOfLabel({8, 16, 54, 13}), IsEmpty());
  EXPECT_THAT(FaultsOfLabel({8, 16, 40, 26}), IsEmpty());
  EXPECT_THAT(FaultsOfLabel({8, 16, 40, 25}), ElementsAre("lblText has no room for its text"));
  EXPECT_THAT(FaultsOfLabel({8, 16, 20, 26}), ElementsAre("lblText has no room for its text"));
}

TEST(FormChecks, KeepControlsOffTheBorderOfTheirFrame) {
  EXPECT_THAT(FaultsOfLabel({8, 13, 100, 13}),
              ElementsAre("lblText does not lie inside its container"));
}

}  // namespace form_checks_test
}  // namespace brimwork
