#include "export/keyword_list.h"

#include <gtest/gtest.h>

#include <string>

namespace brimwork {
namespace keyword_list_test {

constexpr const char* kWords = "If,Then,End If,ReDim";

bool Holds(std::string list, std::string_view word) {
  return KeywordList(std::move(list)).Holds(word);
}

std::string Spelling(std::string list, std::string_view word) {
  KeywordList keywords(std::move(list));
  const auto spelling = keywords.SpellingOf(word);
  return spelling ? std::string(*spelling) : "(none)";
}

TEST(KeywordList, HoldsItsWordsLetterForLetter) {
  EXPECT_TRUE(Holds(kWords, "If"));
  EXPECT_TRUE(Holds(kWords, "ReDim"));
  EXPECT_FALSE(Holds(kWords, "if"));
  EXPECT_FALSE(Holds(kWords, "Redim"));
}

TEST(KeywordList, HoldsAnyPartOfItsText) {
  EXPECT_TRUE(Holds(kWords, "Dim"));
  EXPECT_TRUE(Holds(kWords, "n"));
  EXPECT_TRUE(Holds(kWords, "f,T"));
  EXPECT_TRUE(Holds(kWords, ","));
  EXPECT_TRUE(Holds(kWords, "d I"));
  EXPECT_TRUE(Holds(kWords, kWords));
}

TEST(KeywordList, HoldsNothingLongerThanItself) {
  EXPECT_FALSE(Holds(kWords, std::string(kWords) + ","));
  EXPECT_FALSE(Holds("If", "IfI"));
}

TEST(KeywordList, HoldsTheEmptyWordAlways) {
  EXPECT_TRUE(Holds(kWords, ""));
  EXPECT_TRUE(Holds("", ""));
}

TEST(KeywordList, HoldsNoWordWhenItIsEmpty) { EXPECT_FALSE(Holds("", "If")); }

TEST(KeywordList, DoesNotTakeEndsFoundApartForAWord) {
  EXPECT_FALSE(Holds("Sub,Dim", "Sim"));
  EXPECT_FALSE(Holds("ab", "ba"));
}

TEST(KeywordList, HoldsWordsOfOneAndOfTwoLettersWhereverTheyStand) {
  for (const char* word : {"I", "m", ",", "If", "im"}) EXPECT_TRUE(Holds(kWords, word)) << word;
  for (const char* word : {"X", "fI", "mI", "II", "mm"}) EXPECT_FALSE(Holds(kWords, word)) << word;
  EXPECT_TRUE(Holds("I", "I"));
  EXPECT_FALSE(Holds("I", "II"));
}

TEST(KeywordList, LooksAtTheMiddleOfAWordToo) {
  EXPECT_FALSE(Holds("Thxen,Then", "Th_en"));
  EXPECT_FALSE(Holds("abXcd", "abcd"));
  EXPECT_EQ(Spelling("abXcd", "abcd"), "(none)");
}

TEST(KeywordList, AnswersTheSameWhenAskedAgain) {
  KeywordList keywords(kWords);
  for (int time = 1; time <= 3; ++time) {
    EXPECT_TRUE(keywords.Holds("Then"));
    EXPECT_FALSE(keywords.Holds("Thin"));
    EXPECT_TRUE(keywords.SpellingOf("THEN"));
    EXPECT_FALSE(keywords.SpellingOf("THIN"));
  }
}

TEST(KeywordList, KeepsBothKindsOfQuestionApart) {
  KeywordList keywords(kWords);
  EXPECT_EQ(keywords.SpellingOf("then"), "Then");
  EXPECT_FALSE(keywords.Holds("then"));
  EXPECT_FALSE(keywords.Holds("rEDIM"));
  EXPECT_EQ(keywords.SpellingOf("rEDIM"), "ReDim");
}

TEST(KeywordList, SpellsAWordInAnyCaseAsItDoesItself) {
  EXPECT_EQ(Spelling(kWords, "if"), "If");
  EXPECT_EQ(Spelling(kWords, "THEN"), "Then");
  EXPECT_EQ(Spelling(kWords, "redim"), "ReDim");
  EXPECT_EQ(Spelling(kWords, "ReDim"), "ReDim");
}

TEST(KeywordList, SpellsAPartAsItStandsThere) {
  EXPECT_EQ(Spelling(kWords, "eDi"), "eDi");
  EXPECT_EQ(Spelling(kWords, "EDI"), "eDi");
}

TEST(KeywordList, SpellsTheFirstOfSeveralPlaces) {
  EXPECT_EQ(Spelling("elseIF,If,if", "if"), "IF");
  EXPECT_EQ(Spelling("elseIF,If,if", "If"), "IF");
}

TEST(KeywordList, HasNoSpellingForWhatItHoldsNowhere) {
  EXPECT_EQ(Spelling(kWords, "Loop"), "(none)");
  EXPECT_EQ(Spelling("", "If"), "(none)");
  EXPECT_EQ(Spelling("If", "IfI"), "(none)");
}

TEST(KeywordList, TakesUnderscoresAsTheyAre) {
  EXPECT_EQ(Spelling("My_Word", "my_word"), "My_Word");
  EXPECT_EQ(Spelling("MyWord", "my_word"), "(none)");
}

TEST(KeywordList, FindsWordsBehindOtherLetters) {
  EXPECT_TRUE(Holds("M\u00f6bel,If", "If"));
  EXPECT_TRUE(Holds("M\u00f6bel,If", "M\u00f6bel"));
  EXPECT_EQ(Spelling("M\u00f6bel,If", "IF"), "If");
  EXPECT_EQ(Spelling("M\u00f6bel,If", "bel"), "bel");
}

TEST(KeywordList, CanBeLong) {
  std::string text;
  for (int i = 0; i < 20'000; ++i) text += "Word" + std::to_string(i) + ",";
  KeywordList keywords(text);
  EXPECT_TRUE(keywords.Holds("Word19999"));
  EXPECT_FALSE(keywords.Holds("Word20000"));
  EXPECT_EQ(keywords.SpellingOf("word"), "Word");
}

}  // namespace keyword_list_test
}  // namespace brimwork
