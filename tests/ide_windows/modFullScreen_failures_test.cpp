// Full screen over an environment whose calls fail: what can be done is done, and no window is
// lost.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <functional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "ide_windows/modFullScreen.h"
#include "memory/memory_environment.h"
#include "memory/usual_windows.h"
#include "settings/settings.h"
#include "support/faulty_environment.h"
#include "support/shown_windows.h"

namespace brimwork {
namespace modFullScreen_failures_test {

using testing::ElementsAre;

using Hits = std::function<bool(int call, std::string_view operation)>;

/// Hits the calls with these numbers (from 1) among those to one operation.
Hits NthOf(std::string_view operation, int first, int last) {
  return [=, count = 0](int, std::string_view called) mutable {
    if (called != operation) return false;
    ++count;
    return count >= first && count <= last;
  };
}

Hits NthOf(std::string_view operation, int call) { return NthOf(operation, call, call); }

Hits EveryOf(std::string_view operation) {
  return [=](int, std::string_view called) { return called == operation; };
}

struct FullScreenFailures : testing::Test {
  void Toggle() {
    Environment sound = memory.Parts();
    ToggleFullScreen(sound);
  }

  void ToggleWith(Hits hits) {
    FaultyEnvironment faulty(memory.Parts(), {.hits = std::move(hits)});
    Environment environment = faulty.Parts();
    ToggleFullScreen(environment);
  }

  std::string Stored(std::string_view key) {
    Environment sound = memory.Parts();
    return GetSetting(sound, key, "nothing");
  }

  std::vector<std::string> Windows() { return ShownWindows(memory.vbe); }
  std::vector<std::string> Bars() { return ShownBars(memory.vbe); }

  MemoryEnvironment memory;
  UsualWindows usual = AddUsualWindows(memory.vbe);
  const std::vector<std::string> windowsBefore = Windows();
  const std::vector<std::string> barsBefore = Bars();
};

TEST_F(FullScreenFailures, AWindowThatCannotBeAskedStaysAndTheOthersAreHidden) {
  for (const char* operation : {"Window.Visible", "Window.Type", "Window.Caption"}) {
    SCOPED_TRACE(operation);
    // The first window that is asked for its caption is the project window.
    ToggleWith(NthOf(operation, operation == std::string("Window.Caption") ? 1 : 2));
    EXPECT_THAT(Windows(), ElementsAre("Visual Basic", "Project - Project1"));
    EXPECT_THAT(Bars(), ElementsAre("Menu Bar"));
    Toggle();
    EXPECT_EQ(Windows(), windowsBefore);
  }
}

TEST_F(FullScreenFailures, AWindowThatDoesNotHideStaysAndTheOthersAreHidden) {
  ToggleWith(NthOf("Window.SetVisible", 1));
  EXPECT_THAT(Windows(), ElementsAre("Visual Basic", "Project - Project1"));
  Toggle();
  EXPECT_EQ(Windows(), windowsBefore);
}

TEST_F(FullScreenFailures, ABarThatFailsStaysAndTheOthersAreHidden) {
  ToggleWith(NthOf("CommandBar.SetVisible", 1));
  EXPECT_THAT(Bars(), ElementsAre("Menu Bar", "Standard"));
  Toggle();
  EXPECT_EQ(Bars(), barsBefore);
}

TEST_F(FullScreenFailures, BarsAreHiddenWhenTheWindowsCannotBeListed) {
  ToggleWith(EveryOf("VBE.Windows"));
  EXPECT_EQ(Windows(), windowsBefore);
  EXPECT_THAT(Bars(), ElementsAre("Menu Bar"));
}

TEST_F(FullScreenFailures, AMainWindowThatCannotBeAskedForIsNotHidden) {
  ToggleWith(EveryOf("VBE.MainWindow"));
  EXPECT_THAT(Windows(), ElementsAre("Visual Basic"));
}

TEST_F(FullScreenFailures, NoWindowIsHiddenThatMightBeTheMainWindow) {
  const Hits everyButTheMainWindows = NthOf("Window.Identity", 2, 1000);
  ToggleWith(everyButTheMainWindows);
  EXPECT_EQ(Windows(), windowsBefore);
}

TEST_F(FullScreenFailures, WindowsThatCannotBeRememberedAreShownAgain) {
  ToggleWith(NthOf("SettingsArea.SaveSetting", 1));
  EXPECT_EQ(Windows(), windowsBefore);
  EXPECT_THAT(Bars(), ElementsAre("Menu Bar"));
}

TEST_F(FullScreenFailures, BarsThatCannotBeRememberedAreShownAgain) {
  ToggleWith(NthOf("SettingsArea.SaveSetting", 2));
  EXPECT_THAT(Windows(), ElementsAre("Visual Basic"));
  EXPECT_EQ(Bars(), barsBefore);
}

TEST_F(FullScreenFailures, NothingStaysHiddenWhenNoSettingCanBeStored) {
  ToggleWith(EveryOf("SettingsArea.SaveSetting"));
  EXPECT_EQ(Windows(), windowsBefore);
  EXPECT_EQ(Bars(), barsBefore);
}

TEST_F(FullScreenFailures, NothingStaysHiddenWhenTheStateCannotBeStored) {
  ToggleWith(NthOf("SettingsArea.SaveSetting", 3));
  EXPECT_EQ(Windows(), windowsBefore);
  EXPECT_EQ(Bars(), barsBefore);
  EXPECT_EQ(Stored("AreWindowsToggled"), "nothing");
}

TEST_F(FullScreenFailures, NothingChangesWhileTheStateCannotBeRead) {
  ToggleWith(NthOf("SettingsArea.GetSetting", 1));
  EXPECT_EQ(Windows(), windowsBefore);
  Toggle();
  ToggleWith(NthOf("SettingsArea.GetSetting", 1));
  EXPECT_THAT(Windows(), ElementsAre("Visual Basic"));
  EXPECT_EQ(Stored("AreWindowsToggled"), "True");
  Toggle();
  EXPECT_EQ(Windows(), windowsBefore);
}

TEST_F(FullScreenFailures, AListThatCannotBeReadIsKeptForTheNextUse) {
  for (const int list : {2, 3}) {
    SCOPED_TRACE(list);
    Toggle();
    ToggleWith(NthOf("SettingsArea.GetSetting", list));
    EXPECT_EQ(Stored("AreWindowsToggled"), "True");
    Toggle();
    EXPECT_EQ(Windows(), windowsBefore);
    EXPECT_EQ(Bars(), barsBefore);
    EXPECT_EQ(Stored("AreWindowsToggled"), "False");
  }
}

TEST_F(FullScreenFailures, BarsComeBackWhenTheWindowsCannotBeListed) {
  Toggle();
  ToggleWith(EveryOf("VBE.Windows"));
  EXPECT_EQ(Bars(), barsBefore);
  Toggle();
  EXPECT_EQ(Windows(), windowsBefore);
}

TEST_F(FullScreenFailures, AWindowThatIsBusyForAMomentIsShownAllTheSame) {
  Toggle();
  ToggleWith(NthOf("Window.SetVisible", 1, 2));
  EXPECT_EQ(Windows(), windowsBefore);
}

TEST_F(FullScreenFailures, AWindowThatDoesNotShowIsPassedOverAndTheOthersAreShown) {
  Toggle();
  ToggleWith(NthOf("Window.SetVisible", 1, 3));
  EXPECT_THAT(Windows(),
              ElementsAre("Visual Basic", "Properties - Module1", "Toolbox", "Immediate"));
  EXPECT_EQ(Bars(), barsBefore);
  EXPECT_EQ(Stored("ToggledWindows"), "");
  EXPECT_EQ(Stored("AreWindowsToggled"), "False");
}

TEST_F(FullScreenFailures, RestoringSaysWhetherBothListsWereGoneThrough) {
  Toggle();
  FaultyEnvironment faulty(memory.Parts(), {.hits = EveryOf("VBE.CommandBars")});
  Environment environment = faulty.Parts();
  EXPECT_FALSE(RestoreToolWindows(environment));
  EXPECT_EQ(Windows(), windowsBefore);
  EXPECT_EQ(Stored("ToggledMenus"), "Standard*Edit*");
}

/// One use with one failing call, after as many sound ones as told.
class FailingUse {
 public:
  FailingUse(int soundUses, Fault::Kind kind, int call)
      : faulty_(memory_.Parts(),
                {.kind = kind, .hits = [call](int at, std::string_view) { return at == call; }}) {
    for (int use = 0; use < soundUses; ++use) UseSoundly();
    Environment environment = faulty_.Parts();
    ToggleFullScreen(environment);
  }

  void UseSoundly() {
    Environment sound = memory_.Parts();
    ToggleFullScreen(sound);
  }

  bool IsToggled() {
    Environment sound = memory_.Parts();
    return GetSetting(sound, "AreWindowsToggled", "False") == "True";
  }

  int Calls() const { return static_cast<int>(faulty_.Operations().size()); }
  MemoryEnvironment& Memory() { return memory_; }

 private:
  MemoryEnvironment memory_;
  UsualWindows usual_ = AddUsualWindows(memory_.vbe);
  FaultyEnvironment faulty_;
};

TEST_F(FullScreenFailures, WhicheverSingleCallFailsEveryWindowIsBackInTheEnd) {
  for (const auto kind :
       {Fault::Kind::kRaises, Fault::Kind::kRaisesBehind, Fault::Kind::kAnswersNothing}) {
    for (const int soundUses : {0, 1}) {
      const int calls = FailingUse(soundUses, kind, 0).Calls();
      ASSERT_GT(calls, 20);
      for (int call = 1; call <= calls; ++call) {
        SCOPED_TRACE("use " + std::to_string(soundUses + 1) + ", call " + std::to_string(call) +
                     ", kind " + std::to_string(static_cast<int>(kind)));
        FailingUse use(soundUses, kind, call);
        EXPECT_EQ(use.Memory().screen.MousePointer(), mouse_pointer::kDefault);
        EXPECT_TRUE(use.Memory().vbe.MainWindow()->Visible());
        if (use.IsToggled()) use.UseSoundly();
        EXPECT_FALSE(use.IsToggled());
        EXPECT_EQ(ShownWindows(use.Memory().vbe), windowsBefore);
        EXPECT_EQ(ShownBars(use.Memory().vbe), barsBefore);
      }
    }
  }
}

}  // namespace modFullScreen_failures_test
}  // namespace brimwork
