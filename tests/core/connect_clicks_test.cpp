// Clicks on the entries that connection has built.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <vector>

#include "core/catalogue.h"
#include "core/modButtonClicked.h"
#include "support/connected_add_in.h"
#include "support/entry_tree.h"
#include "support/opened_module.h"

namespace brimwork {
namespace connect_clicks_test {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

/// Notes the pointers that the wrapped screen is asked to show.
class NotingScreen : public MemoryScreen {
 public:
  void SetMousePointer(int pointer) override {
    shown.push_back(pointer);
    MemoryScreen::SetMousePointer(pointer);
  }
  std::vector<int> shown;
};

struct ConnectClicks : testing::Test, ConnectedAddIn {
  ConnectClicks() {
    Open({"Sub A()", "x = 1", "End Sub", "Sub B()", "y = 1", "End Sub"});
    screen.AddWindow(MemoryVbe::kMainWindowCaption, 1);
    connect.AddinInstance_OnConnection(memory.Parts({.screen = &screen}));
    screen.shown.clear();
  }
  ~ConnectClicks() override { Disconnect(); }

  void Open(const TextLines& lines) {
    memory.Open("Module1", ModuleText::FromText(JoinedLines(lines)));
  }
  TextLines Lines() { return LinesOf(*memory.vbe.ActiveCodePane()->Module()); }

  /// The button that was built for an entry of the catalogue.
  MemoryCommandBarControl& ButtonOf(const CatalogueEntry& entry) {
    const std::string tag = "Brimwork.ButtonHandler" + std::to_string(entry.handler);
    for (const auto& bar : memory.vbe.commandBars.All()) {
      for (const auto& control : AllControls(*bar->Entries())) {
        if (control->Tag() == tag) return *control;
      }
    }
    throw std::out_of_range(tag);
  }
  MemoryCommandBarControl& ButtonOf(int handler) {
    const auto entries = Catalogue();
    return ButtonOf(*std::ranges::find(entries, handler, &CatalogueEntry::handler));
  }

  NotingScreen screen;
};

TEST_F(ConnectClicks, EveryEntryHasItsButtonWhereTheCatalogueSays) {
  for (const CatalogueEntry& entry : Catalogue()) {
    EXPECT_EQ(ButtonOf(entry).Caption(), entry.caption) << entry.handler;
  }
}

TEST_F(ConnectClicks, EveryEntryShowsTheHourglassWhereTheCatalogueSaysSo) {
  for (const CatalogueEntry& entry : Catalogue()) {
    screen.shown.clear();
    ButtonOf(entry).SetCaption("no command");
    ButtonOf(entry).Execute();
    if (entry.hourglass) {
      EXPECT_THAT(screen.shown, ElementsAre(mouse_pointer::kHourglass, mouse_pointer::kDefault))
          << entry.handler;
    } else {
      EXPECT_THAT(screen.shown, IsEmpty()) << entry.handler;
    }
  }
}

/// Line numbers tell which procedures a command acted on.
TEST_F(ConnectClicks, EveryEntryHandsOnItsWholeModuleFlag) {
  for (const CatalogueEntry& entry : Catalogue()) {
    Open({"Sub A()", "x = 1", "End Sub", "Sub B()", "y = 1", "End Sub"});
    ButtonOf(entry).SetCaption("Add Line Numbers");
    ButtonOf(entry).Execute();
    const auto lines = Lines();
    EXPECT_EQ(lines[1], "2:         x = 1") << entry.handler;
    EXPECT_EQ(lines[4], entry.wholeModule ? "5:         y = 1" : "y = 1") << entry.handler;
  }
}

TEST_F(ConnectClicks, RunTheCommandOfTheCaptionAtClickTime) {
  MemoryCommandBarControl& button = EntryOf(*Toolbar()->Entries(), "Code Clean Up");
  button.SetCaption("Indent All Procedures");
  button.Execute();
  EXPECT_THAT(Lines(),
              ElementsAre("Sub A()", "    x = 1", "End Sub", "Sub B()", "    y = 1", "End Sub"));
}

TEST_F(ConnectClicks, AnEntryClickedOnceRunsItsCommandOnce) {
  ButtonOf(4).Execute();
  EXPECT_THAT(memory.dialogs.Messages(), IsEmpty());
  EXPECT_THAT(Lines(), ElementsAre(" ' 11/21/2026 10:20:30 AM Sub A()", "x = 1", "End Sub",
                                   "Sub B()", "y = 1", "End Sub"));
}

TEST_F(ConnectClicks, ReachTheHandlersOfTheLatestConnectionOnly) {
  const TextLines expected = AfterClickAt(1, "Comment Procedure", Lines());
  ConnectIt();
  ConnectIt();
  ButtonOf(42).Execute();
  EXPECT_EQ(Lines(), expected);
}

TEST_F(ConnectClicks, AClickMayEndTheConnectionAndItsCommandGoesOn) {
  Set("CleanUpCodeOptions", "Error,Indent");
  memory.messageLoop.onDoEvents = [&] { Disconnect(); };
  ButtonOf(6).Execute();
  EXPECT_FALSE(connect.IsConnected());
  EXPECT_EQ(Toolbar(), nullptr);
  EXPECT_THAT(Lines(), Contains("    x = 1"));
}

// The commands that open a form, the help or the web.

TEST_F(ConnectClicks, MsgBoxCreatorShowsTheDesigner) {
  for (const int handler : {9, 50}) {
    ButtonOf(handler).Execute();
    ASSERT_TRUE(IsVisible("frmMsgBox"));
    EXPECT_FALSE(memory.formHost.IsModal(LoadedForm("frmMsgBox")));
    LoadedForm("frmMsgBox").Close();
    EXPECT_FALSE(IsLoaded("frmMsgBox"));
  }
}

TEST_F(ConnectClicks, ConfigureShowsTheSetupDialog) {
  ButtonOf(62).Execute();
  ASSERT_TRUE(IsVisible("frmSetup"));
  EXPECT_FALSE(memory.formHost.IsModal(LoadedForm("frmSetup")));
}

TEST_F(ConnectClicks, AboutShowsTheSplashFormWithoutItsTimer) {
  memory.formHost.Elapse(1000);
  ASSERT_FALSE(IsLoaded("frmSplash"));
  ButtonOf(63).Execute();
  EXPECT_TRUE(IsVisible("frmSplash"));
  memory.formHost.Elapse(5000);
  EXPECT_TRUE(IsVisible("frmSplash"));
}

TEST_F(ConnectClicks, ContentsAndIndexOpenTheHelpFileBesideTheAddIn) {
  ButtonOf(60).Execute();
  ButtonOf(61).Execute();
  EXPECT_THAT(memory.helpViewer.requests,
              ElementsAre(HelpRequest{"C:\\Program Files\\Brimwork\\Brimwork.chm", 1, 0},
                          HelpRequest{"C:\\Program Files\\Brimwork\\Brimwork.chm", 2, 0}));
}

TEST_F(ConnectClicks, TheWebSiteIsOpenedInTheUsersBrowser) {
  ButtonOf(64).Execute();
  EXPECT_THAT(memory.shell.requests,
              ElementsAre(ShellRequest{"Open", "https://vantrel.example/", "", ""}));
}

TEST_F(ConnectClicks, TheseCommandsNeedNoCodePane) {
  memory.vbe.SetActivePane(nullptr);
  for (const int handler : {9, 60, 61, 62, 63, 64}) ButtonOf(handler).Execute();
  EXPECT_TRUE(IsVisible("frmMsgBox"));
  EXPECT_TRUE(IsVisible("frmSetup"));
  EXPECT_THAT(memory.helpViewer.requests, SizeIs(2));
  EXPECT_THAT(memory.shell.requests, SizeIs(1));
  EXPECT_THAT(memory.dialogs.Messages(), IsEmpty());
}

TEST_F(ConnectClicks, FormsOpenedByCommandsGoWithTheConnection) {
  for (const int handler : {9, 62, 63}) ButtonOf(handler).Execute();
  Disconnect();
  EXPECT_THAT(memory.formHost.LoadedForms(), IsEmpty());
}

TEST_F(ConnectClicks, AFormThatCannotBeShownIsPassedOver) {
  Set("SplashScreen", "False");
  ConnectIt(RaisingAlways({"FormHost.Show", "HelpViewer.HtmlHelp", "Shell.ShellExecute"}));
  for (const int handler : {9, 60, 62, 64}) ButtonOf(handler).Execute();
  EXPECT_FALSE(IsVisible("frmMsgBox"));
  EXPECT_THAT(memory.dialogs.Messages(), IsEmpty());
}

}  // namespace connect_clicks_test
}  // namespace brimwork
