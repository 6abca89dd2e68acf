#include "spelling/spelling_session.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <utility>

#include "spelling/user_words.h"
#include "support/small_dictionary.h"

namespace brimwork {
namespace spelling_session_test {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Pair;

struct SpellingSessionTest : testing::Test {
  SpellingSession Session(const std::vector<std::string>& words) {
    std::vector<Dictionary> dictionaries;
    dictionaries.emplace_back(WriteDictionary(folder.Path(), "small", words));
    return SpellingSession(std::move(dictionaries), folder / "words.txt");
  }

  static std::vector<std::string> WrongIn(SpellingSession& session, std::string_view text) {
    std::vector<std::string> words;
    for (const Misspelling& wrong : session.Misspellings(text)) words.push_back(wrong.word);
    return words;
  }

  /// What stands in the text, and what is to stand there.
  static std::vector<std::pair<std::string, std::string>> ReplacedIn(SpellingSession& session,
                                                                     std::string_view text) {
    std::vector<std::pair<std::string, std::string>> replaced;
    for (const Misspelling& wrong : session.Misspellings(text)) {
      replaced.emplace_back(text.substr(wrong.offset, wrong.size), wrong.replacement.value_or("?"));
    }
    return replaced;
  }

  TemporaryFolder folder;
};

TEST_F(SpellingSessionTest, FindsTheWordsThatNoDictionaryHas) {
  SpellingSession session = Session({"the", "end"});
  EXPECT_THAT(session.Misspellings("The ende, teh end"),
              ElementsAre(Misspelling{4, 4, "ende", {}}, Misspelling{10, 3, "teh", {}}));
  EXPECT_THAT(session.Misspellings("the end"), IsEmpty());
}

TEST_F(SpellingSessionTest, TakesAWordForRightThatAnyDictionaryHas) {
  std::vector<Dictionary> dictionaries;
  dictionaries.emplace_back(WriteDictionary(folder.Path(), "one", {"house"}));
  dictionaries.emplace_back(WriteDictionary(folder.Path(), "two", {"Haus"}));
  SpellingSession session(std::move(dictionaries));
  EXPECT_THAT(WrongIn(session, "house Haus maison"), ElementsAre("maison"));
}

TEST_F(SpellingSessionTest, SuggestsFromAllDictionariesInTurn) {
  std::vector<Dictionary> dictionaries;
  dictionaries.emplace_back(WriteDictionary(folder.Path(), "one", {"house", "mouse"}));
  dictionaries.emplace_back(WriteDictionary(folder.Path(), "two", {"houz", "house"}));
  SpellingSession session(std::move(dictionaries));
  const std::vector<std::string> suggestions = session.Suggestions("houze");
  EXPECT_THAT(suggestions, Contains("house").Times(1));
  EXPECT_THAT(suggestions, Contains("houz"));
}

TEST_F(SpellingSessionTest, IgnoresAWordFromThenOn) {
  SpellingSession session = Session({"the"});
  EXPECT_THAT(WrongIn(session, "teh"), ElementsAre("teh"));
  session.IgnoreAll("teh");
  EXPECT_THAT(WrongIn(session, "teh Teh the"), IsEmpty());
}

TEST_F(SpellingSessionTest, ReplacesAWordFromThenOnInExactlyItsLetters) {
  SpellingSession session = Session({"the"});
  session.ReplaceAll("teh", "the");
  EXPECT_THAT(ReplacedIn(session, "teh Teh"), ElementsAre(Pair("teh", "the"), Pair("Teh", "?")));
}

TEST_F(SpellingSessionTest, ReplacesWordsThatAreRightOrNoProse) {
  SpellingSession session = Session({"colour"});
  session.ReplaceAll("colour", "color");
  session.ReplaceAll("SQL", "Sql");
  EXPECT_THAT(ReplacedIn(session, "colour SQL"),
              ElementsAre(Pair("colour", "color"), Pair("SQL", "Sql")));
}

TEST_F(SpellingSessionTest, ReplacesNothingInsideAPath) {
  SpellingSession session = Session({});
  session.ReplaceAll("teh", "the");
  EXPECT_THAT(ReplacedIn(session, "C:\\teh\\x.txt"), IsEmpty());
}

TEST_F(SpellingSessionTest, KnowsEveryWordWithoutDictionaries) {
  SpellingSession session;
  session.ReplaceAll("teh", "the");
  EXPECT_THAT(WrongIn(session, "teh wrod"), ElementsAre("teh"));
}

TEST_F(SpellingSessionTest, LooksAWordWithAnAccessKeyUpWithoutIt) {
  SpellingSession session = Session({"Exit", "File"});
  EXPECT_THAT(WrongIn(session, "E&xit &File"), IsEmpty());
  EXPECT_THAT(session.Misspellings("E&xti"), ElementsAre(Misspelling{0, 5, "Exti", {}}));
}

TEST_F(SpellingSessionTest, TakesTwoWordsWithAnAmpersandBetweenThemForRight) {
  SpellingSession session = Session({"black", "white", "eh"});
  EXPECT_THAT(WrongIn(session, "black&white"), IsEmpty());
  EXPECT_THAT(WrongIn(session, "T&eh"), ElementsAre("Teh"));
}

TEST_F(SpellingSessionTest, KeepsTheAccessKeyOfAReplacedWord) {
  SpellingSession session = Session({});
  session.ReplaceAll("Exti", "Exit");
  EXPECT_THAT(ReplacedIn(session, "E&xti"), ElementsAre(Pair("E&xti", "E&xit")));
}

TEST_F(SpellingSessionTest, LooksAtThePartsOfACompound) {
  SpellingSession session = Session({"well", "known"});
  EXPECT_THAT(WrongIn(session, "well-known"), IsEmpty());
  EXPECT_THAT(session.Misspellings("well-knwon"), ElementsAre(Misspelling{5, 5, "knwon", {}}));
}

TEST_F(SpellingSessionTest, TakesACompoundOfTheDictionaryForRight) {
  SpellingSession session = Session({"vis-a-vis"});
  EXPECT_THAT(WrongIn(session, "vis-a-vis"), IsEmpty());
}

TEST_F(SpellingSessionTest, ReplacesAPartOfACompoundOfTheDictionary) {
  SpellingSession session = Session({"vis-a-vis"});
  session.ReplaceAll("a", "an");
  EXPECT_THAT(ReplacedIn(session, "vis-a-vis"), ElementsAre(Pair("a", "an")));
}

TEST_F(SpellingSessionTest, LooksTypographicApostrophesUpAsPlainOnes) {
  SpellingSession session = Session({"don't"});
  EXPECT_THAT(WrongIn(session, "don’t don't"), IsEmpty());
}

TEST_F(SpellingSessionTest, TakesDecisionsOnWordsWithTypographicApostrophes) {
  SpellingSession session = Session({"the"});
  session.ReplaceAll("dont’t", "don't");
  session.IgnoreAll("isn’t");
  EXPECT_THAT(ReplacedIn(session, "dont’t dont't isn’t isn't"),
              ElementsAre(Pair("dont’t", "don’t"), Pair("dont't", "don't")));
}

TEST_F(SpellingSessionTest, KnowsTheUsersOwnWords) {
  AddUserWord(folder / "words.txt", "Vantrel");
  SpellingSession session = Session({"the"});
  EXPECT_THAT(WrongIn(session, "the Vantrel's"), IsEmpty());
}

TEST_F(SpellingSessionTest, AddsToTheUsersOwnWords) {
  SpellingSession session = Session({"the"});
  session.AddToUserWords("teh");
  EXPECT_THAT(WrongIn(session, "teh"), IsEmpty());
  EXPECT_THAT(ReadUserWords(folder / "words.txt"), ElementsAre("teh"));
}

TEST_F(SpellingSessionTest, KnowsAWordOfTheRunThatCouldNotBeAddedToTheFile) {
  std::filesystem::create_directory(folder / "words.txt.lock");
  SpellingSession session = Session({"the"});
  EXPECT_THROW(session.AddToUserWords("teh"), UserWordsError);
  EXPECT_THAT(WrongIn(session, "teh"), IsEmpty());
}

}  // namespace spelling_session_test
}  // namespace brimwork
