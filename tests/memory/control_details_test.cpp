// What controls and bars carry beside caption and place, and how they are found, copied and moved.
#include "memory/control_details.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "environment/run_time_error.h"
#include "memory/memory_command_bars.h"

namespace brimwork {
namespace control_details_test {

using testing::ElementsAre;

struct ControlDetailsTest : testing::Test {
  ControlDetailsTest() { bars.Add(menu); }

  std::shared_ptr<MemoryCommandBarControl> AddButton(MemoryCommandBarControls& entries,
                                                     std::string_view caption) {
    entries.Add({})->SetCaption(caption);
    return entries.All().back();
  }
  std::vector<std::string> Captions(const MemoryCommandBarControls& entries) {
    std::vector<std::string> captions;
    for (const auto& control : entries.All()) captions.push_back(control->LastCaption());
    return captions;
  }
  int NumberOfErrorIn(const std::function<void()>& step) {
    try {
      step();
    } catch (const RunTimeError& error) {
      return error.Number();
    }
    return 0;
  }
  /// Whether the step is noticed as a change.
  bool Changes(const std::function<void()>& step) {
    const auto before = bars.Revision();
    step();
    return bars.Revision() > before;
  }
  static ControlDetails Disabled() {
    ControlDetails details;
    details.enabled = false;
    return details;
  }

  MemoryClipboard clipboard;
  MemoryCommandBars bars{clipboard};
  std::shared_ptr<MemoryCommandBar> menu = std::make_shared<MemoryCommandBar>("Menu");
  MemoryCommandBarControls& controls = *menu->Entries();
};

TEST_F(ControlDetailsTest, ANewControlIsEnabledAndVisible) {
  const auto button = AddButton(controls, "b");
  EXPECT_EQ(button->Details(), ControlDetails{});
  EXPECT_TRUE(button->Details().enabled);
  EXPECT_TRUE(button->Details().visible);
}

TEST_F(ControlDetailsTest, ADisabledControlCannotBeExecuted) {
  const auto button = AddButton(controls, "b");
  int clicks = 0;
  const auto events = bars.EventsOf(*button, [&](CommandBarControl&) { ++clicks; });
  button->SetDetails(Disabled());
  EXPECT_EQ(NumberOfErrorIn([&] { button->Execute(); }), error_number::kUnspecified);
  button->SetDetails({});
  button->Execute();
  EXPECT_EQ(clicks, 1);
}

TEST_F(ControlDetailsTest, AFaceByNumberAndAPastedOneReplaceEachOther) {
  const auto button = AddButton(controls, "b");
  clipboard.SetData("faces/indent");
  button->PasteFace();
  ControlDetails details = button->Details();
  details.faceId = 59;
  button->SetDetails(details);
  EXPECT_EQ(button->Face(), "");
  button->PasteFace();
  EXPECT_EQ(button->Details().faceId, 0);
  EXPECT_EQ(button->Face(), "faces/indent");
}

TEST_F(ControlDetailsTest, AnOwnCommandHasTheFaceOfItsNumber) {
  const auto copy = controls.AddBuiltIn(19, "Copy");
  EXPECT_EQ(copy->Details().faceId, 19);
  clipboard.SetData("faces/indent");
  copy->PasteFace();
  copy->ResetFace();
  EXPECT_EQ(copy->Details().faceId, 19);
  EXPECT_EQ(copy->Face(), "");
}

TEST_F(ControlDetailsTest, ADeletedControlHasNone) {
  const auto button = AddButton(controls, "b");
  button->Delete();
  EXPECT_EQ(NumberOfErrorIn([&] { button->Details(); }), 440);
  EXPECT_EQ(NumberOfErrorIn([&] { button->SetDetails({}); }), 440);
  EXPECT_EQ(NumberOfErrorIn([&] { button->ResetFace(); }), 440);
}

TEST_F(ControlDetailsTest, EveryChangeIsNoticedAndNothingElse) {
  const auto button = AddButton(controls, "b");
  EXPECT_TRUE(Changes([&] { button->SetCaption("c"); }));
  EXPECT_FALSE(Changes([&] { button->SetCaption("c"); }));
  EXPECT_TRUE(Changes([&] { button->SetTag("t"); }));
  EXPECT_TRUE(Changes([&] { button->SetBeginGroup(true); }));
  EXPECT_TRUE(Changes([&] { button->SetStyle(3); }));
  EXPECT_TRUE(Changes([&] { button->SetDetails(Disabled()); }));
  EXPECT_FALSE(Changes([&] { button->SetDetails(Disabled()); }));
  EXPECT_TRUE(Changes([&] { menu->SetVisible(false); }));
  EXPECT_FALSE(Changes([&] { menu->SetVisible(false); }));
  EXPECT_TRUE(Changes([&] { menu->SetPosition(2); }));
  EXPECT_TRUE(Changes([&] { menu->SetRowIndex(2); }));
  EXPECT_TRUE(Changes([&] { menu->SetLeft(2); }));
  EXPECT_TRUE(Changes([&] { menu->SetTop(2); }));
  EXPECT_TRUE(Changes([&] { button->Delete(); }));
  EXPECT_TRUE(Changes([&] { bars.Add({.name = "Mine"}); }));
  EXPECT_TRUE(Changes([&] { bars.OfName("Mine")->Delete(); }));
  EXPECT_FALSE(Changes([&] { bars.OfName("Menu")->Name(); }));
}

TEST_F(ControlDetailsTest, AChangeInAPopupOfAPopupIsNoticed) {
  const auto inner = controls.AddBuiltInPopup("p")->Entries()->AddBuiltInPopup("q");
  const auto button = AddButton(*inner->Entries(), "b");
  EXPECT_TRUE(Changes([&] { button->SetCaption("c"); }));
}

TEST_F(ControlDetailsTest, ACommandsActionIsThatOfAllItsControls) {
  int runs = 0;
  const auto first = controls.AddBuiltIn(21, "Cut");
  bars.SetAction(21, [&] { ++runs; });
  controls.Add({.id = 21})->Execute();
  first->Execute();
  EXPECT_EQ(runs, 2);
  first->action = [&] { runs = 10; };
  first->Execute();
  EXPECT_EQ(runs, 10);
}

TEST_F(ControlDetailsTest, ACommandIsEnabledAndTickedOnAllItsControls) {
  controls.AddBuiltIn(21, "Cut");
  controls.AddBuiltInPopup("p")->Entries()->AddBuiltIn(21, "Cut");
  bars.SetEnabled(21, false);
  bars.SetState(21, button_state::kDown);
  ASSERT_EQ(bars.ControlsOf(21).size(), 2u);
  for (const auto& control : bars.ControlsOf(21)) {
    EXPECT_FALSE(control->Details().enabled);
    EXPECT_EQ(control->Details().state, button_state::kDown);
  }
}

TEST_F(ControlDetailsTest, CommandsWithoutAnActionCanBeDisabled) {
  const auto cut = controls.AddBuiltIn(21, "Cut");
  const auto copy = controls.AddBuiltIn(19, "Copy");
  const auto custom = AddButton(controls, "mine");
  const auto popup = controls.AddBuiltInPopup("p");
  bars.SetAction(21, [] {});
  bars.DisableIdleCommands();
  EXPECT_TRUE(cut->Details().enabled);
  EXPECT_FALSE(copy->Details().enabled);
  EXPECT_TRUE(custom->Details().enabled);
  EXPECT_TRUE(popup->Details().enabled);
}

TEST_F(ControlDetailsTest, AHandlerMayKeepTheCommandFromRunning) {
  int runs = 0;
  const auto cut = controls.AddBuiltIn(21, "Cut", [&] { ++runs; });
  auto events = bars.EventsOf(
      *cut, [](CommandBarControl&, ClickAnswer& answer) { answer.cancelsDefault = true; });
  cut->Execute();
  EXPECT_EQ(runs, 0);
  events.reset();
  cut->Execute();
  EXPECT_EQ(runs, 1);
}

TEST_F(ControlDetailsTest, TheClickedControlIsKnownWhileItIsHandled) {
  const auto button = AddButton(controls, "b");
  std::shared_ptr<MemoryCommandBarControl> seen;
  const auto events =
      bars.EventsOf(*button, [&](CommandBarControl&) { seen = bars.ActionControl(); });
  button->Execute();
  EXPECT_EQ(seen, button);
  EXPECT_EQ(bars.ActionControl(), nullptr);
}

TEST_F(ControlDetailsTest, AControlIsFoundByAllThatIsAskedFor) {
  const auto button = AddButton(controls, "b");
  button->SetTag("mine");
  const auto popup = controls.AddBuiltInPopup("p");
  const auto inner = AddButton(*popup->Entries(), "i");
  inner->SetTag("inner");
  EXPECT_EQ(bars.Find({.tag = "mine"}), button);
  EXPECT_EQ(bars.Find({.tag = "inner"}), inner);
  EXPECT_EQ(bars.Find({.tag = "inner", .isInPopups = false}), nullptr);
  EXPECT_EQ(bars.Find({.type = control_type::kPopup}), popup);
  EXPECT_EQ(bars.Find({.type = control_type::kPopup, .tag = "mine"}), nullptr);
  EXPECT_EQ(bars.Find({.tag = "mine", .isVisible = true}), button);
  ControlDetails hidden;
  hidden.visible = false;
  button->SetDetails(hidden);
  EXPECT_EQ(bars.Find({.tag = "mine", .isVisible = true}), nullptr);
  menu->SetVisible(false);
  EXPECT_EQ(bars.Find({.tag = "inner", .isVisible = true}), nullptr);
}

TEST_F(ControlDetailsTest, ACopyIsAsItsOriginalWithEntriesOfItsOwn) {
  const auto popup = controls.AddBuiltInPopup("p");
  const auto inner = AddButton(*popup->Entries(), "i");
  inner->SetDetails(Disabled());
  const auto other = bars.Add({.name = "Other"});
  const auto copy = other->Entries()->AddCopyOf(*popup);
  EXPECT_EQ(copy->Caption(), "p");
  ASSERT_EQ(copy->Entries()->Count(), 1);
  EXPECT_FALSE(copy->Entries()->All()[0]->Details().enabled);
  copy->Entries()->All()[0]->Delete();
  EXPECT_EQ(popup->Entries()->Count(), 1);
}

TEST_F(ControlDetailsTest, AControlMovesToAnotherPlaceOrBar) {
  const auto a = AddButton(controls, "a");
  const auto b = AddButton(controls, "b");
  const auto c = AddButton(controls, "c");
  controls.TakeOver(c, 1);
  EXPECT_THAT(Captions(controls), ElementsAre("c", "a", "b"));
  controls.TakeOver(c, 3);
  EXPECT_THAT(Captions(controls), ElementsAre("a", "c", "b"));
  controls.TakeOver(a);
  EXPECT_THAT(Captions(controls), ElementsAre("c", "b", "a"));
  const auto other = bars.Add({.name = "Other"});
  other->Entries()->TakeOver(b);
  EXPECT_THAT(Captions(controls), ElementsAre("c", "a"));
  EXPECT_EQ(b->Index(), 1);
  EXPECT_EQ(NumberOfErrorIn([&] { controls.TakeOver(b, 9); }), 5);
  b->Delete();
  EXPECT_EQ(NumberOfErrorIn([&] { controls.TakeOver(b); }), 440);
}

TEST_F(ControlDetailsTest, APopupDoesNotMoveIntoItself) {
  const auto popup = controls.AddBuiltInPopup("p");
  const auto inner = popup->Entries()->AddBuiltInPopup("q");
  EXPECT_EQ(NumberOfErrorIn([&] { inner->Entries()->TakeOver(popup); }), 5);
  EXPECT_EQ(NumberOfErrorIn([&] { popup->Entries()->TakeOver(popup); }), 5);
  EXPECT_THAT(Captions(controls), ElementsAre("p"));
}

TEST_F(ControlDetailsTest, APopupOpensABarOfItsCaption) {
  const auto popup = controls.AddBuiltInPopup("&Tools");
  EXPECT_EQ(popup->Menu()->Name(), "Tools");
  EXPECT_EQ(popup->Menu()->Kind(), bar_type::kPopup);
  EXPECT_EQ(popup->Menu()->Index(), 0);
  EXPECT_EQ(popup->Menu()->Controls(), popup->Controls());
  const auto bar = bars.Add({.name = "File"});
  EXPECT_EQ(controls.AddMenu("&File", bar)->Menu(), bar);
  const auto opened = popup->Menu();
  popup->Delete();
  EXPECT_EQ(NumberOfErrorIn([&] { opened->Name(); }), 440);
}

struct BarDetailsTest : ControlDetailsTest {
  std::shared_ptr<MemoryCommandBar> bar = bars.Add({.name = "Mine"});
};

TEST_F(BarDetailsTest, ADisabledBarIsNotShown) {
  bar->SetVisible(true);
  BarDetails details;
  details.enabled = false;
  bar->SetDetails(details);
  EXPECT_FALSE(bar->Visible());
  EXPECT_EQ(NumberOfErrorIn([&] { bar->SetVisible(true); }), error_number::kUnspecified);
  bar->SetDetails({});
  EXPECT_TRUE(bar->Visible());
}

TEST_F(BarDetailsTest, ABarWithoutANameGetsOneThatIsFree) {
  bars.Add({.name = "Custom 2"});
  EXPECT_EQ(bars.Add(NewCommandBar{})->Name(), "Custom 1");
  EXPECT_EQ(bars.Add(NewCommandBar{})->Name(), "Custom 3");
}

TEST_F(BarDetailsTest, OnlyABarOfTheUsersIsRenamed) {
  bar->SetName("Yours");
  EXPECT_EQ(bars.OfName("Yours"), bar);
  bar->SetName("Yours");
  EXPECT_EQ(NumberOfErrorIn([&] { bar->SetName("Menu"); }), 5);
  EXPECT_EQ(NumberOfErrorIn([&] { menu->SetName("Mine"); }), 5);
}

TEST_F(BarDetailsTest, BarsAreNumberedInTheirOrder) {
  EXPECT_EQ(menu->Index(), 1);
  EXPECT_EQ(bar->Index(), 2);
  EXPECT_EQ(bar->Kind(), bar_type::kToolbar);
  EXPECT_EQ(bars.Add({.name = "p", .position = bar_position::kPopup})->Kind(), bar_type::kPopup);
}

TEST_F(BarDetailsTest, ABarMayOutliveTheOthers) {
  std::shared_ptr<MemoryCommandBar> kept;
  {
    MemoryCommandBars others(clipboard);
    kept = others.Add({.name = "Kept"});
  }
  EXPECT_EQ(NumberOfErrorIn([&] { kept->SetVisible(true); }), 440);
}

}  // namespace control_details_test
}  // namespace brimwork
