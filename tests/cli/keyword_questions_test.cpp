#include "cli/keyword_questions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cli/setup_dialogs.h"
#include "environment/text.h"
#include "memory/memory_environment.h"
#include "settings/setting_defaults.h"
#include "settings/setting_keys.h"
#include "settings/settings.h"
#include "support/typed_answers.h"

namespace brimwork {
namespace keyword_questions_test {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;

struct KeywordQuestionsTest : testing::Test {
  /// The list behind these answers, of which Enter is the last.
  std::vector<std::string> Answer(std::deque<std::string> answers, std::string_view stored) {
    SaveSetting(parts, setting::kKeyWordList, stored);
    user.lines = std::move(answers);
    user.lines.push_back("");
    form.Show();
    form.tabOptions.Choose(3);
    KeywordQuestions(form, prompts).AskAll();
    return form.lstKeyWord.Items();
  }

  /// Shows the user's Enter keys as well, as a terminal does.
  TerminalPrompts Echoing() {
    UserTerminal terminal = user.Terminal();
    terminal.readLine = [this, readLine = terminal.readLine] {
      user.shown += '\n';
      return readLine();
    };
    return TerminalPrompts(terminal);
  }

  TypedAnswers user;
  TerminalPrompts prompts{user.Terminal()};
  SetupDialogs dialogs{prompts};
  MemoryEnvironment memory;
  Environment parts = memory.Parts({.dialogs = &dialogs});
  frmSetup form{parts};
};

TEST_F(KeywordQuestionsTest, StayOnEnter) {
  EXPECT_THAT(Answer({}, "Dim,Sub"), ElementsAre("Dim", "Sub"));
  EXPECT_EQ(user.shown,
            "Keywords that exports colour:\n  Dim Sub\n  2 keywords\n"
            "a WORD add, d WORD delete, l list, r reset, ? help, Enter to go on: ");
}

TEST_F(KeywordQuestionsTest, AreAddedAtTheEndAsTheyAreTyped) {
  EXPECT_THAT(Answer({"a Loop", "a  x ", "a Dim"}, "Dim"),
              ElementsAre("Dim", "Loop", " x ", "Dim"));
  EXPECT_THAT(user.shown, HasSubstr("  added \"Loop\", 2 keywords\n"));
}

TEST_F(KeywordQuestionsTest, AreDeletedInTheirOwnLetterCase) {
  EXPECT_THAT(Answer({"d sub", "d Sub"}, "Dim,Sub,Loop,Sub"), ElementsAre("Dim", "Loop"));
  EXPECT_THAT(user.shown, HasSubstr("  there is no keyword \"sub\", did you mean \"Sub\"?\n"));
  EXPECT_THAT(user.shown, HasSubstr("  deleted \"Sub\" each time, 2 keywords\n"));
}

TEST_F(KeywordQuestionsTest, KeepTheSecondOfTwoSideBySide) {
  EXPECT_THAT(Answer({"d Dim"}, "Dim,Dim,Sub"), ElementsAre("Dim", "Sub"));
  EXPECT_THAT(user.shown, HasSubstr("  deleted \"Dim\", 2 keywords\n"));
}

TEST_F(KeywordQuestionsTest, NeedAWordBehindTheLetter) {
  EXPECT_THAT(Answer({"a", "d", "a ", "d  "}, "Dim"), ElementsAre("Dim"));
  EXPECT_THAT(user.shown, HasSubstr("  write the word behind the letter, as in \"a Dim\"\n"));
  EXPECT_THAT(user.shown, Not(HasSubstr("added")));
}

TEST_F(KeywordQuestionsTest, AreListedAnew) {
  Answer({"a Loop", "l"}, "Dim");
  EXPECT_THAT(user.shown, HasSubstr("  Dim Loop\n  2 keywords\n"));
}

TEST_F(KeywordQuestionsTest, AreResetWhenTheUserIsSure) {
  EXPECT_EQ(Answer({"r", "y"}, "Dim").size(), Split(kBuiltInKeyWordList, ",").size());
  EXPECT_THAT(user.shown, HasSubstr("  This will reset your current Key Word List\n"
                                    "  Are you sure you want to do this (y/n, Enter is n): "));
}

TEST_F(KeywordQuestionsTest, AreResetAsOftenAsTheUserWants) {
  EXPECT_GT(Answer({"r", "n", "r", "y", "d Dim", "r", "y"}, "Dim").size(), 1u);
  EXPECT_EQ(form.lstKeyWord.Items().size(), Split(kBuiltInKeyWordList, ",").size());
}

TEST_F(KeywordQuestionsTest, StayWhenTheUserIsNotSure) {
  EXPECT_THAT(Answer({"r", ""}, "Dim"), ElementsAre("Dim"));
  EXPECT_THAT(Answer({"r", "n"}, "Dim"), ElementsAre("Dim"));
}

TEST_F(KeywordQuestionsTest, AreExplained) {
  Answer({"?", "x"}, "Dim");
  EXPECT_THAT(user.shown, HasSubstr("  a WORD   add WORD at the end"));
  EXPECT_THAT(user.shown, HasSubstr("  there is no answer \"x\" (? for help)\n"));
}

TEST_F(KeywordQuestionsTest, StayStoredWhenTheListIsEmpty) {
  EXPECT_THAT(Answer({"d Dim"}, "Dim"), IsEmpty());
  EXPECT_THAT(user.shown, HasSubstr("  an empty list leaves the stored one as it is\n"));
  form.cmdExit.Click();
  EXPECT_EQ(GetSetting(parts, setting::kKeyWordList, ""), "Dim");
}

TEST_F(KeywordQuestionsTest, EndWithTheInputInTheMiddleOfAQuestion) {
  form.Show();
  form.tabOptions.Choose(3);
  user.lines = {"r"};
  EXPECT_THROW(KeywordQuestions(form, prompts).AskAll(), AnswersEnded);
}

TEST_F(KeywordQuestionsTest, AreShownIn80Columns) {
  user.lines = {"?", "a " + std::string(200, 'x'), "d " + std::string(200, 'y'), ""};
  form.Show();
  form.tabOptions.Choose(3);
  const TerminalPrompts echoing = Echoing();
  KeywordQuestions(form, echoing).AskAll();
  for (const std::string_view line : SplitLines(user.shown)) EXPECT_LE(line.size(), 80u) << line;
}

}  // namespace keyword_questions_test
}  // namespace brimwork
