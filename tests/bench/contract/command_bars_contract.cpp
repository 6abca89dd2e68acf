// Command bars and the controls on them.
#include <gmock/gmock.h>

#include "bench/contract/contract_environment.h"

namespace brimwork::contract {

using testing::ElementsAre;

std::shared_ptr<CommandBarControl> AddButton(CommandBarControls& controls, std::string_view caption,
                                             int before = 0) {
  const auto button = controls.Add({.before = before});
  button->SetCaption(caption);
  return button;
}

std::vector<std::string> CaptionsOf(CommandBarControls& controls) {
  std::vector<std::string> captions;
  for (int i = 1; i <= controls.Count(); ++i) captions.push_back(controls.Item(i)->Caption());
  return captions;
}

/// A bar of the add-in's with nothing on it.
std::shared_ptr<CommandBar> AddTools(VBE& vbe) { return vbe.AddCommandBar({.name = "Tools"}); }

TEST_P(CommandBarsContract, ANewBarIsHiddenAtItsPosition) {
  const auto bar = Vbe().AddCommandBar({.name = "Tools", .position = bar_position::kFloating});
  EXPECT_EQ(bar->Name(), "Tools");
  EXPECT_FALSE(bar->Visible());
  EXPECT_EQ(bar->Position(), bar_position::kFloating);
  EXPECT_EQ(bar->Controls()->Count(), 0);
  ASSERT_NE(Vbe().CommandBarOfName("Tools"), nullptr);
  EXPECT_EQ(Vbe().CommandBars().back()->Name(), "Tools");
}

TEST_P(CommandBarsContract, ABarNeedsANameOfItsOwn) {
  AddTools(Vbe());
  const auto count = Vbe().CommandBars().size();
  EXPECT_NE(NumberOfErrorIn([&] { AddTools(Vbe()); }), 0);
  EXPECT_NE(NumberOfErrorIn([&] { Vbe().AddCommandBar({.name = "Edit"}); }), 0);
  EXPECT_EQ(Vbe().CommandBars().size(), count);
}

TEST_P(CommandBarsContract, ABarIsFoundByItsExactName) {
  EXPECT_EQ(Vbe().CommandBarOfName("Menu Bar")->Name(), "Menu Bar");
  EXPECT_EQ(Vbe().CommandBarOfName("menu bar"), nullptr);
  EXPECT_EQ(Vbe().CommandBarOfName("None"), nullptr);
}

TEST_P(CommandBarsContract, ABarKeepsWhatItIsGiven) {
  const auto bar = AddTools(Vbe());
  bar->SetVisible(true);
  bar->SetPosition(bar_position::kBottom);
  bar->SetRowIndex(2);
  bar->SetLeft(30);
  EXPECT_TRUE(bar->Visible());
  EXPECT_EQ(bar->Position(), bar_position::kBottom);
  EXPECT_EQ(bar->RowIndex(), 2);
  EXPECT_EQ(bar->Left(), 30);
  bar->SetPosition(bar_position::kFloating);
  bar->SetTop(40);
  EXPECT_EQ(bar->Top(), 40);
}

TEST_P(CommandBarsContract, ABarRefusesAPositionThatThereIsNot) {
  const auto bar = AddTools(Vbe());
  EXPECT_NE(NumberOfErrorIn([&] { bar->SetPosition(-1); }), 0);
  EXPECT_NE(NumberOfErrorIn([&] { bar->SetPosition(7); }), 0);
}

TEST_P(CommandBarsContract, ADeletedBarIsGoneWithItsControlsAndRaisesOnUse) {
  const auto bar = AddTools(Vbe());
  const auto button = AddButton(*bar->Controls(), "b");
  bar->Delete();
  EXPECT_EQ(Vbe().CommandBarOfName("Tools"), nullptr);
  EXPECT_NE(NumberOfErrorIn([&] { bar->Name(); }), 0);
  EXPECT_NE(NumberOfErrorIn([&] { bar->SetVisible(true); }), 0);
  EXPECT_NE(NumberOfErrorIn([&] { bar->Controls(); }), 0);
  EXPECT_NE(NumberOfErrorIn([&] { bar->Delete(); }), 0);
  EXPECT_NE(NumberOfErrorIn([&] { button->Caption(); }), 0);
}

TEST_P(CommandBarsContract, TheEnvironmentsOwnBarsStay) {
  for (const auto* name : {"Menu Bar", "Edit", "Code Window"}) {
    EXPECT_NE(NumberOfErrorIn([&] { Vbe().CommandBarOfName(name)->Delete(); }), 0) << name;
    EXPECT_NE(Vbe().CommandBarOfName(name), nullptr) << name;
  }
}

TEST_P(CommandBarsContract, ControlsComeAtTheEndOrInFrontOfAPlace) {
  const auto controls = AddTools(Vbe())->Controls();
  AddButton(*controls, "b");
  AddButton(*controls, "c");
  const auto first = AddButton(*controls, "a", 1);
  const auto last = AddButton(*controls, "d", 4);
  EXPECT_THAT(CaptionsOf(*controls), ElementsAre("a", "b", "c", "d"));
  EXPECT_EQ(first->Index(), 1);
  EXPECT_EQ(last->Index(), 4);
  EXPECT_NE(NumberOfErrorIn([&] { controls->Add({.before = 6}); }), 0);
  EXPECT_NE(NumberOfErrorIn([&] { controls->Add({.before = -1}); }), 0);
  EXPECT_EQ(controls->Count(), 4);
}

TEST_P(CommandBarsContract, ControlsAreFoundByNumberAndByCaptionWithoutAccessKeyAndCase) {
  const auto controls = AddTools(Vbe())->Controls();
  AddButton(*controls, "Cu&t");
  AddButton(*controls, "To&ggle");
  EXPECT_EQ(controls->Item(1)->Caption(), "Cu&t");
  EXPECT_EQ(controls->Item("Toggle")->Index(), 2);
  EXPECT_EQ(controls->Item("toggl&e")->Index(), 2);
  EXPECT_NE(NumberOfErrorIn([&] { controls->Item("Tog"); }), 0);
  EXPECT_NE(NumberOfErrorIn([&] { controls->Item(0); }), 0);
  EXPECT_NE(NumberOfErrorIn([&] { controls->Item(3); }), 0);
}

TEST_P(CommandBarsContract, ANewButtonIsCustomAndPlain) {
  const auto button = AddTools(Vbe())->Controls()->Add({});
  EXPECT_EQ(button->Type(), control_type::kButton);
  EXPECT_EQ(button->Id(), control_id::kCustom);
  EXPECT_EQ(button->Tag(), "");
  EXPECT_FALSE(button->BeginGroup());
  EXPECT_EQ(button->Style(), button_style::kAutomatic);
}

TEST_P(CommandBarsContract, AButtonKeepsWhatItIsGiven) {
  const auto controls = AddTools(Vbe())->Controls();
  const auto button = controls->Add({});
  button->SetCaption("&Größe");
  button->SetTag("mine");
  button->SetBeginGroup(true);
  button->SetStyle(button_style::kIconAndCaption);
  const auto again = controls->Item(1);
  EXPECT_EQ(again->Caption(), "&Größe");
  EXPECT_EQ(again->Tag(), "mine");
  EXPECT_TRUE(again->BeginGroup());
  EXPECT_EQ(again->Style(), button_style::kIconAndCaption);
}

TEST_P(CommandBarsContract, APopupHasControlsOfItsOwn) {
  const auto controls = AddTools(Vbe())->Controls();
  const auto popup = controls->Add({.type = control_type::kPopup});
  popup->SetCaption("Mo&re");
  AddButton(*popup->Controls(), "one");
  AddButton(*popup->Controls(), "two");
  EXPECT_EQ(popup->Type(), control_type::kPopup);
  EXPECT_EQ(controls->Count(), 1);
  EXPECT_THAT(CaptionsOf(*controls->Item("More")->Controls()), ElementsAre("one", "two"));
}

TEST_P(CommandBarsContract, AButtonHasNoControlsAndAPopupNoFace) {
  const auto controls = AddTools(Vbe())->Controls();
  const auto button = controls->Add({});
  const auto popup = controls->Add({.type = control_type::kPopup});
  EXPECT_EQ(popup->Controls()->Count(), 0);
  EXPECT_EQ(NumberOfErrorIn([&] { button->Controls(); }), 438);
  EXPECT_EQ(NumberOfErrorIn([&] { popup->Style(); }), 438);
  EXPECT_EQ(NumberOfErrorIn([&] { popup->SetStyle(3); }), 438);
  EXPECT_EQ(NumberOfErrorIn([&] { popup->PasteFace(); }), 438);
}

TEST_P(CommandBarsContract, ADeletedControlIsGoneAndRaisesOnUse) {
  const auto controls = AddTools(Vbe())->Controls();
  const auto button = AddButton(*controls, "b");
  AddButton(*controls, "c");
  button->Delete();
  EXPECT_THAT(CaptionsOf(*controls), ElementsAre("c"));
  const std::vector<std::function<void()>> uses = {
      [&] { button->Type(); },          [&] { button->Id(); },
      [&] { button->Index(); },         [&] { button->Caption(); },
      [&] { button->SetCaption("x"); }, [&] { button->Tag(); },
      [&] { button->SetTag("x"); },     [&] { button->BeginGroup(); },
      [&] { button->Execute(); },       [&] { button->Delete(); },
      [&] { button->Style(); },         [&] { button->PasteFace(); }};
  for (std::size_t i = 0; i < uses.size(); ++i) EXPECT_NE(NumberOfErrorIn(uses[i]), 0) << i;
}

TEST_P(CommandBarsContract, TheControlsOfAPopupGoWithIt) {
  const auto controls = AddTools(Vbe())->Controls();
  const auto popup = controls->Add({.type = control_type::kPopup});
  const auto entries = popup->Controls();
  const auto button = AddButton(*entries, "b");
  popup->Delete();
  EXPECT_NE(NumberOfErrorIn([&] { button->Caption(); }), 0);
  EXPECT_NE(NumberOfErrorIn([&] { entries->Add({}); }), 0);
}

TEST_P(CommandBarsContract, TheEnvironmentsCommandsAreFoundByTheirNumbers) {
  const auto comment = Vbe().FindControl(control_id::kCommentBlock);
  ASSERT_NE(comment, nullptr);
  EXPECT_EQ(comment->Id(), control_id::kCommentBlock);
  EXPECT_EQ(Vbe().FindControl(control_id::kUncommentBlock)->Id(), control_id::kUncommentBlock);
  EXPECT_EQ(Vbe().FindControl(4711), nullptr);
}

TEST_P(CommandBarsContract, ACommandOfTheEnvironmentIsAddedByItsNumber) {
  const auto controls = AddTools(Vbe())->Controls();
  const auto copy = controls->Add({.id = control_id::kCommentBlock});
  EXPECT_EQ(copy->Id(), control_id::kCommentBlock);
  EXPECT_EQ(copy->Caption(), Vbe().FindControl(control_id::kCommentBlock)->Caption());
  EXPECT_NE(NumberOfErrorIn([&] { controls->Add({.id = 4711}); }), 0);
}

TEST_P(CommandBarsContract, TheMenusAreBarsToo) {
  const auto menu = Vbe().CommandBarOfName("Add-Ins");
  ASSERT_NE(menu, nullptr);
  const auto popup = Vbe().CommandBarOfName("Menu Bar")->Controls()->Item("Add-Ins");
  const auto button = AddButton(*menu->Controls(), "Mine");
  EXPECT_EQ(popup->Controls()->Item("Mine")->Index(), button->Index());
}

}  // namespace brimwork::contract
