// The setup dialog in the bench, used by keyboard: what is typed and ticked there is stored.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "settings/setting_defaults.h"
#include "support/windows/user.h"
#include "support/windows/waiting.h"
#include "windows/desktop/registry_settings_area.h"
#include "windows/end_to_end/bench_suite.h"
#include "windows/end_to_end/bench_windows.h"
#include "windows/end_to_end/form_use.h"

namespace brimwork {
namespace setup_form_test {

using ::testing::EndsWith;
using ::testing::HasSubstr;
using ::testing::Not;

constexpr int kConfigure = 62;
constexpr const char* kTitle = "Brimwork Setup";
constexpr const char* kUnset = "not stored";

std::string Stored(const std::string& key) {
  return windows::RegistrySettingsArea().GetSetting("Brimwork", "Settings", key, kUnset);
}

void ExpectTheChangesToBeStored() {
  EXPECT_EQ(Stored("ErrorHandling"), "Debug.Print Err.Number");
  EXPECT_EQ(Stored("Header"), "' Größe und Maß");
  EXPECT_EQ(Stored("AdaptedHeader"), "' adapted\r\n' twice");
  EXPECT_THAT(Stored("KeyWordList"), EndsWith(",With,Write,Widget"));
  EXPECT_THAT(Stored("KeyWordList"), Not(HasSubstr(",Wend,")));
  EXPECT_EQ(Stored("Separator"), "'~~~~");
  EXPECT_EQ(Stored("QuickExportPath"), "C:\\Exports");
  EXPECT_EQ(Stored("AutoLoad"), "True");
  EXPECT_EQ(Stored("SplashScreen"), "True");
  EXPECT_EQ(Stored("CleanUpCodeOptions"), "Error,Indent,LineNumber");
  EXPECT_EQ(Stored("FirstRun"), "False");
}

class SetupInTheBench : public BenchSuite {
 protected:
  void SetUp() override {
    ForgetAddInSettings();
    SetAddInSetting("SplashScreen", "False");
    Open();
  }
  void TearDown() override {
    if (IsWindow(form)) SendMessageW(form, WM_CLOSE, 0, 0);
  }

  void Open() { form = OpenForm(Bench(), kConfigure, kTitle); }
  void CloseBy(WORD key, const std::vector<WORD>& held = {}) {
    PressKey(key, held);
    EXPECT_TRUE(Bench().WaitUntilGone(form));
  }
  HWND Part(const char* windowClass, const char* text = "") const {
    return ChildOf(form, windowClass, text);
  }
  bool IsTicked(const char* caption) const {
    return SendMessageW(Part("BUTTON", caption), BM_GETCHECK, 0, 0) == BST_CHECKED;
  }
  /// Waits until the page is in front that this control lies on.
  void WaitForPageOf(const char* windowClass, const char* text) const {
    EXPECT_TRUE(WaitUntil([&] { return Part(windowClass, text) != nullptr; })) << text;
  }

  void ChangeEveryPage() {
    PressAccessKey('L');
    TypeOver("Debug.Print Err.Number");
    PressAccessKey('H');
    PressAccessKey('S');
    PressKey(VK_TAB);
    TypeOver("' Größe und Maß");
    PressAccessKey('A');
    PressKey(VK_TAB);
    TypeOver("' adapted");
    PressKey(VK_RETURN);
    TypeText("' twice");
    PressAccessKey('K');
    PressAccessKey('D');
    TypeOver("Widget");
    PressAccessKey('A');
    PressAccessKey('T');
    TypeOver("Wend");
    PressAccessKey('L');
    PressAccessKey('O');
    PressAccessKey('S');
    TypeOver("'~~~~");
    PressAccessKey('U');
    TypeOver("C:\\Exports");
    PressAccessKey('N');
    PressAccessKey('W');
    PressAccessKey('I');
    PressAccessKey('P');
  }

  HWND form = nullptr;
};

TEST_F(SetupInTheBench, StoresWhatIsChangedOnEachPageAndShowsItAgain) {
  ChangeEveryPage();
  CloseBy(VK_ESCAPE);
  ExpectTheChangesToBeStored();
  Open();
  EXPECT_NE(Part("EDIT", "Debug.Print Err.Number"), nullptr);
  PressAccessKey('H');
  WaitForPageOf("EDIT", "' Größe und Maß");
  PressAccessKey('A');
  WaitForPageOf("EDIT", "' adapted\r\n' twice");
  PressAccessKey('K');
  WaitForPageOf("LISTBOX", "");
  const HWND list = Part("LISTBOX");
  const auto count = static_cast<int>(SendMessageW(list, LB_GETCOUNT, 0, 0));
  EXPECT_EQ(ItemOf(list, count - 1), "Widget");
  PressAccessKey('O');
  WaitForPageOf("EDIT", "'~~~~");
  EXPECT_NE(Part("EDIT", "C:\\Exports"), nullptr);
  EXPECT_TRUE(IsTicked("On"));
  EXPECT_FALSE(IsTicked("Off"));
  EXPECT_TRUE(IsTicked("Show the splash screen"));
  EXPECT_FALSE(IsTicked("Insert header"));
  EXPECT_TRUE(IsTicked("Indent code"));
  CloseBy(VK_ESCAPE);
}

TEST_F(SetupInTheBench, LeavesTheEditorUsableAndStoresTheDefaultsWhenNothingIsChanged) {
  EXPECT_TRUE(IsWindowEnabled(Bench().MainWindow()));
  EXPECT_EQ(GetWindow(form, GW_OWNER), Bench().MainWindow());
  const bench::Client pane = ShowText("modStock", "' one", 1, 1);
  EXPECT_EQ(TextOf(pane), "' one");
  EXPECT_TRUE(IsWindowVisible(form));
  GiveKeyboardTo(form);
  CloseBy('C', {VK_MENU});
  EXPECT_EQ(Stored("KeyWordList"), kBuiltInKeyWordList);
  EXPECT_EQ(Stored("CleanUpCodeOptions"), "Header,Error,Indent,Comment,LineNumber");
  EXPECT_EQ(Stored("AutoLoad"), "False");
  EXPECT_EQ(Stored("SplashScreen"), "False");
  EXPECT_EQ(Stored("FirstRun"), "False");
}

TEST_F(SetupInTheBench, GoesFromTabToTabByArrowKeys) {
  PressKeys(VK_RIGHT, 3);
  WaitForPageOf("BUTTON", "Browse...");
  PressKey(VK_LEFT);
  WaitForPageOf("BUTTON", "Reset List");
  CloseBy(VK_F4, {VK_MENU});
  EXPECT_EQ(Stored("FirstRun"), "False");
}

TEST_F(SetupInTheBench, AsksBeforeItResetsTheKeywords) {
  PressAccessKey('K');
  PressAccessKey('R');
  PressAccessKey('S');
  const HWND question = WaitForKeyboardIn(Bench(), "Reset List");
  EXPECT_EQ(GetWindow(question, GW_OWNER), form);
  EXPECT_THAT(MessageIn(question), HasSubstr("Are you sure you want to do this"));
  PressKey(VK_RETURN);
  EXPECT_TRUE(Bench().WaitUntilGone(question));
  WaitForKeyboardIn(Bench(), kTitle);
  CloseBy(VK_ESCAPE);
}

}  // namespace setup_form_test
}  // namespace brimwork
