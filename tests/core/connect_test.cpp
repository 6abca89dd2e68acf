// Connection and disconnection: what happens in which order, and what is left.
#include "core/Connect.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/connected_add_in.h"
#include "support/entry_tree.h"

namespace brimwork {
namespace connect_test {

using testing::AllOf;
using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;

const ShownMessage kNotConnected{"Unable to correctly connect the add-in: Brimwork", 16,
                                 "Brimwork"};

struct ConnectTest : testing::Test, ConnectedAddIn {
  std::vector<std::string> LoadedForms() {
    std::vector<std::string> names;
    for (const Form* form : memory.formHost.LoadedForms()) {
      names.emplace_back(form->Layout().name);
    }
    return names;
  }

  /// As the user does it.
  void ShowAllForms() {
    EntryOf(SubmenuOf(AddInsMenu(), "Brimwork"), "MsgBox Creator").Execute();
    static_cast<frmMsgBox&>(LoadedForm("frmMsgBox")).cmdCode.Click();
    EntryOf(SubmenuOf(SubmenuOf(AddInsMenu(), "Brimwork"), "Help"), "Configure Brimwork").Execute();
  }

  bool isDisconnecting = false;

  /// The calls of a connection to these operations, in their order.
  std::vector<std::string> CallsTo(const std::vector<std::string>& operations) {
    std::vector<std::string> calls;
    ConnectIt(Fault{});
    for (const std::string_view called : faulty->Operations()) {
      if (std::ranges::find(operations, called) == operations.end()) continue;
      if (calls.empty() || calls.back() != called) calls.emplace_back(called);
    }
    return calls;
  }
};

// The splash form.

TEST_F(ConnectTest, ShowsTheSplashFormOnTopOfAllAndStartsItsTimer) {
  ConnectIt();
  EXPECT_THAT(memory.formHost.events,
              ElementsAre("load frmSplash", "show frmSplash", "load frmInfo"));
  const auto& window = memory.nativeWindows.windows.at(LoadedForm("frmSplash").hWnd());
  ASSERT_THAT(window.positions, SizeIs(1));
  EXPECT_EQ(window.positions[0].insertAfter, window_order::kTopMost);
  memory.formHost.Elapse(1000);
  EXPECT_FALSE(IsLoaded("frmSplash"));
}

TEST_F(ConnectTest, ShowsTheSetupDialogBehindTheSplashFormOnTheFirstRunOnly) {
  ConnectIt();
  memory.formHost.Elapse(1000);
  ASSERT_TRUE(IsVisible("frmSetup"));
  EXPECT_FALSE(memory.formHost.IsModal(LoadedForm("frmSetup")));
  LoadedForm("frmSetup").Close();
  Disconnect();
  ConnectIt();
  memory.formHost.Elapse(1000);
  EXPECT_FALSE(IsLoaded("frmSplash"));
  EXPECT_FALSE(IsLoaded("frmSetup"));
}

TEST_F(ConnectTest, ShowsNoSetupDialogWithoutTheSplashForm) {
  Set("SplashScreen", "False");
  ConnectIt();
  memory.formHost.Elapse(5000);
  EXPECT_FALSE(IsLoaded("frmSetup"));
  EXPECT_EQ(Get("FirstRun"), "nothing");
}

TEST_F(ConnectTest, OnlyLoadsTheSplashFormWhenTheUserDoesNotWantToSeeIt) {
  for (const char* value : {"False", "true", "", "1"}) {
    Set("SplashScreen", value);
    ConnectIt();
    EXPECT_THAT(memory.formHost.events, ElementsAre("load frmSplash", "load frmInfo")) << value;
    EXPECT_THAT(memory.nativeWindows.windows.at(LoadedForm("frmSplash").hWnd()).positions,
                IsEmpty());
    Disconnect();
    memory.formHost.events.clear();
  }
}

TEST_F(ConnectTest, BuildsToolbarThenMenuThenPopupsAndLetsMessagesRunBetweenThem) {
  std::vector<std::string> seen;
  memory.messageLoop.onDoEvents = [&] {
    std::string state;
    if (Toolbar() && Toolbar()->Visible()) state += "toolbar ";
    if (AddInsMenu().All().size() == 3) state += "menu ";
    if (EntryTree(ImmediateWindow()).back() == "-- Clear Immediate Window") state += "popups ";
    seen.push_back(state);
  };
  ConnectIt();
  EXPECT_THAT(seen, ElementsAre("toolbar ", "toolbar menu "));
}

TEST_F(ConnectTest, LoadsTheSplashFormFirstAndTheProgressWindowBeforeTheToolbar) {
  EXPECT_THAT(CallsTo({"FormHost.Load", "FormHost.Show", "SettingsArea.GetSetting",
                       "VBE.AddCommandBar", "MessageLoop.DoEvents", "NativeWindows.SetWindowPos"}),
              ElementsAre("FormHost.Load", "SettingsArea.GetSetting", "NativeWindows.SetWindowPos",
                          "FormHost.Show", "FormHost.Load", "VBE.AddCommandBar",
                          "SettingsArea.GetSetting", "MessageLoop.DoEvents"));
  EXPECT_THAT(LoadedForms(), ElementsAre("frmSplash", "frmInfo"));
}

TEST_F(ConnectTest, TellsNothingWhenAllGoesWell) {
  ConnectIt();
  Disconnect();
  EXPECT_THAT(memory.dialogs.Messages(), IsEmpty());
}

// Failures of the connection itself.

TEST_F(ConnectTest, TellsTheUserWhenTheSplashFormCannotBeLoadedAndBuildsNothing) {
  const auto before = AllBars(memory.vbe.commandBars);
  ConnectIt(RaisingAt("FormHost.Load", 1));
  EXPECT_THAT(memory.dialogs.Messages(), ElementsAre(kNotConnected));
  EXPECT_EQ(AllBars(memory.vbe.commandBars), before);
  EXPECT_TRUE(connect.IsConnected());
}

TEST_F(ConnectTest, TellsTheUserWhenTheSettingsCannotBeRead) {
  ConnectIt(RaisingAt("SettingsArea.GetSetting", 1));
  EXPECT_THAT(memory.dialogs.Messages(), ElementsAre(kNotConnected));
  EXPECT_EQ(Toolbar(), nullptr);
}

TEST_F(ConnectTest, TellsTheUserWhenTheProgressWindowCannotBeLoaded) {
  ConnectIt(RaisingAt("FormHost.Load", 2));
  EXPECT_THAT(memory.dialogs.Messages(), ElementsAre(kNotConnected));
  EXPECT_EQ(Toolbar(), nullptr);
}

TEST_F(ConnectTest, AFailureBetweenTheBuildingsLeavesWhatWasBuilt) {
  ConnectIt(RaisingAt("MessageLoop.DoEvents", 1));
  EXPECT_THAT(memory.dialogs.Messages(), ElementsAre(kNotConnected));
  EXPECT_NE(Toolbar(), nullptr);
  EXPECT_THAT(AddInsMenu().All(), SizeIs(2));
  Disconnect();
  EXPECT_EQ(Toolbar(), nullptr);
}

TEST_F(ConnectTest, AFailureOfABuildingIsNoFailureOfTheConnection) {
  ConnectIt(RaisingAt("VBE.AddCommandBar", 1));
  EXPECT_THAT(memory.dialogs.Messages(), AllOf(SizeIs(1), Not(Contains(kNotConnected))));
}

TEST_F(ConnectTest, AFormThatCannotBePutOnTopIsShownAllTheSame) {
  ConnectIt(RaisingAlways({"NativeWindows.SetWindowPos"}));
  EXPECT_TRUE(IsVisible("frmSplash"));
  EXPECT_THAT(memory.dialogs.Messages(), IsEmpty());
}

// Disconnection.

TEST_F(ConnectTest, UnloadsTheFormsInTheirOrder) {
  ConnectIt();
  ShowAllForms();
  ASSERT_THAT(LoadedForms(),
              ElementsAre("frmSplash", "frmInfo", "frmMsgBox", "frmCode", "frmSetup"));
  memory.formHost.events.clear();
  Disconnect();
  EXPECT_THAT(memory.formHost.events,
              ElementsAre("unload frmInfo", "unload frmSetup", "unload frmCode", "unload frmMsgBox",
                          "unload frmSplash"));
  EXPECT_THAT(LoadedForms(), IsEmpty());
}

TEST_F(ConnectTest, LoadsNoFormJustToUnloadIt) {
  ConnectIt();
  memory.formHost.events.clear();
  Disconnect();
  EXPECT_THAT(memory.formHost.events, ElementsAre("unload frmInfo", "unload frmSplash"));
}

TEST_F(ConnectTest, ClosesAllHelpAtTheEnd) {
  ConnectIt();
  EXPECT_THAT(memory.helpViewer.requests, IsEmpty());
  Disconnect();
  EXPECT_THAT(memory.helpViewer.requests,
              ElementsAre(HelpRequest{"C:\\Program Files\\Brimwork\\Brimwork.chm", 18, 0}));
}

TEST_F(ConnectTest, RemovesTheToolbarThenTheMenuThenThePopupsThenTheForms) {
  ConnectIt(Fault{});
  std::vector<std::string> order;
  const std::size_t first = faulty->Operations().size();
  memory.formHost.onUnload = [&] {
    const bool isBehind = AddInsMenu().All().size() == 2 && !Toolbar();
    const char* const seen = isBehind ? "forms behind the entries" : "forms too early";
    if (order.empty() || order.back() != seen) order.push_back(seen);
  };
  Disconnect();
  for (std::size_t i = first; i < faulty->Operations().size(); ++i) {
    const std::string called(faulty->Operations()[i]);
    if (!called.ends_with("Delete") && called != "SettingsArea.SaveSetting" &&
        called != "HelpViewer.HtmlHelp") {
      continue;
    }
    if (order.back() != called) order.push_back(called);
  }
  // The place is saved, the toolbar's controls go, then the toolbar, then the other controls.
  EXPECT_THAT(order, ElementsAre("forms behind the entries", "SettingsArea.SaveSetting",
                                 "CommandBarControl.Delete", "CommandBar.Delete",
                                 "CommandBarControl.Delete", "HelpViewer.HtmlHelp"));
}

TEST_F(ConnectTest, DisconnectionIgnoresErrorsStepByStep) {
  for (const char* operation : {"HelpViewer.HtmlHelp", "App.Path", "SettingsArea.SaveSetting",
                                "VBE.CommandBarOfName", "CommandBar.Position"}) {
    ConnectIt();
    Disconnect();
    const auto clean = AllBars(memory.vbe.commandBars);
    ConnectIt(Fault{Fault::Kind::kRaises, [&](int, std::string_view called) {
                      return isDisconnecting && called == operation;
                    }});
    isDisconnecting = true;
    Disconnect();
    isDisconnecting = false;
    EXPECT_EQ(AllBars(memory.vbe.commandBars), clean) << operation;
    EXPECT_THAT(LoadedForms(), IsEmpty()) << operation;
    EXPECT_FALSE(connect.IsConnected()) << operation;
  }
  EXPECT_THAT(memory.dialogs.Messages(), IsEmpty());
}

TEST_F(ConnectTest, AFormThatFailsToUnloadDoesNotKeepTheOthers) {
  ConnectIt(RaisingAlways({"SettingsArea.SaveSetting", "Dialogs.MsgBox"}));
  ShowAllForms();
  Disconnect();
  EXPECT_THAT(LoadedForms(), IsEmpty());
  EXPECT_THAT(memory.helpViewer.requests, SizeIs(1));
}

TEST_F(ConnectTest, DisconnectionWithoutAConnectionIsHarmless) {
  Disconnect();
  ConnectIt();
  Disconnect();
  Disconnect();
  EXPECT_THAT(memory.helpViewer.requests, SizeIs(1));
  EXPECT_FALSE(connect.IsConnected());
}

TEST_F(ConnectTest, ADisconnectionWhileMessagesRunEndsTheConnection) {
  const auto before = AllBars(memory.vbe.commandBars);
  for (int atRun = 1; atRun <= 2; ++atRun) {
    int runs = 0;
    memory.messageLoop.onDoEvents = [&] {
      if (++runs == atRun) Disconnect();
    };
    ConnectIt();
    EXPECT_FALSE(connect.IsConnected()) << atRun;
    EXPECT_EQ(AllBars(memory.vbe.commandBars), before) << atRun;
  }
  EXPECT_THAT(memory.dialogs.Messages(), IsEmpty());
}

TEST_F(ConnectTest, EachConnectionStartsWithFreshForms) {
  ConnectIt();
  ShowAllForms();
  Disconnect();
  ConnectIt();
  EXPECT_THAT(LoadedForms(), ElementsAre("frmSplash", "frmInfo"));
}

}  // namespace connect_test
}  // namespace brimwork
