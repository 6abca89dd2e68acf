// The splash form in the bench: how it comes and goes at start, and how it stays as the about box.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "core/frmSplash_layout.h"
#include "core/modMiscellaneousCode.h"
#include "support/temporary_folder.h"
#include "support/windows/test_browser.h"
#include "support/windows/user.h"
#include "support/windows/waiting.h"
#include "windows/desktop/registry_settings_area.h"
#include "windows/end_to_end/bench_suite.h"
#include "windows/end_to_end/form_use.h"
#include "windows/end_to_end/window_watch.h"

namespace brimwork {
namespace splash_form_test {

using ::testing::IsEmpty;

constexpr int kAbout = 63;
constexpr const char* kSplash = "About Brimwork";
constexpr const char* kSetup = "Brimwork Setup";

std::string FirstRun() {
  return windows::RegistrySettingsArea().GetSetting("Brimwork", "Settings", "FirstRun", "True");
}

TEST(SplashFormAtStart, IsShownForASecond) {
  const RegisteredLibrary library;
  SetAddInSetting("SplashScreen", "True");
  SetAddInSetting("FirstRun", "False");
  const WindowWatch splash(L"About Brimwork");
  const WindowWatch setup(L"Brimwork Setup");
  RunningBench bench;
  EXPECT_TRUE(WaitUntil([&] { return splash.WasShown() && !splash.IsShown(); }));
  EXPECT_GE(splash.Milliseconds(), 800u);
  EXPECT_EQ(splash.TimesShown(), 1);
  EXPECT_EQ(bench.End()["connections"][0]["heldReferences"], 0);
  EXPECT_FALSE(setup.WasShown());
}

class SplashForm : public BenchSuite {
 protected:
  void SetUp() override {
    ForgetAddInSettings();
    SetAddInSetting("SplashScreen", "True");
    SetCursorPos(0, 0);  // where no tool tip comes
  }
  void Reconnect() {
    Bench().Connect(false);
    Bench().Connect(true);
  }
  void OpenAbout() { form = OpenForm(Bench(), kAbout, kSplash); }

  HWND form = nullptr;
};

TEST_F(SplashForm, IsFollowedByTheSetupDialogOnTheFirstRun) {
  Reconnect();
  const HWND setup = WaitForKeyboardIn(Bench(), kSetup);
  EXPECT_EQ(FormsIn(Bench()), std::vector<HWND>{setup});
  EXPECT_EQ(FirstRun(), "True");
  PressKey(VK_ESCAPE);
  EXPECT_TRUE(Bench().WaitUntilGone(setup));
  EXPECT_EQ(FirstRun(), "False");
}

TEST_F(SplashForm, IsNotShownWhereTheUserDoesNotWantIt) {
  SetAddInSetting("SplashScreen", "False");
  const WindowWatch splash(L"About Brimwork");
  Reconnect();
  EXPECT_THAT(FormsIn(Bench()), IsEmpty());
  EXPECT_FALSE(splash.WasShown());
}

TEST_F(SplashForm, LeavesNothingBehindWhenTheConnectionEndsMeanwhile) {
  const WindowWatch setup(L"Brimwork Setup");
  Reconnect();
  Bench().Connect(false);
  EXPECT_THAT(FormsIn(Bench()), IsEmpty());
  constexpr DWORD kLongerThanTheTimer = 1300;
  Sleep(kLongerThanTheTimer);
  EXPECT_FALSE(setup.WasShown());
  SetAddInSetting("SplashScreen", "False");
  Bench().Connect(true);
}

TEST_F(SplashForm, StaysAsTheAboutBoxUntilTheUserClosesIt) {
  OpenAbout();
  constexpr DWORD kLongerThanTheTimer = 1300;
  Sleep(kLongerThanTheTimer);
  EXPECT_TRUE(IsWindowVisible(form));
  PressKey(VK_RETURN);
  EXPECT_TRUE(Bench().WaitUntilGone(form));
  EXPECT_THAT(FormsIn(Bench()), IsEmpty());
}

TEST_F(SplashForm, IsClosedByEscapeOrAClickOnItsPicture) {
  OpenAbout();
  PressKey(VK_ESCAPE);
  EXPECT_TRUE(Bench().WaitUntilGone(form));
  OpenAbout();
  RECT place{};
  GetWindowRect(form, &place);
  ClickAt({(place.left + place.right) / 2, place.top + 60});
  EXPECT_TRUE(Bench().WaitUntilGone(form));
}

/// The middle of the label that leads to the web site, on the screen.
POINT WebSiteLabel(HWND form) {
  const auto controls = SplashLayout().controls;
  const auto label = std::ranges::find(controls, "lblWebSite", &ControlLayout::name);
  POINT place = {label->place.left + 20, label->place.top + label->place.height / 2};
  ClientToScreen(form, &place);
  return place;
}

TEST_F(SplashForm, LeadsToTheWebSite) {
  const TemporaryFolder folder;
  const auto file = folder / "address.txt";
  const TestBrowser browser(file);
  OpenAbout();
  ClickAt(WebSiteLabel(form));
  const std::string address = std::string(kWebSiteAddress) + "\r\n";
  EXPECT_TRUE(
      WaitUntil([&] { return std::filesystem::exists(file) && ReadBytes(file) == address; }));
  GiveKeyboardTo(form);
  PressKey(VK_ESCAPE);
  EXPECT_TRUE(Bench().WaitUntilGone(form));
}

}  // namespace splash_form_test
}  // namespace brimwork
