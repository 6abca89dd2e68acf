// What the controls of the setup dialog do: the keyword list, the tabs, the headers, the path.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "environment/run_time_error.h"
#include "environment/text.h"
#include "settings/frmSetup.h"
#include "support/setup_fixture.h"

namespace brimwork {
namespace frmSetup_controls_test {

using ::testing::Contains;
using ::testing::ElementsAre;
using ::testing::Not;
using ::testing::SizeIs;

/// The dialog with its keyword tab in front and these words in the list.
struct KeyWordTab : SetupFixture {
  explicit KeyWordTab(std::string_view words) {
    Store(setting::kKeyWordList, words);
    OpenKeyWords();
  }

  void Delete(std::string_view word) {
    form.txtDelete.Type(word);
    form.cmdDelete.Click();
  }

  const std::vector<std::string>& Words() { return form.lstKeyWord.Items(); }
};

TEST(SetupKeywords, AreAddedAtTheEndAsTyped) {
  KeyWordTab tab("Dim,Sub");
  tab.form.txtAdd.Type(" dim ");
  tab.form.cmdAdd.Click();
  EXPECT_THAT(tab.Words(), ElementsAre("Dim", "Sub", " dim "));
  EXPECT_EQ(tab.form.txtAdd.Text, "");
}

TEST(SetupKeywords, AreAddedTwiceWhenTheUserWantsThat) {
  KeyWordTab tab("Dim,Sub");
  tab.form.txtAdd.Type("Dim");
  tab.form.cmdAdd.Click();
  EXPECT_THAT(tab.Words(), ElementsAre("Dim", "Sub", "Dim"));
}

TEST(SetupKeywords, LeaveTheFocusReadyForTheNextWord) {
  KeyWordTab tab("Dim");
  tab.form.txtAdd.Type("Sub");
  tab.form.cmdAdd.Click();
  EXPECT_EQ(tab.form.ActiveControl(), &tab.form.txtAdd);
  tab.Delete("Sub");
  EXPECT_EQ(tab.form.ActiveControl(), &tab.form.txtDelete);
}

TEST(SetupKeywords, AreStoredWithoutEmptyOnes) {
  KeyWordTab tab("Dim,,Sub,");
  EXPECT_THAT(tab.Words(), ElementsAre("Dim", "", "Sub", ""));
  tab.form.cmdExit.Click();
  EXPECT_EQ(tab.Stored(setting::kKeyWordList), "Dim,Sub");
}

TEST(SetupKeywords, StayStoredWhenTheListIsEmptied) {
  KeyWordTab tab("Dim");
  tab.Delete("Dim");
  EXPECT_EQ(tab.form.lstKeyWord.ListCount(), 0);
  tab.form.cmdExit.Click();
  EXPECT_EQ(tab.Stored(setting::kKeyWordList), "Dim");
}

TEST(SetupKeywords, AreDeletedInTheSameLetterCaseOnly) {
  KeyWordTab tab("Dim,dim,DIM,Dimension");
  tab.Delete("dim");
  EXPECT_THAT(tab.Words(), ElementsAre("Dim", "DIM", "Dimension"));
  EXPECT_EQ(tab.form.txtDelete.Text, "");
}

TEST(SetupKeywords, AreDeletedAsTypedWithTheirBlanks) {
  KeyWordTab tab("Dim, Dim");
  tab.Delete(" Dim");
  EXPECT_THAT(tab.Words(), ElementsAre("Dim"));
}

TEST(SetupKeywords, ThatAreNotInTheListDeleteNothing) {
  KeyWordTab tab("Dim,Sub");
  tab.Delete("Function");
  EXPECT_THAT(tab.Words(), ElementsAre("Dim", "Sub"));
  EXPECT_EQ(tab.form.txtDelete.Text, "");
}

TEST(SetupKeywords, LoseOnlyTheFirstOfTwoEqualOnesSideBySide) {
  KeyWordTab tab("Or,Option,Option,Open");
  tab.Delete("Option");
  EXPECT_THAT(tab.Words(), ElementsAre("Or", "Option", "Open"));
  tab.Delete("Option");
  EXPECT_THAT(tab.Words(), ElementsAre("Or", "Open"));
}

TEST(SetupKeywords, LoseEveryOtherOneOfARun) {
  KeyWordTab tab("A,A,A,A,A");
  tab.Delete("A");
  EXPECT_THAT(tab.Words(), ElementsAre("A", "A"));
}

TEST(SetupKeywords, LoseTheLastTwoOfTheListOneByOne) {
  KeyWordTab tab("B,A,A");
  tab.Delete("A");
  EXPECT_THAT(tab.Words(), ElementsAre("B", "A"));
}

TEST(SetupKeywords, OfTheBuiltInListAreDeletedOneByOneOnlyWhereTheyAreNeighbours) {
  SetupFixture setup;
  setup.OpenKeyWords();
  const auto count = [&](std::string_view word) {
    const auto& items = setup.form.lstKeyWord.Items();
    return std::count(items.begin(), items.end(), word);
  };
  setup.form.txtDelete.Type("Option");
  setup.form.cmdDelete.Click();
  EXPECT_EQ(count("Option"), 1);
  setup.form.txtDelete.Type("Option");
  setup.form.cmdDelete.Click();
  EXPECT_EQ(count("Option"), 0);
  setup.form.txtDelete.Type("Input");
  setup.form.cmdDelete.Click();
  EXPECT_EQ(count("Input"), 0);
}

void ExpectButtonFollowsBox(frmSetup& form, TextBox& box, CommandButton& button) {
  EXPECT_FALSE(button.Enabled);
  box.Type("  ");
  EXPECT_FALSE(button.Enabled);
  box.Type("x");
  EXPECT_TRUE(button.Enabled);
  box.Erase();
  EXPECT_FALSE(button.Enabled);
  box.Type("\t");
  EXPECT_TRUE(button.Enabled);
  button.Click();
  EXPECT_FALSE(button.Enabled);
  EXPECT_EQ(form.ActiveControl(), &box);
}

TEST(SetupKeywords, EnableEachButtonWhileItsBoxHoldsMoreThanBlanks) {
  KeyWordTab tab("Dim");
  ExpectButtonFollowsBox(tab.form, tab.form.txtAdd, tab.form.cmdAdd);
  ExpectButtonFollowsBox(tab.form, tab.form.txtDelete, tab.form.cmdDelete);
}

TEST(SetupKeywords, AreNotAddedByAButtonThatIsDisabled) {
  KeyWordTab tab("Dim");
  tab.form.txtAdd.Type("  ");
  tab.form.cmdAdd.Click();
  EXPECT_THAT(tab.Words(), ElementsAre("Dim"));
  EXPECT_EQ(tab.form.txtAdd.Text, "  ");
}

TEST(SetupReset, IsEnabledAndDisabledByEachClickOnTheSafetyBox) {
  KeyWordTab tab("Dim");
  EXPECT_FALSE(tab.form.cmdReset.Enabled);
  tab.form.chkEnable.Click();
  EXPECT_TRUE(tab.form.cmdReset.Enabled);
  tab.form.chkEnable.Click();
  EXPECT_FALSE(tab.form.cmdReset.Enabled);
}

TEST(SetupReset, FollowsTheButtonAndNotTheBox) {
  KeyWordTab tab("Dim");
  tab.form.cmdReset.Enabled = true;
  tab.form.chkEnable.Click();
  EXPECT_TRUE(tab.form.chkEnable.Value);
  EXPECT_FALSE(tab.form.cmdReset.Enabled);
}

TEST(SetupReset, AsksFirst) {
  KeyWordTab tab("Dim");
  tab.form.chkEnable.Click();
  tab.form.cmdReset.Click();
  EXPECT_THAT(tab.environment.dialogs.Messages(),
              ElementsAre(ShownMessage{"This will reset your current Key Word List\r\n"
                                       "Are you sure you want to do this",
                                       321, "Reset List"}));
}

TEST(SetupReset, PutsTheBuiltInListInThePlaceOfTheUsers) {
  KeyWordTab tab("Dim,Mine");
  tab.environment.dialogs.AnswerMessage(1);
  tab.form.chkEnable.Click();
  tab.form.cmdReset.Click();
  EXPECT_THAT(tab.Words(), SizeIs(Split(kBuiltInKeyWordList, ",").size()));
  EXPECT_EQ(tab.form.lstKeyWord.List(0), "-");
  EXPECT_THAT(tab.Words(), Not(Contains("Mine")));
}

TEST(SetupReset, LeavesTheListUntouchedOnCancel) {
  KeyWordTab tab("Dim,Mine");
  tab.environment.dialogs.AnswerMessage(2);
  tab.form.chkEnable.Click();
  tab.form.cmdReset.Click();
  EXPECT_THAT(tab.Words(), ElementsAre("Dim", "Mine"));
}

TEST(SetupReset, DoesNothingWhileItsButtonIsDisabled) {
  KeyWordTab tab("Dim");
  tab.form.cmdReset.Click();
  EXPECT_THAT(tab.environment.dialogs.Messages(), SizeIs(0));
  EXPECT_THAT(tab.Words(), ElementsAre("Dim"));
}

/// Its first message box cannot be shown.
class FailingQuestion : public MemoryDialogs {
 public:
  int MsgBox(std::string_view prompt, int style, std::string_view title) override {
    if (!std::exchange(hasFailed_, true)) {
      throw RunTimeError(error_number::kInvalidProcedureCall, "no box");
    }
    return MemoryDialogs::MsgBox(prompt, style, title);
  }

 private:
  bool hasFailed_ = false;
};

TEST(SetupReset, ReportsAnError) {
  MemoryEnvironment environment;
  FailingQuestion dialogs;
  frmSetup form(environment.Parts({.dialogs = &dialogs}));
  form.Show();
  form.tabOptions.Choose(3);
  const int count = form.lstKeyWord.ListCount();
  form.chkEnable.Click();
  form.cmdReset.Click();
  EXPECT_THAT(dialogs.Messages(),
              ElementsAre(ShownMessage{"Could not reset the key word list: no box", 16,
                                       "Error Encountered"}));
  EXPECT_EQ(form.lstKeyWord.ListCount(), count);
}

TEST(SetupTabs, ShowTheFrameOfTheChosenTabOnly) {
  SetupFixture setup;
  setup.form.Show();
  EXPECT_TRUE(setup.form.fraTabFrames(0).Visible);
  for (int tab = frmSetup::kTabCount; tab >= 1; --tab) {
    setup.form.tabOptions.Choose(tab);
    for (const Frame& frame : setup.form.fraTabFrames) {
      EXPECT_EQ(frame.Visible, frame.Index() == tab - 1) << "tab " << tab;
    }
  }
}

TEST(SetupTabs, SayWhatTheyHold) {
  SetupFixture setup;
  setup.form.Load();
  std::vector<std::string_view> toolTips;
  for (const TabLayout& tab : setup.form.tabOptions.Tabs()) toolTips.push_back(tab.toolTip);
  EXPECT_THAT(toolTips, ElementsAre("Error Handling Settings", "Header Settings",
                                    "KeyWord Settings", "Every Other Setting Available"));
}

TEST(SetupTabs, HoldTheControlsOfTheirSettings) {
  SetupFixture setup;
  setup.form.Load();
  EXPECT_EQ(setup.form.txtErrorHandling.Container(), &setup.form.fraTabFrames(0));
  EXPECT_EQ(setup.form.txtHeader(1).Container(), &setup.form.fraTabFrames(1));
  EXPECT_EQ(setup.form.lstKeyWord.Container(), &setup.form.fraTabFrames(2));
  EXPECT_EQ(setup.form.fraReset.Container(), &setup.form.fraTabFrames(2));
  EXPECT_EQ(setup.form.txtSeparator.Container(), &setup.form.fraTabFrames(3));
}

TEST(SetupHeaders, ShowOneBoxOfTheTwo) {
  SetupFixture setup;
  setup.OpenHeaders();
  EXPECT_TRUE(setup.form.txtHeader(0).Visible);
  EXPECT_FALSE(setup.form.txtHeader(1).Visible);
  setup.form.optHeader(1).Click();
  EXPECT_FALSE(setup.form.txtHeader(0).Visible);
  EXPECT_TRUE(setup.form.txtHeader(1).Visible);
  setup.form.optHeader(0).Click();
  EXPECT_TRUE(setup.form.txtHeader(0).Visible);
  EXPECT_FALSE(setup.form.txtHeader(1).Visible);
}

TEST(SetupHeaders, AreStoredBothWhicheverIsShown) {
  SetupFixture setup;
  setup.Store(setting::kHeader, "' Mine");
  setup.Store(setting::kAdaptedHeader, "' Theirs");
  setup.OpenHeaders();
  setup.form.optHeader(1).Click();
  setup.form.txtHeader(1).Type("x");
  setup.form.cmdExit.Click();
  EXPECT_EQ(setup.Stored(setting::kHeader), "' Mine");
  EXPECT_EQ(setup.Stored(setting::kAdaptedHeader), "x' Theirs");
}

TEST(SetupBrowse, PutsThePickedFolderIntoThePathBox) {
  SetupFixture setup;
  setup.environment.dialogs.PickFolder("D:\\Exports");
  setup.OpenOther();
  setup.form.cmdBrowse.Click();
  EXPECT_EQ(setup.form.txtQuickExportPath.Text, "D:\\Exports");
  ASSERT_THAT(setup.environment.dialogs.BrowseRequests(), SizeIs(1));
  const BrowseFolderRequest& request = setup.environment.dialogs.BrowseRequests().front();
  EXPECT_EQ(request.title,
            "Browse for where you would like the file created by Quick Export to be placed");
  EXPECT_EQ(request.owner, setup.form.hWnd());
  EXPECT_NE(request.owner, 0u);
}

TEST(SetupBrowse, EmptiesThePathBoxWhenTheUserCancels) {
  SetupFixture setup;
  setup.Store(setting::kQuickExportPath, "D:\\Exports");
  setup.OpenOther();
  setup.form.cmdBrowse.Click();
  EXPECT_EQ(setup.form.txtQuickExportPath.Text, "");
  setup.form.cmdExit.Click();
  EXPECT_EQ(setup.Stored(setting::kQuickExportPath), "");
}

}  // namespace frmSetup_controls_test
}  // namespace brimwork
