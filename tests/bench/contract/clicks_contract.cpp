// Clicks on controls, and the handlers that they reach.
#include <gmock/gmock.h>

#include "bench/contract/contract_environment.h"

namespace brimwork::contract {

using testing::ElementsAre;
using testing::IsEmpty;

/// A bar with one button for each tag, which is its caption, too.
std::shared_ptr<CommandBarControls> ButtonsTagged(VBE& vbe, const std::vector<std::string>& tags) {
  const auto controls = vbe.AddCommandBar({.name = "Tools"})->Controls();
  for (const std::string& tag : tags) {
    const auto button = controls->Add({});
    button->SetCaption(tag);
    button->SetTag(tag);
  }
  return controls;
}

TEST_P(ClicksContract, AClickReachesTheHandlerWithTheClickedControl) {
  const auto controls = ButtonsTagged(Vbe(), {"a"});
  std::vector<std::string> clicked;
  const auto binding = Vbe().CommandBarEventsOf(
      controls->Item(1), [&](CommandBarControl& control) { clicked.push_back(control.Caption()); });
  controls->Item(1)->SetCaption("new");
  controls->Item(1)->Execute();
  EXPECT_THAT(clicked, ElementsAre("new"));
}

TEST_P(ClicksContract, ButtonsAreToldApartByTheirTags) {
  const auto controls = ButtonsTagged(Vbe(), {"a", "b"});
  std::vector<std::string> reached;
  const auto a = Vbe().CommandBarEventsOf(controls->Item(1),
                                          [&](CommandBarControl&) { reached.push_back("a"); });
  const auto b = Vbe().CommandBarEventsOf(controls->Item(2),
                                          [&](CommandBarControl&) { reached.push_back("b"); });
  controls->Item(2)->Execute();
  controls->Item(1)->Execute();
  EXPECT_THAT(reached, ElementsAre("b", "a"));
}

TEST_P(ClicksContract, ControlsOfOneIdAndTagAreTakenForOne) {
  const auto controls = ButtonsTagged(Vbe(), {"same", "same"});
  std::vector<std::string> reached;
  const auto first = Vbe().CommandBarEventsOf(
      controls->Item(1), [&](CommandBarControl&) { reached.push_back("first"); });
  const auto second = Vbe().CommandBarEventsOf(
      controls->Item(2), [&](CommandBarControl&) { reached.push_back("second"); });
  controls->Item(1)->Execute();
  EXPECT_THAT(reached, testing::UnorderedElementsAre("first", "second"));
}

TEST_P(ClicksContract, ClicksEndWithTheBinding) {
  const auto controls = ButtonsTagged(Vbe(), {"a"});
  int clicks = 0;
  auto binding = Vbe().CommandBarEventsOf(controls->Item(1), [&](CommandBarControl&) { ++clicks; });
  controls->Item(1)->Execute();
  binding.reset();
  controls->Item(1)->Execute();
  EXPECT_EQ(clicks, 1);
}

TEST_P(ClicksContract, AHandlerMayEndItsOwnBinding) {
  const auto controls = ButtonsTagged(Vbe(), {"a"});
  std::vector<std::string> clicked;
  std::unique_ptr<CommandBarEvents> binding;
  binding = Vbe().CommandBarEventsOf(controls->Item(1), [&](CommandBarControl& control) {
    binding.reset();
    clicked.push_back(control.Caption());
  });
  controls->Item(1)->Execute();
  controls->Item(1)->Execute();
  EXPECT_THAT(clicked, ElementsAre("a"));
}

TEST_P(ClicksContract, AHandlerMayEndTheBindingOfAnother) {
  const auto controls = ButtonsTagged(Vbe(), {"a"});
  std::unique_ptr<CommandBarEvents> second;
  int clicks = 0;
  const auto first =
      Vbe().CommandBarEventsOf(controls->Item(1), [&](CommandBarControl&) { second.reset(); });
  second = Vbe().CommandBarEventsOf(controls->Item(1), [&](CommandBarControl&) { ++clicks; });
  controls->Item(1)->Execute();
  EXPECT_EQ(clicks, 0);
}

TEST_P(ClicksContract, AHandlerMayDeleteItsControl) {
  const auto controls = ButtonsTagged(Vbe(), {"a", "b"});
  const auto binding = Vbe().CommandBarEventsOf(
      controls->Item(1), [&](CommandBarControl& control) { control.Delete(); });
  controls->Item(1)->Execute();
  EXPECT_EQ(controls->Count(), 1);
}

TEST_P(ClicksContract, ABindingMayOutliveItsControl) {
  const auto controls = ButtonsTagged(Vbe(), {"a", "b"});
  std::vector<std::string> clicked;
  auto binding = Vbe().CommandBarEventsOf(
      controls->Item(1), [&](CommandBarControl& control) { clicked.push_back(control.Caption()); });
  controls->Item(1)->Delete();
  controls->Item(1)->Execute();
  binding.reset();
  EXPECT_THAT(clicked, IsEmpty());
}

}  // namespace brimwork::contract
