#include "core/toolbar_place.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/connected_add_in.h"

namespace brimwork {
namespace toolbar_place_test {

using testing::IsEmpty;

struct ToolbarPlace : testing::Test, ConnectedAddIn {
  void SetPlace(std::string_view position, std::string_view index, std::string_view left,
                std::string_view top) {
    Set("ToolbarPosition", position);
    Set("ToolbarIndex", index);
    Set("ToolbarLeft", left);
    Set("ToolbarTop", top);
  }

  void ExpectPlace(int position, int row, int left, int top) {
    const auto toolbar = Toolbar();
    ASSERT_NE(toolbar, nullptr);
    EXPECT_EQ(toolbar->Position(), position);
    EXPECT_EQ(toolbar->RowIndex(), row);
    EXPECT_EQ(toolbar->Left(), left);
    EXPECT_EQ(toolbar->Top(), top);
  }

  void ExpectSaved(const char* position, const char* index, const char* left, const char* top,
                   const char* visible) {
    EXPECT_EQ(Get("ToolbarPosition"), position);
    EXPECT_EQ(Get("ToolbarIndex"), index);
    EXPECT_EQ(Get("ToolbarLeft"), left);
    EXPECT_EQ(Get("ToolbarTop"), top);
    EXPECT_EQ(Get("ToolbarVisible"), visible);
  }
};

TEST_F(ToolbarPlace, AtFirstTheToolbarIsDockedAtTheTopAndShown) {
  ConnectIt();
  ExpectPlace(bar_position::kTop, 0, 0, 0);
  EXPECT_TRUE(Toolbar()->Visible());
}

TEST_F(ToolbarPlace, IsTakenFromTheSettings) {
  SetPlace("4", "2", "310", "-20");
  ConnectIt();
  ExpectPlace(bar_position::kFloating, 2, 310, -20);
  EXPECT_TRUE(Toolbar()->Visible());
}

TEST_F(ToolbarPlace, AToolbarSavedAsHiddenStaysHidden) {
  Set("ToolbarVisible", "False");
  ConnectIt();
  EXPECT_FALSE(Toolbar()->Visible());
}

TEST_F(ToolbarPlace, AnyOtherValueShowsTheToolbar) {
  for (const char* value : {"True", "true", "false", "", "0", "Yes"}) {
    Set("ToolbarVisible", value);
    ConnectIt();
    EXPECT_TRUE(Toolbar()->Visible()) << value;
    Disconnect();
  }
}

TEST_F(ToolbarPlace, NumbersMayHaveBlanksAroundThemOrBeHexadecimal) {
  SetPlace(" 3 ", "&H1", "&h10", "7");
  ConnectIt();
  ExpectPlace(bar_position::kBottom, 1, 16, 7);
}

TEST_F(ToolbarPlace, WhatIsNoNumberCountsAsNothing) {
  SetPlace("top", "", "99999", "12 px");
  ConnectIt();
  ExpectPlace(bar_position::kTop, 0, 0, 0);
  EXPECT_TRUE(Toolbar()->Visible());
  EXPECT_THAT(memory.dialogs.Messages(), IsEmpty());
}

TEST_F(ToolbarPlace, APositionThatThereIsNotLeavesTheToolbarFloating) {
  SetPlace("9", "1", "20", "30");
  ConnectIt();
  ExpectPlace(bar_position::kFloating, 1, 20, 30);
  EXPECT_TRUE(Toolbar()->Visible());
}

TEST_F(ToolbarPlace, IsSavedAtDisconnection) {
  ConnectIt();
  Toolbar()->SetPosition(bar_position::kRight);
  Toolbar()->SetRowIndex(3);
  Toolbar()->SetLeft(-5);
  Toolbar()->SetTop(120);
  Disconnect();
  ExpectSaved("2", "3", "-5", "120", "True");
}

TEST_F(ToolbarPlace, AHiddenToolbarIsSavedAsHidden) {
  ConnectIt();
  Toolbar()->SetVisible(false);
  Disconnect();
  EXPECT_EQ(Get("ToolbarVisible"), "False");
  ConnectIt();
  EXPECT_FALSE(Toolbar()->Visible());
}

TEST_F(ToolbarPlace, ComesBackWhereTheUserLeftIt) {
  ConnectIt();
  Toolbar()->SetPosition(bar_position::kFloating);
  Toolbar()->SetLeft(200);
  Toolbar()->SetTop(100);
  Disconnect();
  ConnectIt();
  ExpectPlace(bar_position::kFloating, 0, 200, 100);
}

TEST_F(ToolbarPlace, IsNotOverwrittenByThatOfAToolbarThatWasNotBuiltToItsEnd) {
  SetPlace("2", "1", "30", "40");
  Set("ToolbarVisible", "True");
  ConnectIt(RaisingAt("CommandBarControls.Add", 5));
  Disconnect();
  ExpectSaved("2", "1", "30", "40", "True");
}

TEST_F(ToolbarPlace, OfAToolbarThatTheUserHasDeletedIsNotSaved) {
  SetPlace("2", "1", "30", "40");
  ConnectIt();
  Toolbar()->Delete();
  Disconnect();
  EXPECT_EQ(Get("ToolbarPosition"), "2");
  EXPECT_EQ(Get("ToolbarTop"), "40");
  EXPECT_EQ(Get("ToolbarVisible"), "nothing");
}

TEST_F(ToolbarPlace, AStepThatFailsDoesNotKeepTheOthersFromBeingTaken) {
  SetPlace("4", "1", "20", "30");
  for (const char* step : {"CommandBar.SetPosition", "CommandBar.SetRowIndex", "CommandBar.SetLeft",
                           "CommandBar.SetTop"}) {
    FaultyEnvironment failing(memory.Parts(), RaisingAlways({step}));
    Environment parts = failing.Parts();
    const auto bar = parts.vbe.AddCommandBar({.name = step});
    RestoreToolbarPlace(parts, *bar);
    const auto plain = memory.vbe.CommandBarOfName(step);
    int set = 0;
    set += plain->Position() == 4;
    set += plain->RowIndex() == 1;
    set += plain->Left() == 20;
    set += plain->Top() == 30;
    EXPECT_EQ(set, 3) << step;
    EXPECT_TRUE(plain->Visible()) << step;
  }
}

TEST_F(ToolbarPlace, AValueThatCannotBeSavedDoesNotKeepTheOthersFromBeingSaved) {
  ConnectIt();
  for (const char* step : {"CommandBar.Position", "CommandBar.RowIndex", "CommandBar.Left",
                           "CommandBar.Top", "CommandBar.Visible"}) {
    SetPlace("old", "old", "old", "old");
    Set("ToolbarVisible", "old");
    FaultyEnvironment failing(memory.Parts(), RaisingAlways({step}));
    Environment parts = failing.Parts();
    SaveToolbarPlace(parts, *parts.vbe.CommandBarOfName("Brimwork"));
    int kept = 0;
    for (const char* key :
         {"ToolbarPosition", "ToolbarIndex", "ToolbarLeft", "ToolbarTop", "ToolbarVisible"}) {
      kept += Get(key) == "old";
    }
    EXPECT_EQ(kept, 1) << step;
  }
}

TEST_F(ToolbarPlace, SettingsThatCannotBeReadGiveTheUsualPlace) {
  FaultyEnvironment failing(memory.Parts(), RaisingAlways({"SettingsArea.GetSetting"}));
  Environment parts = failing.Parts();
  const auto bar = parts.vbe.AddCommandBar({.name = "Bar", .position = bar_position::kFloating});
  RestoreToolbarPlace(parts, *bar);
  EXPECT_EQ(bar->Position(), bar_position::kTop);
  EXPECT_TRUE(bar->Visible());
}

}  // namespace toolbar_place_test
}  // namespace brimwork
