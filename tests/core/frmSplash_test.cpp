// The splash form at start and as the about box.
#include "core/frmSplash.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "memory/memory_environment.h"
#include "settings/setting_keys.h"
#include "settings/settings.h"
#include "support/form_checks.h"

namespace brimwork {
namespace frmSplash_test {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::MatchesRegex;

struct Splash : testing::Test {
  /// Shows the form as the start does.
  void Start() {
    form.Show();
    form.Timer1.Enabled = true;
  }

  void StoreFirstRun(std::string_view value) { SaveSetting(parts, setting::kFirstRun, value); }

  MemoryEnvironment memory;
  Environment parts = memory.Parts();
  std::vector<std::string> done;
  frmSplash form{
      parts,
      {.showSetup = [this] { done.push_back(form.IsLoaded() ? "setup over the splash" : "setup"); },
       .openWebSite = [this] { done.push_back("web site"); }}};
};

TEST_F(Splash, LeavesAfterASecondAndShowsTheSetupDialogOnTheFirstRun) {
  Start();
  memory.formHost.Elapse(999);
  EXPECT_TRUE(form.Visible());
  EXPECT_EQ(memory.messageLoop.Count(), 0);
  memory.formHost.Elapse(1);
  EXPECT_FALSE(form.IsLoaded());
  EXPECT_THAT(done, ElementsAre("setup"));
  EXPECT_EQ(memory.messageLoop.Count(), 1);
  memory.formHost.Elapse(5000);
  EXPECT_THAT(done, ElementsAre("setup"));
}

TEST_F(Splash, ShowsTheSetupDialogOnlyForTheVeryTextTrue) {
  for (const char* value : {"False", "", "true", "1"}) {
    StoreFirstRun(value);
    Start();
    memory.formHost.Elapse(1000);
    EXPECT_FALSE(form.IsLoaded()) << value;
    EXPECT_THAT(done, IsEmpty()) << value;
  }
  StoreFirstRun("True");
  Start();
  memory.formHost.Elapse(1000);
  EXPECT_THAT(done, ElementsAre("setup"));
}

TEST_F(Splash, StaysAsTheAboutBox) {
  form.Show();
  EXPECT_FALSE(form.Timer1.Enabled);
  EXPECT_EQ(form.Timer1.Interval, 1000);
  memory.formHost.Elapse(10'000);
  EXPECT_TRUE(form.Visible());
  EXPECT_THAT(done, IsEmpty());
}

TEST_F(Splash, StaysWhenItIsShownAgainAfterTheStart) {
  Start();
  memory.formHost.Elapse(1000);
  form.Show();
  memory.formHost.Elapse(10'000);
  EXPECT_TRUE(form.Visible());
}

TEST_F(Splash, ClosesOnEscapeEnterAndAClickAnywhere) {
  const std::function<void()> kWays[] = {
      [this] { form.Press(Key::kEscape); }, [this] { form.Press(Key::kEnter); },
      [this] { form.cmdClose.Click(); },    [this] { form.picContainer.Click(); },
      [this] { form.picLogo.Click(); },     [this] { form.lblVersion.Click(); },
      [this] { form.lblQuote.Click(); },    [this] { form.lblNotice.Click(); }};
  for (const auto& close : kWays) {
    form.Show();
    close();
    EXPECT_FALSE(form.IsLoaded());
  }
  EXPECT_THAT(done, IsEmpty());
}

TEST_F(Splash, SentAwayAtStartStillBringsTheSetupDialog) {
  Start();
  form.Press(Key::kEscape);
  EXPECT_FALSE(form.IsLoaded());
  EXPECT_THAT(done, ElementsAre("setup"));
  memory.formHost.Elapse(5000);
  EXPECT_THAT(done, ElementsAre("setup"));
}

TEST_F(Splash, BringsNothingWhenTheAddInUnloadsIt) {
  Start();
  form.Unload();
  memory.formHost.Elapse(5000);
  EXPECT_THAT(done, IsEmpty());
}

TEST_F(Splash, OpensTheWebSiteAndStays) {
  form.Show();
  form.lblWebSite.Click();
  EXPECT_THAT(done, ElementsAre("web site"));
  EXPECT_TRUE(form.Visible());
}

TEST_F(Splash, TellsTheVersion) {
  form.Load();
  EXPECT_EQ(form.lblVersion.Caption, "Version " BRIMWORK_VERSION);
  EXPECT_EQ(form.picLogo.Picture, "splash/logo");
}

TEST_F(Splash, HasRoomForItsTexts) { EXPECT_THAT(LayoutFaults(form), IsEmpty()); }

}  // namespace frmSplash_test
}  // namespace brimwork
