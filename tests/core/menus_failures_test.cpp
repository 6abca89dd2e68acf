// A failure while the entries are built: what the user is told, and what stays.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/connected_add_in.h"
#include "support/entry_tree.h"

namespace brimwork {
namespace menus_failures_test {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::IsSupersetOf;

const ShownMessage kNoToolbar{"Unable to create necessary toolbar items", 16, "Brimwork"};
const ShownMessage kNoMenu{"Unable to create necessary menu items", 16, "Brimwork"};
const ShownMessage kNoPopups{"Unable to create necessary popupmenu items", 16, "Brimwork"};

struct MenuFailures : testing::Test, ConnectedAddIn {
  MenuFailures() : before(AllBars(memory.vbe.commandBars)) {}

  /// Connects with a failing call and disconnects, and notes what was there in between.
  void ConnectFor(Fault fault) {
    memory.dialogs = {};
    ConnectIt(std::move(fault));
    toolbar = Toolbar() ? EntryTree(*Toolbar()->Entries()) : std::vector<std::string>{};
    messages = memory.dialogs.Messages();
    Disconnect();
    EXPECT_EQ(AllBars(memory.vbe.commandBars), before);
  }

  std::vector<std::string> before;
  std::vector<std::string> toolbar;  // as it was while connected
  std::vector<ShownMessage> messages;
};

TEST_F(MenuFailures, EachStepOfTheFirstButtonEndsTheToolbarAndNothingElse) {
  struct Step {
    const char* operation;
    int n;
    std::vector<std::string> left;
  };
  // The toolbar's first control is a submenu, its second the first button in it.
  const std::vector<Step> steps = {
      {"VBE.AddCommandBar", 1, {}},
      {"CommandBarControls.Add", 1, {}},
      {"CommandBarControl.SetTag", 1, {" >"}},
      {"CommandBarControl.SetCaption", 1, {" >"}},
      {"CommandBarControl.Controls", 1, {"Export Code >"}},
      {"CommandBarControls.Add", 2, {"Export Code >"}},
      {"CommandBarControl.SetTag", 2, {"Export Code >", "  "}},
      {"CommandBarControl.SetCaption", 2, {"Export Code >", "  "}},
      {"CommandBarControl.SetStyle", 1, {"Export Code >", "  Text"}},
      {"Clipboard.Clear", 1, {"Export Code >", "  Text"}},
      {"Clipboard.SetData", 1, {"Export Code >", "  Text"}},
      {"CommandBarControl.PasteFace", 1, {"Export Code >", "  Text"}},
      {"VBE.CommandBarEventsOf", 1, {"Export Code >", "  Text"}},
  };
  for (const Step& step : steps) {
    ConnectFor(RaisingAt(step.operation, step.n));
    EXPECT_THAT(messages, ElementsAre(kNoToolbar)) << step.operation;
    EXPECT_EQ(toolbar, step.left) << step.operation;
  }
}

TEST_F(MenuFailures, AFailureInTheMiddleOfTheMenuLeavesWhatWasBuiltByThen) {
  ConnectIt(RaisingAt("CommandBarControls.Add", 19 + 1 + 4));
  EXPECT_THAT(memory.dialogs.Messages(), ElementsAre(kNoMenu));
  EXPECT_THAT(EntryTree(SubmenuOf(AddInsMenu(), "Brimwork")),
              ElementsAre("Comment Procedure", "Comment All Procedures", "Insert Error Handling"));
  EXPECT_THAT(AllControls(*Toolbar()->Entries()), testing::SizeIs(19));
  EXPECT_THAT(EntryTree(CodeWindow()), IsSupersetOf({"-- Brimwork >"}));
  EXPECT_EQ(EntryTree(ImmediateWindow()).back(), "-- Clear Immediate Window");
  Disconnect();
  EXPECT_EQ(AllBars(memory.vbe.commandBars), before);
}

TEST_F(MenuFailures, AnEnvironmentWithoutTheAddInsMenuStillGetsToolbarAndPopups) {
  memory.vbe.commandBars.Remove(*bars.addIns);
  ConnectIt();
  EXPECT_THAT(memory.dialogs.Messages(), ElementsAre(kNoMenu));
  EXPECT_NE(Toolbar(), nullptr);
  EXPECT_EQ(EntryTree(ImmediateWindow()).back(), "-- Clear Immediate Window");
}

TEST_F(MenuFailures, WithoutAToggleEntryThePopupsFailAndTheRestIsBuilt) {
  EntryOf(CodeWindow(), "To&ggle").Delete();
  const auto codeWindow = EntryTree(CodeWindow());
  const auto immediateWindow = EntryTree(ImmediateWindow());
  ConnectIt();
  EXPECT_THAT(memory.dialogs.Messages(), ElementsAre(kNoPopups));
  EXPECT_EQ(EntryTree(CodeWindow()), codeWindow);
  EXPECT_EQ(EntryTree(ImmediateWindow()), immediateWindow);
  EXPECT_NE(Toolbar(), nullptr);
  EXPECT_THAT(EntryTree(AddInsMenu()), IsSupersetOf({"-- Brimwork >"}));
}

TEST_F(MenuFailures, WithoutTheCommandsOfTheEditToolbarThePopupsEndBehindTheirFirstEntry) {
  EntryOf(*bars.edit->Entries(), "Comment Block").Delete();
  ConnectIt();
  EXPECT_THAT(memory.dialogs.Messages(), ElementsAre(kNoPopups));
  EXPECT_THAT(EntryTree(SubmenuOf(CodeWindow(), "Brimwork")), ElementsAre("Comment Procedure"));
}

TEST_F(MenuFailures, EachOperationTellsOfItsOwnFailure) {
  ConnectIt(RaisingAlways({"CommandBarControls.Add"}));
  EXPECT_THAT(memory.dialogs.Messages(), ElementsAre(kNoToolbar, kNoMenu, kNoPopups));
  Disconnect();
  EXPECT_EQ(AllBars(memory.vbe.commandBars), before);
}

TEST_F(MenuFailures, WhenTheMessageCannotBeShownConnectionGoesOnAllTheSame) {
  ConnectIt(RaisingAlways({"VBE.AddCommandBar", "Dialogs.MsgBox"}));
  EXPECT_THAT(EntryTree(AddInsMenu()), IsSupersetOf({"-- Brimwork >"}));
  EXPECT_EQ(EntryTree(ImmediateWindow()).back(), "-- Clear Immediate Window");
}

TEST_F(MenuFailures, EntriesOfAFailedBuildingRunTheirCommands) {
  memory.Open("Module1", ModuleText::FromText("Sub A()\r\nEnd Sub\r\n"));
  ConnectIt(RaisingAt("CommandBarControls.Add", 12));
  EntryOf(*Toolbar()->Entries(), "Insert Error Handling").Execute();
  EXPECT_GT(memory.vbe.ActiveCodePane()->Module()->CountOfLines(), 2);
  Disconnect();
}

TEST_F(MenuFailures, AFailingDeleteIsTriedAgain) {
  constexpr int kControlsAndToolbar = 65 + 1;
  for (int failing = 1; failing <= kControlsAndToolbar; ++failing) {
    int deletes = 0;
    ConnectFor({Fault::Kind::kRaises, [&](int, std::string_view called) {
                  return called.ends_with(".Delete") && ++deletes == failing;
                }});
    EXPECT_EQ(deletes, kControlsAndToolbar + 1) << failing;
    EXPECT_THAT(messages, IsEmpty());
  }
}

}  // namespace menus_failures_test
}  // namespace brimwork
