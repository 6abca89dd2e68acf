// What full screen makes of stored values that it may not have written itself.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "ide_windows/modFullScreen.h"
#include "memory/memory_environment.h"
#include "memory/usual_windows.h"
#include "settings/settings.h"
#include "support/shown_windows.h"

namespace brimwork {
namespace modFullScreen_stored_values_test {

using testing::ElementsAre;
using testing::IsEmpty;

/// Every tool window and bar is hidden, and so are one window without a caption and one bar without
/// a name.
struct FullScreenStoredValues : testing::Test {
  FullScreenStoredValues() {
    memory.vbe.windows.Add("", window_type::kWatch);
    memory.vbe.AddCommandBar(std::make_shared<MemoryCommandBar>(""));
    HideAll();
  }

  void HideAll() {
    HideToolWindows(environment);
    SaveSetting(environment, "ToggledWindows", "");
    SaveSetting(environment, "ToggledMenus", "");
  }

  /// The tool windows that one use shows when the list holds this.
  std::vector<std::string> WindowsShownFor(std::string_view list) {
    HideAll();
    SaveSetting(environment, "AreWindowsToggled", "True");
    SaveSetting(environment, "ToggledWindows", list);
    ToggleFullScreen(environment);
    std::vector<std::string> shown = ShownWindows(memory.vbe);
    shown.erase(shown.begin());  // the main window
    return shown;
  }

  std::vector<std::string> BarsShownFor(std::string_view list) {
    HideAll();
    SaveSetting(environment, "AreWindowsToggled", "True");
    SaveSetting(environment, "ToggledMenus", list);
    ToggleFullScreen(environment);
    std::vector<std::string> shown = ShownBars(memory.vbe);
    shown.erase(shown.begin());  // the menu bar
    return shown;
  }

  bool IsTakenForToggled(std::string_view value) {
    HideAll();
    SaveSetting(environment, "AreWindowsToggled", value);
    SaveSetting(environment, "ToggledWindows", "Immediate,5*");
    ToggleFullScreen(environment);
    return usual.immediate->Visible();
  }

  std::string Stored(std::string_view key) { return GetSetting(environment, key, "nothing"); }

  MemoryEnvironment memory;
  UsualWindows usual = AddUsualWindows(memory.vbe);
  Environment environment = memory.Parts();
};

TEST_F(FullScreenStoredValues, AnEmptyListShowsNothing) {
  EXPECT_THAT(WindowsShownFor(""), IsEmpty());
  EXPECT_THAT(BarsShownFor(""), IsEmpty());
  EXPECT_EQ(Stored("AreWindowsToggled"), "False");
}

TEST_F(FullScreenStoredValues, WhatFollowsTheLastEntryIsNoEntry) {
  EXPECT_THAT(WindowsShownFor("Immediate,5*"), ElementsAre("Immediate"));
  EXPECT_THAT(BarsShownFor("Edit*"), ElementsAre("Edit"));
}

TEST_F(FullScreenStoredValues, AListWithoutItsLastAsteriskIsReadToItsEnd) {
  EXPECT_THAT(WindowsShownFor("Immediate,5*Locals,4"), ElementsAre("Immediate", "Locals"));
  EXPECT_THAT(BarsShownFor("Standard*Edit"), ElementsAre("Standard", "Edit"));
}

TEST_F(FullScreenStoredValues, EmptyEntriesShowNoWindowWithoutACaption) {
  for (const char* list : {"*", "**", "***"}) {
    EXPECT_THAT(WindowsShownFor(list), IsEmpty()) << list;
  }
  EXPECT_THAT(WindowsShownFor("**Immediate,5**"), ElementsAre("Immediate"));
}

TEST_F(FullScreenStoredValues, ABarWithoutANameComesBackWhereItWasHidden) {
  EXPECT_THAT(BarsShownFor("Edit**"), ElementsAre("Edit", ""));
}

TEST_F(FullScreenStoredValues, AnEntryWithoutAUsableTypeIsFoundByItsCaption) {
  for (const char* list : {"Immediate*", "Immediate,*", "Immediate,five*", "Immediate,5,5*",
                           "Immediate,99999999999999999999*", "Immediate,-1*"}) {
    EXPECT_THAT(WindowsShownFor(list), ElementsAre("Immediate")) << list;
    EXPECT_EQ(Stored("ToggledWindows"), "") << list;
    EXPECT_EQ(Stored("AreWindowsToggled"), "False") << list;
  }
}

TEST_F(FullScreenStoredValues, AProjectEntryWithoutAUsableTypeIsFoundByItsCaptionOnly) {
  for (const char* type : {"", ",", ",six", ",99999999999999999999", ",,6"}) {
    EXPECT_THAT(WindowsShownFor("Project - Old" + std::string(type) + '*'), IsEmpty()) << type;
    EXPECT_THAT(WindowsShownFor("Project - Project1" + std::string(type) + '*'),
                ElementsAre("Project - Project1"))
        << type;
  }
}

TEST_F(FullScreenStoredValues, TypesAreComparedAsNumbers) {
  EXPECT_THAT(WindowsShownFor("Project - Old, 06 *"), ElementsAre("Project - Project1"));
  EXPECT_THAT(WindowsShownFor("Project - Old,60*"), IsEmpty());
}

TEST_F(FullScreenStoredValues, AnotherTypeIsNotShownForAProjectEntry) {
  EXPECT_THAT(WindowsShownFor("Project - Old,4*"), ElementsAre("Locals"));
  EXPECT_THAT(WindowsShownFor("Properties - Old,7*"), ElementsAre("Properties - Module1"));
  EXPECT_THAT(WindowsShownFor("Locals - Old,4*"), IsEmpty());
}

TEST_F(FullScreenStoredValues, CaptionsAreComparedExactly) {
  for (const char* list : {"immediate,5*", " Immediate,5*", "Immediat,5*"}) {
    EXPECT_THAT(WindowsShownFor(list), IsEmpty()) << list;
  }
}

TEST_F(FullScreenStoredValues, NamesThatNobodyBearsAreDropped) {
  EXPECT_THAT(BarsShownFor("Gone*edit*Edit*"), ElementsAre("Edit"));
  EXPECT_EQ(Stored("ToggledMenus"), "");
}

TEST_F(FullScreenStoredValues, OnlyTheTextTrueMeansToggled) {
  EXPECT_TRUE(IsTakenForToggled("True"));
  for (const char* value : {"False", "", "1", "Yes", "true", "TRUE", "Truer", " True"}) {
    EXPECT_FALSE(IsTakenForToggled(value)) << '"' << value << '"';
    EXPECT_EQ(Stored("AreWindowsToggled"), "True") << '"' << value << '"';
  }
}

TEST_F(FullScreenStoredValues, HidingReplacesWhatTheListsHeld) {
  SaveSetting(environment, "ToggledWindows", "Old,5*");
  SaveSetting(environment, "ToggledMenus", "Old*");
  usual.watch->SetVisible(true);
  HideToolWindows(environment);
  EXPECT_EQ(Stored("ToggledWindows"), "Watches,3*");
  EXPECT_EQ(Stored("ToggledMenus"), "");
}

}  // namespace modFullScreen_stored_values_test
}  // namespace brimwork
