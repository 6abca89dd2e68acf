// What command bars of plain data do beyond what all do (tests/bench/contract).
#include "memory/memory_command_bars.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <vector>

#include "environment/run_time_error.h"

namespace brimwork {
namespace memory_command_bars_test {

using testing::ElementsAre;
using testing::IsEmpty;

std::shared_ptr<CommandBarControl> AddButton(CommandBarControls& controls,
                                             std::string_view caption) {
  auto button = controls.Add({});
  button->SetCaption(caption);
  return button;
}
std::shared_ptr<CommandBarControl> AddPopup(CommandBarControls& controls,
                                            std::string_view caption) {
  auto popup = controls.Add({.type = control_type::kPopup});
  popup->SetCaption(caption);
  return popup;
}

std::vector<std::string> Captions(CommandBarControls& controls) {
  std::vector<std::string> captions;
  for (int i = 1; i <= controls.Count(); ++i) captions.push_back(controls.Item(i)->Caption());
  return captions;
}

struct MemoryCommandBarsTest : testing::Test {
  MemoryCommandBarsTest() { bars.Add(menu); }

  MemoryClipboard clipboard;
  MemoryCommandBars bars{clipboard};
  std::shared_ptr<MemoryCommandBar> menu = std::make_shared<MemoryCommandBar>("Menu");
  std::shared_ptr<CommandBarControls> controls = menu->Controls();
};

int NumberOfErrorIn(const std::function<void()>& step) {
  try {
    step();
  } catch (const RunTimeError& error) {
    return error.Number();
  }
  return 0;
}

TEST_F(MemoryCommandBarsTest, OnlyButtonsAndPopupsAreAdded) {
  EXPECT_EQ(NumberOfErrorIn([&] { controls->Add({.type = 4}); }), 5);
  EXPECT_EQ(controls->Count(), 0);
}

TEST_F(MemoryCommandBarsTest, AFaceIsPastedFromTheClipboard) {
  const auto button = controls->Add({});
  EXPECT_EQ(NumberOfErrorIn([&] { button->PasteFace(); }), 461);
  clipboard.SetText("no picture");
  EXPECT_EQ(NumberOfErrorIn([&] { button->PasteFace(); }), 461);
  clipboard.SetData("faces/indent");
  button->PasteFace();
  clipboard.Clear();
  EXPECT_EQ(menu->Entries()->All()[0]->Face(), "faces/indent");
}

TEST_F(MemoryCommandBarsTest, ControlsOfOneIdAndTagAreTakenForOne) {
  const auto one = AddButton(*controls, "one");
  const auto other = AddButton(*controls, "other");
  int ofOne = 0;
  int ofOther = 0;
  auto first = bars.EventsOf(*one, [&](CommandBarControl&) { ++ofOne; });
  auto second = bars.EventsOf(*other, [&](CommandBarControl&) { ++ofOther; });
  one->Execute();
  EXPECT_EQ(ofOne, 1);
  EXPECT_EQ(ofOther, 1);

  other->SetTag("other");
  second = bars.EventsOf(*other, [&](CommandBarControl&) { ++ofOther; });
  one->Execute();
  EXPECT_EQ(ofOne, 2);
  EXPECT_EQ(ofOther, 1);
  other->Execute();
  EXPECT_EQ(ofOne, 2);
  EXPECT_EQ(ofOther, 2);
}

TEST_F(MemoryCommandBarsTest, AHandlerMayDeleteItsControlAndItsBinding) {
  auto button = AddButton(*controls, "Goodbye");
  std::unique_ptr<CommandBarEvents> events;
  int clicks = 0;
  events = bars.EventsOf(*button, [&](CommandBarControl& clicked) {
    ++clicks;
    clicked.Delete();
    events.reset();
    button.reset();
  });
  const auto held = button;
  held->Execute();
  EXPECT_EQ(clicks, 1);
  EXPECT_EQ(controls->Count(), 0);
}

TEST_F(MemoryCommandBarsTest, ADeletedControlRaisesOnUse) {
  const auto button = AddButton(*controls, "b");
  button->Delete();
  EXPECT_EQ(controls->Count(), 0);
  const std::vector<std::function<void()>> uses = {[&] { button->Type(); },
                                                   [&] { button->Id(); },
                                                   [&] { button->Index(); },
                                                   [&] { button->Caption(); },
                                                   [&] { button->SetCaption("x"); },
                                                   [&] { button->Tag(); },
                                                   [&] { button->SetTag("x"); },
                                                   [&] { button->BeginGroup(); },
                                                   [&] { button->SetBeginGroup(true); },
                                                   [&] { button->Execute(); },
                                                   [&] { button->Delete(); },
                                                   [&] { button->Style(); },
                                                   [&] { button->SetStyle(3); },
                                                   [&] { button->PasteFace(); },
                                                   [&] { button->Controls(); }};
  for (std::size_t i = 0; i < uses.size(); ++i) EXPECT_EQ(NumberOfErrorIn(uses[i]), 440) << i;
}

TEST_F(MemoryCommandBarsTest, AMenuShowsTheEntriesOfItsBarAndLeavesThemThere) {
  const auto bar = std::make_shared<MemoryCommandBar>("Add-Ins");
  bars.Add(bar);
  const auto popup = menu->Entries()->AddMenu("&Add-Ins", bar);
  const auto button = AddButton(*bar->Controls(), "b");
  EXPECT_THAT(Captions(*popup->Controls()), ElementsAre("b"));
  popup->Delete();
  EXPECT_EQ(button->Caption(), "b");
}

TEST_F(MemoryCommandBarsTest, AnOwnCommandIsAddedByItsNumberAndDoesTheSame) {
  int comments = 0;
  menu->Entries()->AddBuiltIn(control_id::kCommentBlock, "Comment Block", [&] { ++comments; });
  const auto popup = AddPopup(*controls, "p");
  const auto copy = popup->Controls()->Add({.id = control_id::kCommentBlock});
  EXPECT_EQ(copy->Caption(), "Comment Block");
  EXPECT_EQ(copy->Id(), control_id::kCommentBlock);
  copy->Execute();
  EXPECT_EQ(comments, 1);
  EXPECT_EQ(NumberOfErrorIn([&] { controls->Add({.id = 4711}); }), 5);
}

TEST_F(MemoryCommandBarsTest, AControlIsFoundByItsNumberOnAnyBarAndInPopups) {
  EXPECT_EQ(bars.FindControl(51), nullptr);
  const auto popup = menu->Entries()->AddBuiltInPopup("Toggle");
  const auto breakpoint = popup->Entries()->AddBuiltIn(51, "Breakpoint");
  EXPECT_EQ(bars.FindControl(51), breakpoint);
}

TEST_F(MemoryCommandBarsTest, ANewBarIsHiddenAndHasANameOfItsOwn) {
  const auto bar = bars.Add({.name = "Tools", .position = bar_position::kFloating});
  EXPECT_FALSE(bar->Visible());
  EXPECT_EQ(bar->Position(), bar_position::kFloating);
  EXPECT_EQ(bars.OfName("Tools"), bar);
  EXPECT_EQ(bars.OfName("tools"), nullptr);
  EXPECT_EQ(NumberOfErrorIn([&] { bars.Add({.name = "Tools"}); }), 5);
  EXPECT_EQ(NumberOfErrorIn([&] { bars.Add({.name = "Menu"}); }), 5);
}

TEST_F(MemoryCommandBarsTest, ABarRefusesAPlaceThatThereIsNot) {
  const auto bar = bars.Add({.name = "Tools"});
  EXPECT_EQ(NumberOfErrorIn([&] { bar->SetPosition(bar_position::kPopup); }), 5);
  EXPECT_EQ(NumberOfErrorIn([&] { bar->SetPosition(-1); }), 5);
  EXPECT_EQ(NumberOfErrorIn([&] { bar->SetRowIndex(-2); }), 5);
  bar->SetRowIndex(-1);
  EXPECT_EQ(bar->RowIndex(), -1);
}

TEST_F(MemoryCommandBarsTest, ADeletedBarIsGoneWithItsControlsAndRaisesOnUse) {
  const auto bar = bars.Add({.name = "Tools"});
  const auto button = AddButton(*bar->Controls(), "b");
  bar->Delete();
  EXPECT_EQ(bars.OfName("Tools"), nullptr);
  EXPECT_EQ(NumberOfErrorIn([&] { button->Caption(); }), 440);
  EXPECT_EQ(NumberOfErrorIn([&] { bar->Name(); }), 440);
  EXPECT_EQ(NumberOfErrorIn([&] { bar->SetVisible(true); }), 440);
  EXPECT_EQ(NumberOfErrorIn([&] { bar->Left(); }), 440);
  EXPECT_EQ(NumberOfErrorIn([&] { bar->Controls(); }), 440);
  EXPECT_EQ(NumberOfErrorIn([&] { bar->Delete(); }), 440);
}

TEST_F(MemoryCommandBarsTest, TheEnvironmentsOwnBarsStay) {
  EXPECT_EQ(NumberOfErrorIn([&] { menu->Delete(); }), 5);
  EXPECT_EQ(bars.OfName("Menu"), menu);
}

TEST_F(MemoryCommandBarsTest, TemporaryBarsAndControlsGoWithTheEnvironment) {
  bars.Add({.name = "Temporary"});
  bars.Add({.name = "Lasting", .isTemporary = false});
  const auto popup = menu->Entries()->AddBuiltInPopup("p");
  AddButton(*popup->Controls(), "temporary");
  controls->Add({.isTemporary = false})->SetCaption("lasting");
  AddButton(*controls, "temporary");
  bars.RemoveTemporary();
  EXPECT_EQ(bars.OfName("Temporary"), nullptr);
  EXPECT_NE(bars.OfName("Lasting"), nullptr);
  EXPECT_THAT(Captions(*controls), ElementsAre("p", "lasting"));
  EXPECT_THAT(Captions(*popup->Controls()), IsEmpty());
}

TEST_F(MemoryCommandBarsTest, AControlMayOutliveItsBars) {
  std::shared_ptr<CommandBarControl> button;
  {
    MemoryCommandBars others(clipboard);
    button = others.Add({.name = "Tools"})->Controls()->Add({});
  }
  EXPECT_EQ(NumberOfErrorIn([&] { button->Caption(); }), 440);
}

}  // namespace memory_command_bars_test
}  // namespace brimwork
