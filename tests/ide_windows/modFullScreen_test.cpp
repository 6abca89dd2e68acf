#include "ide_windows/modFullScreen.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "memory/memory_environment.h"
#include "memory/usual_windows.h"
#include "settings/settings.h"
#include "support/shown_windows.h"

namespace brimwork {
namespace modFullScreen_test {

using testing::ElementsAre;

constexpr int kToolWindow = 15;

struct FullScreen : testing::Test {
  void Toggle() { ToggleFullScreen(environment); }

  std::string Stored(std::string_view key) { return GetSetting(environment, key, "nothing"); }

  std::shared_ptr<MemoryWindow> AddWindow(std::string caption, int type = kToolWindow) {
    return memory.vbe.windows.Add(std::move(caption), type);
  }

  std::shared_ptr<MemoryCommandBar> AddBar(std::string name) {
    auto bar = std::make_shared<MemoryCommandBar>(std::move(name));
    memory.vbe.AddCommandBar(bar);
    return bar;
  }

  std::vector<std::string> Windows() { return ShownWindows(memory.vbe); }
  std::vector<std::string> Bars() { return ShownBars(memory.vbe); }

  MemoryEnvironment memory;
  UsualWindows usual = AddUsualWindows(memory.vbe);
  Environment environment = memory.Parts();
};

TEST_F(FullScreen, HidesToolWindowsAndCommandBars) {
  Toggle();
  EXPECT_THAT(Windows(), ElementsAre("Visual Basic"));
  EXPECT_THAT(Bars(), ElementsAre("Menu Bar"));
}

TEST_F(FullScreen, RemembersWhatItHidInTheOrderOfTheCollections) {
  Toggle();
  EXPECT_EQ(Stored("AreWindowsToggled"), "True");
  EXPECT_EQ(Stored("ToggledWindows"),
            "Project - Project1,6*Properties - Module1,7*Toolbox,10*Immediate,5*");
  EXPECT_EQ(Stored("ToggledMenus"), "Standard*Edit*");
}

TEST_F(FullScreen, UsedTwiceShowsExactlyWhatWasThereBefore) {
  const auto windows = Windows();
  const auto bars = Bars();
  Toggle();
  Toggle();
  EXPECT_EQ(Windows(), windows);
  EXPECT_EQ(Bars(), bars);
  EXPECT_FALSE(usual.locals->Visible());
  EXPECT_FALSE(usual.bars.debug->Visible());
}

TEST_F(FullScreen, ForgetsWhatItHasShownAgain) {
  Toggle();
  Toggle();
  EXPECT_EQ(Stored("AreWindowsToggled"), "False");
  EXPECT_EQ(Stored("ToggledWindows"), "");
  EXPECT_EQ(Stored("ToggledMenus"), "");
}

TEST_F(FullScreen, UsedOverAndOverGoesToAndFro) {
  const auto windows = Windows();
  for (int round = 0; round < 3; ++round) {
    Toggle();
    EXPECT_THAT(Windows(), ElementsAre("Visual Basic")) << "round " << round;
    Toggle();
    EXPECT_EQ(Windows(), windows) << "round " << round;
  }
}

TEST_F(FullScreen, TheEarlierLayoutComesBackAfterARestart) {
  const auto windows = Windows();
  const auto bars = Bars();
  Toggle();

  MemoryEnvironment restarted;
  const UsualWindows again = AddUsualWindows(restarted.vbe);
  for (const auto& window : {again.project, again.properties, again.toolbox, again.immediate})
    window->SetVisible(false);
  for (const auto& bar : {again.bars.standard, again.bars.edit}) bar->SetVisible(false);
  Environment fresh = restarted.Parts({.settingsArea = &memory.settingsArea});
  ToggleFullScreen(fresh);
  EXPECT_EQ(ShownWindows(restarted.vbe), windows);
  EXPECT_EQ(ShownBars(restarted.vbe), bars);
}

TEST_F(FullScreen, CodeWindowsAndDesignersStayVisible) {
  memory.Open("Module1", ModuleText::FromText("x = 1\r\n"));
  AddWindow("Form1 (Form)", window_type::kDesigner);
  Toggle();
  EXPECT_THAT(Windows(), ElementsAre("Visual Basic", "Module1 (Code)", "Form1 (Form)"));
}

TEST_F(FullScreen, WindowsWithTheMainWindowsTypeStayVisibleWhateverTheMainWindowIs) {
  AddWindow("Second main window", window_type::kMainWindow);
  Toggle();
  EXPECT_THAT(Windows(), ElementsAre("Visual Basic", "Second main window"));
}

/// An environment whose main window bears the type of a tool window.
class OddMainWindowVbe : public MemoryVbe {
 public:
  using MemoryVbe::MemoryVbe;
  std::shared_ptr<Window> MainWindow() override { return oddMainWindow; }
  std::shared_ptr<MemoryWindow> oddMainWindow = windows.Add("Odd", kToolWindow);
};

TEST_F(FullScreen, TheMainWindowStaysVisibleWhateverItsTypeIs) {
  OddMainWindowVbe vbe(memory.keyboard, memory.clipboard);
  vbe.windows.Add("Tool", kToolWindow);
  Environment odd = memory.Parts({.vbe = &vbe});
  ToggleFullScreen(odd);
  EXPECT_THAT(ShownWindows(vbe), ElementsAre("Visual Basic", "Odd"));
  EXPECT_EQ(Stored("ToggledWindows"), "Tool,15*");
}

TEST_F(FullScreen, AnEnvironmentThatGivesNoMainWindowLosesItsToolWindowsOnly) {
  OddMainWindowVbe vbe(memory.keyboard, memory.clipboard);
  vbe.oddMainWindow = nullptr;
  Environment odd = memory.Parts({.vbe = &vbe});
  ToggleFullScreen(odd);
  EXPECT_THAT(ShownWindows(vbe), ElementsAre("Visual Basic"));
}

TEST_F(FullScreen, OnlyTheBarThatIsNamedExactlySoIsTheMenuBar) {
  AddBar("menu bar");
  Toggle();
  EXPECT_THAT(Bars(), ElementsAre("Menu Bar"));
  EXPECT_EQ(Stored("ToggledMenus"), "Standard*Edit*menu bar*");
}

TEST_F(FullScreen, TheProjectWindowIsFoundByItsTypeUnderANewCaption) {
  Toggle();
  usual.project->SetCaption("Stock - Warehouse");
  Toggle();
  EXPECT_TRUE(usual.project->Visible());
}

TEST_F(FullScreen, ThePropertiesWindowIsFoundByItsTypeUnderANewCaption) {
  Toggle();
  usual.properties->SetCaption("Eigenschaften - Form1");
  Toggle();
  EXPECT_TRUE(usual.properties->Visible());
}

TEST_F(FullScreen, AnotherWindowWithANewCaptionIsNotFoundAndItsEntryIsDropped) {
  Toggle();
  usual.immediate->SetCaption("Immediate 2");
  Toggle();
  EXPECT_FALSE(usual.immediate->Visible());
  EXPECT_EQ(Stored("ToggledWindows"), "");
}

TEST_F(FullScreen, ACaptionThatBeginsWithProjectBringsBackEveryWindowOfItsType) {
  const auto hiddenBefore = AddWindow("Notes");
  hiddenBefore->SetVisible(false);
  const auto planner = AddWindow("Project planner");
  Toggle();
  planner->SetCaption("Planner");
  Toggle();
  EXPECT_TRUE(planner->Visible());
  EXPECT_TRUE(hiddenBefore->Visible());
}

TEST_F(FullScreen, WordsThatOnlyLookLikeProjectDoNotCount) {
  for (const char* caption : {"project x", "Projec", "My Project", "Propertie"}) {
    const auto window = AddWindow(caption);
    Toggle();
    window->SetCaption("renamed");
    Toggle();
    EXPECT_FALSE(window->Visible()) << caption;
  }
}

TEST_F(FullScreen, ACaptionWithACommaIsFoundAgainOnlyUnderItsFirstPart) {
  const auto lost = AddWindow("Calls, outer");
  Toggle();
  EXPECT_EQ(Stored("ToggledWindows").substr(Stored("ToggledWindows").find("Calls")),
            "Calls, outer,15*");
  Toggle();
  EXPECT_FALSE(lost->Visible());

  const auto found = AddWindow("Calls, outer");
  Toggle();
  found->SetCaption("Calls");
  Toggle();
  EXPECT_TRUE(found->Visible());
}

TEST_F(FullScreen, ACaptionWithAnAsteriskIsFoundAgainOnlyUnderAPartOfIt) {
  const auto lost = AddWindow("Find*Results");
  Toggle();
  Toggle();
  EXPECT_FALSE(lost->Visible());

  const auto found = AddWindow("Find*Results");
  Toggle();
  found->SetCaption("Find");
  Toggle();
  EXPECT_TRUE(found->Visible());
}

TEST_F(FullScreen, AProjectCaptionWithACommaIsNotFoundByItsType) {
  usual.project->SetCaption("Project, the first");
  Toggle();
  EXPECT_FALSE(usual.project->Visible());
  Toggle();
  EXPECT_FALSE(usual.project->Visible());
}

TEST_F(FullScreen, TheOtherWindowsComeBackBesideOneWithABrokenEntry) {
  AddWindow("Find*Results, all");
  const auto behind = AddWindow("Bookmarks");
  Toggle();
  Toggle();
  EXPECT_TRUE(usual.immediate->Visible());
  EXPECT_TRUE(behind->Visible());
}

TEST_F(FullScreen, WindowsWithoutACaptionComeBackToo) {
  const auto frame = AddWindow("");
  Toggle();
  EXPECT_FALSE(frame->Visible());
  Toggle();
  EXPECT_TRUE(frame->Visible());
}

TEST_F(FullScreen, SeveralBarsOfOneNameAreAllShownAgain) {
  const auto first = AddBar("Tools");
  const auto second = AddBar("Tools");
  Toggle();
  EXPECT_EQ(Stored("ToggledMenus"), "Standard*Edit*Tools*Tools*");
  Toggle();
  EXPECT_TRUE(first->Visible());
  EXPECT_TRUE(second->Visible());
}

TEST_F(FullScreen, ABarOfARememberedNameIsShownThoughItWasHiddenBefore) {
  AddBar("Tools");
  const auto hiddenBefore = AddBar("Tools");
  hiddenBefore->SetVisible(false);
  Toggle();
  EXPECT_EQ(Stored("ToggledMenus"), "Standard*Edit*Tools*");
  Toggle();
  EXPECT_TRUE(hiddenBefore->Visible());
}

TEST_F(FullScreen, AWindowThatIsGoneIsPassedOverAndItsEntryDropped) {
  const auto tool = AddWindow("Tool");
  Toggle();
  memory.vbe.windows.Remove(*tool);
  Toggle();
  EXPECT_TRUE(usual.immediate->Visible());
  EXPECT_EQ(Stored("ToggledWindows"), "");
}

TEST_F(FullScreen, WindowsOpenedInTheMeantimeStay) {
  Toggle();
  usual.watch->SetVisible(true);
  Toggle();
  EXPECT_TRUE(usual.watch->Visible());
  EXPECT_TRUE(usual.immediate->Visible());
}

TEST_F(FullScreen, HidingNothingIsRememberedAsNothing) {
  Toggle();
  HideToolWindows(environment);
  EXPECT_EQ(Stored("ToggledWindows"), "");
  EXPECT_EQ(Stored("ToggledMenus"), "");
}

TEST_F(FullScreen, TheTwoHalvesLeaveTheStateToTheCommand) {
  HideToolWindows(environment);
  EXPECT_EQ(Stored("AreWindowsToggled"), "nothing");
  EXPECT_TRUE(RestoreToolWindows(environment));
  EXPECT_EQ(Stored("AreWindowsToggled"), "nothing");
  EXPECT_TRUE(usual.immediate->Visible());
}

TEST_F(FullScreen, TheHourglassIsShownMeanwhileAndTheDefaultPointerAfterwards) {
  class NotingScreen : public MemoryScreen {
   public:
    void SetMousePointer(int pointer) override {
      pointers.emplace_back(pointer, usual->immediate->Visible());
    }
    UsualWindows* usual = nullptr;
    std::vector<std::pair<int, bool>> pointers;
  } screen;
  screen.usual = &usual;
  Environment noting = memory.Parts({.screen = &screen});
  ToggleFullScreen(noting);
  EXPECT_THAT(screen.pointers, ElementsAre(std::pair(mouse_pointer::kHourglass, true),
                                           std::pair(mouse_pointer::kDefault, false)));
}

}  // namespace modFullScreen_test
}  // namespace brimwork
