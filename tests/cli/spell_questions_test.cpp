#include "cli/spell_questions.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "spelling/user_words.h"
#include "support/small_dictionary.h"
#include "support/typed_answers.h"

namespace brimwork {
namespace spell_questions_test {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Optional;
using testing::SizeIs;

struct SpellQuestionsTest : testing::Test {
  std::optional<std::string> Ask(std::deque<std::string> answers, const std::string& word = "teh") {
    user.lines = std::move(answers);
    MisspelledWord shown;
    shown.path = "a.bas";
    shown.line = shown.column = 1;
    shown.written = shown.word = word;
    shown.encoding = "WINDOWS-1252";
    return questions.Ask(shown);
  }

  bool IsWrong(std::string_view word) { return !session.Misspellings(word).empty(); }

  static std::vector<Dictionary> Dictionaries(const TemporaryFolder& folder) {
    std::vector<Dictionary> dictionaries;
    dictionaries.emplace_back(WriteDictionary(folder.Path(), "small", {"the"}));
    return dictionaries;
  }

  TemporaryFolder folder;
  SpellingSession session{Dictionaries(folder), folder / "words.txt"};
  TypedAnswers user;
  SpellQuestions questions{session, user.Terminal()};
};

TEST_F(SpellQuestionsTest, TakeASuggestionByItsNumber) {
  EXPECT_THAT(Ask({"1"}), Optional(std::string("the")));
  EXPECT_THAT(user.shown, HasSubstr("a.bas:1:1: \"teh\""));
  EXPECT_THAT(user.shown, HasSubstr("  1 the\n1, r TEXT"));
}

TEST_F(SpellQuestionsTest, TakeTheUsersOwnText) {
  EXPECT_THAT(Ask({"r them all"}), Optional(std::string("them all")));
  EXPECT_TRUE(IsWrong("teh"));
}

TEST_F(SpellQuestionsTest, RememberATextForEveryPlace) {
  EXPECT_THAT(Ask({"R 1"}), Optional(std::string("the")));
  EXPECT_THAT(session.Misspellings("teh").at(0).replacement, Optional(std::string("the")));
}

TEST_F(SpellQuestionsTest, LeaveAWordHere) {
  EXPECT_EQ(Ask({"i"}), std::nullopt);
  EXPECT_TRUE(IsWrong("teh"));
}

TEST_F(SpellQuestionsTest, LeaveAWordEverywhere) {
  EXPECT_EQ(Ask({"I"}), std::nullopt);
  EXPECT_FALSE(IsWrong("teh"));
  EXPECT_THAT(ReadUserWords(folder / "words.txt"), IsEmpty());
}

TEST_F(SpellQuestionsTest, AddAWordToTheUsersOwn) {
  EXPECT_EQ(Ask({"a"}), std::nullopt);
  EXPECT_FALSE(IsWrong("teh"));
  EXPECT_THAT(ReadUserWords(folder / "words.txt"), ElementsAre("teh"));
}

TEST_F(SpellQuestionsTest, TellWhenAWordCannotBeAddedToTheFile) {
  std::filesystem::create_directory(folder / "words.txt.lock");
  EXPECT_EQ(Ask({"a"}), std::nullopt);
  EXPECT_THAT(user.shown, HasSubstr("this run only"));
  EXPECT_FALSE(IsWrong("teh"));
}

TEST_F(SpellQuestionsTest, AskAgainAfterAWrongAnswer) {
  EXPECT_THAT(Ask({"", "7", "x", "r", "1"}), Optional(std::string("the")));
  EXPECT_THAT(user.shown, HasSubstr("there is no answer \"7\""));
  EXPECT_THAT(user.lines, IsEmpty());
}

TEST_F(SpellQuestionsTest, AskAgainAfterATextThatCannotStandThere) {
  EXPECT_THAT(Ask({"r a\"b", "r привет", "R the _", "1"}), Optional(std::string("the")));
  EXPECT_THAT(user.shown, HasSubstr("quotes"));
  EXPECT_THAT(user.shown, HasSubstr("WINDOWS-1252"));
  EXPECT_EQ(session.Misspellings("teh").at(0).replacement, std::nullopt);
}

TEST_F(SpellQuestionsTest, ExplainTheAnswers) {
  EXPECT_EQ(Ask({"?", "i"}), std::nullopt);
  EXPECT_THAT(user.shown, HasSubstr("stop asking"));
}

TEST_F(SpellQuestionsTest, StopWhenTheUserSaysSo) {
  EXPECT_FALSE(questions.HasStopped());
  EXPECT_EQ(Ask({"s"}), std::nullopt);
  EXPECT_TRUE(questions.HasStopped());
  const std::string shown = user.shown;
  EXPECT_EQ(Ask({"1"}), std::nullopt);
  EXPECT_EQ(user.shown, shown);
  EXPECT_THAT(user.lines, SizeIs(1));
}

TEST_F(SpellQuestionsTest, StopAtTheEndOfTheInput) {
  EXPECT_EQ(Ask({}), std::nullopt);
  EXPECT_TRUE(questions.HasStopped());
  EXPECT_TRUE(user.shown.ends_with("\n"));
}

TEST_F(SpellQuestionsTest, OfferNoNumberWithoutSuggestions) {
  EXPECT_EQ(Ask({"1", "i"}, "qqqqqq"), std::nullopt);
  EXPECT_THAT(user.shown, HasSubstr("no suggestions\nr TEXT"));
}

}  // namespace spell_questions_test
}  // namespace brimwork
