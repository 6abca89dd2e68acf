// What connection puts into the environment's menus, pop-up menus and toolbars.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>
#include <string>
#include <vector>

#include "core/catalogue.h"
#include "support/connected_add_in.h"
#include "support/entry_tree.h"

namespace brimwork {
namespace menus_test {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

struct MenusTest : testing::Test, ConnectedAddIn {
  std::vector<std::shared_ptr<MemoryCommandBarControl>> OwnControls() {
    std::vector<std::shared_ptr<MemoryCommandBarControl>> own;
    const auto add = [&](const MemoryCommandBarControls& controls) {
      for (const auto& control : AllControls(controls)) {
        if (control->Tag().starts_with("Brimwork.")) own.push_back(control);
      }
    };
    for (const auto* controls : {&AddInsMenu(), &CodeWindow(), &ImmediateWindow()}) add(*controls);
    add(*Toolbar()->Entries());
    return own;
  }
};

TEST_F(MenusTest, TheAddInsMenuGetsASubmenuOfElevenCommandsAndFourSubmenus) {
  ConnectIt();
  EXPECT_THAT(
      EntryTree(AddInsMenu()),
      ElementsAre("&Visual Data Manager...", "&Add-In Manager...", "-- Brimwork >",
                  "  Comment Procedure", "  Comment All Procedures", "  Insert Error Handling",
                  "  Insert Time Stamp", "  Indent All Procedures", "  Code Clean Up",
                  "  Close Windows", "  Clear Immediate Window", "  MsgBox Creator",
                  "  Spell Check - Quotes and Comments", "  Full Screen", "  -- Add Header >",
                  "    Standard Header", "    Adapted Header", "  Export Code >", "    Text",
                  "    RTF", "    Web Page", "    Quick Export", "  Line Number >",
                  "    Add Line Numbers", "    Remove Line Numbers", "  -- Help >", "    Contents",
                  "    Index", "    -- Configure Brimwork", "    About Brimwork",
                  "    -- Vantrel Web Site"));
}

TEST_F(MenusTest, TheCodeWindowsPopupGetsASubmenuInFrontOfToggle) {
  const std::vector<std::string> before = EntryTree(CodeWindow());
  ConnectIt();
  std::vector<std::string> expected(before.begin(), before.begin() + 8);
  for (const char* line :
       {"-- Brimwork >", "  Comment Procedure", "  Comment Block", "  Uncomment Block",
        "  Insert Error Handling", "  Insert Time Stamp", "  Clear Immediate Window",
        "  Full Screen", "  -- Export Selected Code >", "    Text", "    RTF", "    Web Page",
        "    Quick Export", "  Line Number >", "    Add Line Numbers", "    Remove Line Numbers"}) {
    expected.push_back(line);
  }
  expected.insert(expected.end(), before.begin() + 8, before.end());
  EXPECT_EQ(EntryTree(CodeWindow()), expected);
  EXPECT_EQ(before[8], "To&ggle >");
}

TEST_F(MenusTest, TheImmediateWindowsPopupGetsOneEntryAtItsEnd) {
  std::vector<std::string> expected = EntryTree(ImmediateWindow());
  expected.push_back("-- Clear Immediate Window");
  ConnectIt();
  EXPECT_EQ(EntryTree(ImmediateWindow()), expected);
}

TEST_F(MenusTest, TheToolbarHasTwoSubmenusAndElevenCommandsWithoutGroups) {
  ConnectIt();
  EXPECT_THAT(EntryTree(*Toolbar()->Entries()),
              ElementsAre("Export Code >", "  Text", "  RTF", "  Web Page", "  Quick Export",
                          "Add Header >", "  Standard Header", "  Adapted Header",
                          "Comment Procedure", "Comment All Procedures", "Insert Error Handling",
                          "Insert Time Stamp", "Indent All Procedures", "Code Clean Up",
                          "Close Windows", "Clear Immediate Window", "MsgBox Creator",
                          "Spell Check - Quotes and Comments", "Full Screen"));
  EXPECT_THAT(AllControls(*Toolbar()->Entries()), SizeIs(19));
}

TEST_F(MenusTest, NoOtherBarIsTouched) {
  const auto fileBefore = EntryTree(*bars.file->Entries());
  const auto editBefore = EntryTree(*bars.edit->Entries());
  const std::size_t barsBefore = memory.vbe.commandBars.All().size();
  ConnectIt();
  EXPECT_EQ(EntryTree(*bars.file->Entries()), fileBefore);
  EXPECT_EQ(EntryTree(*bars.edit->Entries()), editBefore);
  EXPECT_EQ(memory.vbe.commandBars.All().size(), barsBefore + 1);
  EXPECT_THAT(memory.dialogs.Messages(), IsEmpty());
}

TEST_F(MenusTest, EveryControlHasATagOfItsOwn) {
  ConnectIt();
  std::set<std::string> tags;
  for (const auto& control : OwnControls()) {
    EXPECT_TRUE(tags.insert(control->Tag()).second) << control->Tag();
  }
  // 53 entries, eight submenus, the two that hold them, and the two commands of the environment.
  EXPECT_THAT(tags, SizeIs(53 + 8 + 2 + 2));
}

TEST_F(MenusTest, EveryButtonShowsIconAndCaption) {
  ConnectIt();
  int buttons = 0;
  for (const auto& control : OwnControls()) {
    if (control->Type() != control_type::kButton) continue;
    const bool isEnvironments = control->Id() != control_id::kCustom;
    EXPECT_EQ(control->Style(), isEnvironments ? 0 : 3) << control->Caption();
    ++buttons;
  }
  EXPECT_EQ(buttons, 55);
}

TEST_F(MenusTest, EveryButtonWithAFaceKeyBearsItsPicture) {
  ConnectIt();
  const auto facesOf = [](std::string_view caption) -> std::string {
    for (const CatalogueEntry& entry : Catalogue()) {
      if (entry.caption != caption) continue;
      std::string key(entry.faceKey);
      for (char& c : key) c = static_cast<char>(std::tolower(c));
      return key.empty() ? "" : "faces/" + key;
    }
    return "";
  };
  for (const auto& control : OwnControls()) {
    if (control->Type() != control_type::kButton) continue;
    EXPECT_EQ(control->Face(), facesOf(control->Caption())) << control->Caption();
  }
  EXPECT_EQ(EntryOf(*Toolbar()->Entries(), "Indent All Procedures").Face(), "faces/indent");
}

TEST_F(MenusTest, FourEntriesHaveNoFace) {
  ConnectIt();
  const auto& help = SubmenuOf(SubmenuOf(AddInsMenu(), "Brimwork"), "Help");
  EXPECT_EQ(EntryOf(help, "Index").Face(), "");
  EXPECT_EQ(EntryOf(help, "Configure Brimwork").Face(), "");
  EXPECT_EQ(EntryOf(help, "About Brimwork").Face(), "");
  EXPECT_EQ(EntryOf(SubmenuOf(CodeWindow(), "Brimwork"), "Comment Block").Face(), "");
}

TEST_F(MenusTest, EverythingGoesWithTheEnvironmentShouldItEndWithoutDisconnecting) {
  const auto before = AllBars(memory.vbe.commandBars);
  ConnectIt();
  memory.vbe.commandBars.RemoveTemporary();
  EXPECT_EQ(AllBars(memory.vbe.commandBars), before);
}

TEST_F(MenusTest, TheEnvironmentsOwnCommandsKeepTheirBehaviour) {
  int commented = 0;
  int uncommented = 0;
  EntryOf(*bars.edit->Entries(), "Comment Block").action = [&] { ++commented; };
  EntryOf(*bars.edit->Entries(), "Uncomment Block").action = [&] { ++uncommented; };
  ConnectIt();
  const auto& submenu = SubmenuOf(CodeWindow(), "Brimwork");
  EntryOf(submenu, "Comment Block").Execute();
  EXPECT_EQ(commented, 1);
  EXPECT_EQ(uncommented, 0);
  EntryOf(submenu, "Uncomment Block").Execute();
  EXPECT_EQ(commented, 1);
  EXPECT_EQ(uncommented, 1);
}

TEST_F(MenusTest, TheEnvironmentsOwnCommandsAreFoundOnAnotherBarWhenTheUserHasMovedThem) {
  EntryOf(*bars.edit->Entries(), "Comment Block").Delete();
  bars.standard->Entries()->AddBuiltIn(control_id::kCommentBlock, "Comment Block");
  ConnectIt();
  EXPECT_EQ(EntryOf(SubmenuOf(CodeWindow(), "Brimwork"), "Comment Block").Id(), 192);
  EXPECT_THAT(memory.dialogs.Messages(), IsEmpty());
}

TEST_F(MenusTest, WhatACrashedConnectionHasLeftIsReplaced) {
  const auto before = AllBars(memory.vbe.commandBars);
  Connect crashed;
  crashed.AddinInstance_OnConnection(memory.Parts());
  const auto connected = AllBars(memory.vbe.commandBars);
  ConnectIt();
  EXPECT_EQ(AllBars(memory.vbe.commandBars), connected);
  Disconnect();
  EXPECT_EQ(AllBars(memory.vbe.commandBars), before);
}

TEST_F(MenusTest, DisconnectionLeavesTheBarsAsTheyWere) {
  const auto before = AllBars(memory.vbe.commandBars);
  ConnectIt();
  EXPECT_THAT(AllBars(memory.vbe.commandBars), Not(testing::ContainerEq(before)));
  Disconnect();
  EXPECT_EQ(AllBars(memory.vbe.commandBars), before);
}

TEST_F(MenusTest, SeveralConnectionsBuildTheSameAndLeaveNothing) {
  const auto before = AllBars(memory.vbe.commandBars);
  std::vector<std::string> connected;
  for (int time = 0; time < 3; ++time) {
    ConnectIt();
    if (connected.empty()) connected = AllBars(memory.vbe.commandBars);
    EXPECT_EQ(AllBars(memory.vbe.commandBars), connected);
    Disconnect();
    EXPECT_EQ(AllBars(memory.vbe.commandBars), before);
  }
  EXPECT_THAT(memory.dialogs.Messages(), IsEmpty());
}

TEST_F(MenusTest, ASecondConnectionWithoutADisconnectionDoublesNothing) {
  ConnectIt();
  const auto connected = AllBars(memory.vbe.commandBars);
  ConnectIt();
  EXPECT_EQ(AllBars(memory.vbe.commandBars), connected);
}

TEST_F(MenusTest, EntriesThatTheUserHasDeletedDoNotKeepTheOthersFromGoing) {
  const auto before = AllBars(memory.vbe.commandBars);
  ConnectIt();
  const auto& submenu = SubmenuOf(AddInsMenu(), "Brimwork");
  EntryOf(submenu, "Code Clean Up").Delete();
  EntryOf(submenu, "Help").Delete();
  EntryOf(CodeWindow(), "Brimwork").Delete();
  Toolbar()->Delete();
  Disconnect();
  EXPECT_EQ(AllBars(memory.vbe.commandBars), before);
}

TEST_F(MenusTest, EntriesOfOtherAddInsStay) {
  const auto foreign = bars.addIns->Controls()->Add({});
  foreign->SetCaption("Another");
  foreign->SetTag("Another.1");
  ConnectIt();
  Disconnect();
  EXPECT_EQ(foreign->Caption(), "Another");
}

}  // namespace menus_test
}  // namespace brimwork
