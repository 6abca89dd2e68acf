// The setup dialog shows what is stored and stores what it shows.
#include "settings/frmSetup.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "environment/text.h"
#include "settings/setting_defaults.h"
#include "support/faulty_environment.h"
#include "support/form_checks.h"
#include "support/setup_fixture.h"

namespace brimwork {
namespace frmSetup_test {

using ::testing::ElementsAre;
using ::testing::HasSubstr;
using ::testing::IsEmpty;

std::vector<std::string> TickedOptions(frmSetup& form) {
  std::vector<std::string> tags;
  for (const CheckBox& box : form.chkCleanUp) {
    if (box.Value) tags.push_back(box.Tag);
  }
  return tags;
}

TEST(SetupDialog, HasASoundLayoutOnEachTab) {
  SetupFixture setup;
  EXPECT_THAT(LayoutFaults(setup.form), IsEmpty());
}

TEST(SetupDialog, ShowsDefaultsWhileNothingIsStored) {
  SetupFixture setup;
  setup.environment.shellFolders.SetPath(0, "C:\\Users\\Anne\\Desktop");
  setup.form.Load();
  EXPECT_EQ(setup.form.txtSeparator.Text, kSeparatorLine);
  EXPECT_EQ(setup.form.txtQuickExportPath.Text, "C:\\Users\\Anne\\Desktop");
  EXPECT_TRUE(setup.form.optAutoLoad(frmSetup::kAutoLoadOff).Value);
  EXPECT_FALSE(setup.form.optAutoLoad(frmSetup::kAutoLoadOn).Value);
  EXPECT_TRUE(setup.form.chkSplashScreen.Value);
  EXPECT_THAT(TickedOptions(setup.form),
              ElementsAre("Header", "Error", "Indent", "Comment", "LineNumber"));
}

TEST(SetupDialog, OffersDesignedTextsWhileNothingIsStored) {
  SetupFixture setup;
  setup.form.Load();
  EXPECT_EQ(setup.form.txtHeader(0).Text, kStandardHeaderTemplate);
  EXPECT_EQ(setup.form.txtHeader(1).Text, kAdaptedHeaderTemplate);
  EXPECT_EQ(setup.form.txtErrorHandling.Text, kOfferedErrorHandling);
}

TEST(SetupDialog, OffersAnErrorHandlerThatSaysWhereAndWhat) {
  EXPECT_THAT(std::string(kOfferedErrorHandling),
              AllOf(HasSubstr("CURRENTFULLPROCEDUREPATH"), HasSubstr("Err.Number"),
                    HasSubstr("Err.Description")));
}

TEST(SetupDialog, ShowsTheBuiltInKeywordsWhileNothingIsStored) {
  SetupFixture setup;
  setup.form.Load();
  const ListBox& list = setup.form.lstKeyWord;
  EXPECT_EQ(list.List(0), "-");
  EXPECT_EQ(list.List(1), "#Const");
  EXPECT_EQ(list.List(list.ListCount() - 1), "Write");
  EXPECT_EQ(std::count(list.Items().begin(), list.Items().end(), "Option"), 2);
  EXPECT_EQ(std::count(list.Items().begin(), list.Items().end(), "Input"), 2);
  EXPECT_EQ(static_cast<std::size_t>(list.ListCount()), Split(kBuiltInKeyWordList, ",").size());
}

TEST(SetupDialog, ShowsWhatIsStored) {
  SetupFixture setup;
  setup.Store(setting::kHeader, "' Mine");
  setup.Store(setting::kAdaptedHeader, "' Theirs\r\n' and mine");
  setup.Store(setting::kErrorHandling, "Resume Next");
  setup.Store(setting::kKeyWordList, "Dim,Sub,Dim");
  setup.Store(setting::kSeparator, "'---");
  setup.Store(setting::kQuickExportPath, "D:\\Export");
  setup.Store(setting::kAutoLoad, "True");
  setup.Store(setting::kSplashScreen, "False");
  setup.form.Load();
  EXPECT_EQ(setup.form.txtHeader(0).Text, "' Mine");
  EXPECT_EQ(setup.form.txtHeader(1).Text, "' Theirs\r\n' and mine");
  EXPECT_EQ(setup.form.txtErrorHandling.Text, "Resume Next");
  EXPECT_THAT(setup.form.lstKeyWord.Items(), ElementsAre("Dim", "Sub", "Dim"));
  EXPECT_EQ(setup.form.txtSeparator.Text, "'---");
  EXPECT_EQ(setup.form.txtQuickExportPath.Text, "D:\\Export");
  EXPECT_TRUE(setup.form.optAutoLoad(frmSetup::kAutoLoadOn).Value);
  EXPECT_FALSE(setup.form.chkSplashScreen.Value);
}

TEST(SetupDialog, KeepsTheDesignedTextsWhereEmptyOnesAreStored) {
  SetupFixture setup;
  setup.Store(setting::kHeader, "");
  setup.Store(setting::kAdaptedHeader, "");
  setup.Store(setting::kErrorHandling, "");
  setup.form.Load();
  EXPECT_EQ(setup.form.txtHeader(0).Text, kStandardHeaderTemplate);
  EXPECT_EQ(setup.form.txtHeader(1).Text, kAdaptedHeaderTemplate);
  EXPECT_EQ(setup.form.txtErrorHandling.Text, kOfferedErrorHandling);
}

TEST(SetupDialog, ShowsEmptySeparatorAndPathWhereEmptyOnesAreStored) {
  SetupFixture setup;
  setup.Store(setting::kSeparator, "");
  setup.Store(setting::kQuickExportPath, "");
  setup.form.Load();
  EXPECT_EQ(setup.form.txtSeparator.Text, "");
  EXPECT_EQ(setup.form.txtQuickExportPath.Text, "");
}

TEST(SetupDialog, ShowsNoKeywordForAnEmptyStoredList) {
  SetupFixture setup;
  setup.Store(setting::kKeyWordList, "");
  setup.form.Load();
  EXPECT_EQ(setup.form.lstKeyWord.ListCount(), 0);
}

TEST(SetupDialog, LeavesTheStartOptionAsDesignedForAValueThatIsNeither) {
  SetupFixture setup;
  setup.Store(setting::kAutoLoad, "true");
  setup.form.Load();
  EXPECT_TRUE(setup.form.optAutoLoad(frmSetup::kAutoLoadOff).Value);
}

TEST(SetupDialog, TicksTheCleanUpStepsWhoseTagsOccurInAnyLetterCase) {
  SetupFixture setup;
  setup.Store(setting::kCleanUpCodeOptions, "lineNUMBER,xINDENTx");
  setup.form.Load();
  EXPECT_THAT(TickedOptions(setup.form), ElementsAre("Indent", "LineNumber"));
}

TEST(SetupDialog, TicksNoCleanUpStepForAnEmptyStoredText) {
  SetupFixture setup;
  setup.Store(setting::kCleanUpCodeOptions, "");
  setup.form.Load();
  EXPECT_THAT(TickedOptions(setup.form), IsEmpty());
}

TEST(SetupDialog, StoresEveryKeyWhenItIsOpenedAndClosedUnchanged) {
  SetupFixture setup;
  setup.environment.shellFolders.SetPath(0, "C:\\Desktop");
  setup.form.Show();
  setup.form.Close();
  EXPECT_EQ(setup.Stored(setting::kHeader), std::string(kStandardHeaderTemplate));
  EXPECT_EQ(setup.Stored(setting::kAdaptedHeader), std::string(kAdaptedHeaderTemplate));
  EXPECT_EQ(setup.Stored(setting::kErrorHandling), std::string(kOfferedErrorHandling));
  EXPECT_EQ(setup.Stored(setting::kKeyWordList), std::string(kBuiltInKeyWordList));
  EXPECT_EQ(setup.Stored(setting::kSeparator), std::string(kSeparatorLine));
  EXPECT_EQ(setup.Stored(setting::kQuickExportPath), "C:\\Desktop");
  EXPECT_EQ(setup.Stored(setting::kAutoLoad), "False");
  EXPECT_EQ(setup.Stored(setting::kCleanUpCodeOptions), "Header,Error,Indent,Comment,LineNumber");
  EXPECT_EQ(setup.Stored(setting::kFirstRun), "False");
  EXPECT_EQ(setup.Stored(setting::kSplashScreen), "True");
}

TEST(SetupDialog, NeverStoresTheSpellChecksOwnSeparator) {
  SetupFixture setup;
  setup.form.Show();
  setup.form.Close();
  EXPECT_EQ(setup.Stored(setting::kSeperator), std::nullopt);
}

TEST(SetupDialog, StoresNothingBeforeItCloses) {
  SetupFixture setup;
  setup.OpenOther();
  Retype(setup.form.txtSeparator, "'***");
  EXPECT_EQ(setup.Stored(setting::kSeparator), std::nullopt);
  EXPECT_EQ(setup.Stored(setting::kFirstRun), std::nullopt);
}

TEST(SetupDialog, StoresWhatTheUserTyped) {
  SetupFixture setup;
  setup.OpenErrorHandling();
  Retype(setup.form.txtErrorHandling, "Stop\nResume");
  setup.OpenHeaders();
  Retype(setup.form.txtHeader(0), "' One\n' Two");
  setup.form.optHeader(1).Click();
  Retype(setup.form.txtHeader(1), "' Adapted");
  setup.OpenOther();
  Retype(setup.form.txtSeparator, "'***");
  Retype(setup.form.txtQuickExportPath, "E:\\Out");
  setup.form.cmdExit.Click();
  EXPECT_EQ(setup.Stored(setting::kErrorHandling), "Stop\r\nResume");
  EXPECT_EQ(setup.Stored(setting::kHeader), "' One\r\n' Two");
  EXPECT_EQ(setup.Stored(setting::kAdaptedHeader), "' Adapted");
  EXPECT_EQ(setup.Stored(setting::kSeparator), "'***");
  EXPECT_EQ(setup.Stored(setting::kQuickExportPath), "E:\\Out");
}

TEST(SetupDialog, StoresEmptyTextsAsTheyAre) {
  SetupFixture setup;
  setup.OpenErrorHandling();
  Retype(setup.form.txtErrorHandling, "");
  setup.OpenHeaders();
  Retype(setup.form.txtHeader(0), "");
  setup.OpenOther();
  Retype(setup.form.txtSeparator, "");
  setup.form.cmdExit.Click();
  EXPECT_EQ(setup.Stored(setting::kErrorHandling), "");
  EXPECT_EQ(setup.Stored(setting::kHeader), "");
  EXPECT_EQ(setup.Stored(setting::kSeparator), "");
}

TEST(SetupDialog, StoresTheOptionsThatTheUserClicked) {
  SetupFixture setup;
  setup.OpenOther();
  setup.form.optAutoLoad(frmSetup::kAutoLoadOn).Click();
  setup.form.chkSplashScreen.Click();
  setup.form.chkCleanUp(0).Click();
  setup.form.chkCleanUp(3).Click();
  setup.form.cmdExit.Click();
  EXPECT_EQ(setup.Stored(setting::kAutoLoad), "True");
  EXPECT_EQ(setup.Stored(setting::kSplashScreen), "False");
  EXPECT_EQ(setup.Stored(setting::kCleanUpCodeOptions), "Error,Indent,LineNumber");
}

TEST(SetupDialog, StoresAnEmptyTextWhenNoCleanUpStepIsTicked) {
  SetupFixture setup;
  setup.OpenOther();
  for (CheckBox& box : setup.form.chkCleanUp) box.Click();
  setup.form.cmdExit.Click();
  EXPECT_EQ(setup.Stored(setting::kCleanUpCodeOptions), "");
}

TEST(SetupDialog, StoresHoweverItIsClosed) {
  for (const auto close :
       {+[](frmSetup& form) { form.Close(); }, +[](frmSetup& form) { form.cmdExit.Click(); },
        +[](frmSetup& form) { form.Press(Key::kEscape); },
        +[](frmSetup& form) { form.PressAlt('c'); }, +[](frmSetup& form) { form.Unload(); }}) {
    SetupFixture setup;
    setup.form.Show();
    close(setup.form);
    EXPECT_EQ(setup.Stored(setting::kFirstRun), "False");
    EXPECT_FALSE(setup.form.IsLoaded());
  }
}

TEST(SetupDialog, ShowsAtItsNextOpeningWhatItStored) {
  SetupFixture setup;
  setup.OpenHeaders();
  Retype(setup.form.txtHeader(0), "' Mine");
  setup.form.cmdExit.Click();
  setup.form.Show();
  EXPECT_EQ(setup.form.txtHeader(0).Text, "' Mine");
  EXPECT_EQ(setup.form.tabOptions.SelectedItem, 1);
}

SettingsArea& Refusing(FaultyEnvironment& faulty) { return faulty.Parts().settingsArea; }

/// The setup dialog where these calls to the settings area fail.
struct FailingSetup {
  FailingSetup(std::string_view operation, int count) {
    hits = [operation, count, seen = 0](int, std::string_view called) mutable {
      return called == operation && ++seen <= count;
    };
  }

  SetupFixture setup;
  std::function<bool(int, std::string_view)> hits;
  FaultyEnvironment faulty{setup.parts, {.hits = [this](int call, std::string_view operation) {
                             return hits(call, operation);
                           }}};
  frmSetup form{setup.environment.Parts({.settingsArea = &Refusing(faulty)})};
};

TEST(SetupDialog, IsNotShownAndStoresNothingWhenTheSettingsCannotBeRead) {
  FailingSetup failing("SettingsArea.GetSetting", 1);
  EXPECT_THROW(failing.form.Show(), RunTimeError);
  EXPECT_FALSE(failing.form.IsLoaded());
  EXPECT_EQ(failing.setup.Stored(setting::kFirstRun), std::nullopt);
}

TEST(SetupDialog, ClosesStoresTheOthersAndTellsTheUserWhenASettingCannotBeStored) {
  FailingSetup failing("SettingsArea.SaveSetting", 2);
  failing.form.Show();
  failing.form.Close();
  EXPECT_FALSE(failing.form.IsLoaded());
  EXPECT_EQ(failing.setup.Stored(setting::kHeader), std::nullopt);
  EXPECT_EQ(failing.setup.Stored(setting::kFirstRun), "False");
  ASSERT_EQ(failing.setup.environment.dialogs.Messages().size(), 1u);
  const ShownMessage& message = failing.setup.environment.dialogs.Messages().front();
  EXPECT_EQ(message.title, "Error Encountered");
  EXPECT_THAT(message.prompt, HasSubstr("Could not store every setting: "));
}

}  // namespace frmSetup_test
}  // namespace brimwork
