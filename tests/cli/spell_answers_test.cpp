#include "cli/spell_answers.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

namespace brimwork {
namespace spell_answers_test {

using testing::HasSubstr;
using testing::Optional;
using Kind = SpellAnswer::Kind;

SpellAnswer Parsed(std::string_view line) { return ParseSpellAnswer(line, {"the", "tea"}); }

SpellAnswer AnswerOf(Kind kind, const std::string& text = {}) { return {kind, text}; }

TEST(SpellAnswer, OfANumberIsTheSuggestion) {
  EXPECT_EQ(Parsed("1"), AnswerOf(Kind::kReplace, "the"));
  EXPECT_EQ(Parsed(" 2 "), AnswerOf(Kind::kReplace, "tea"));
}

TEST(SpellAnswer, OfANumberWithoutASuggestionIsNone) {
  for (const char* line : {"0", "3", "-1", "1x", "99999999999999999999999"}) {
    EXPECT_EQ(Parsed(line).kind, Kind::kNone) << line;
  }
}

TEST(SpellAnswer, IsTheUsersOwnText) {
  EXPECT_EQ(Parsed("r them all"), AnswerOf(Kind::kReplace, "them all"));
  EXPECT_EQ(Parsed("R them"), AnswerOf(Kind::kReplaceAll, "them"));
}

TEST(SpellAnswer, IsASuggestionEverywhere) {
  EXPECT_EQ(Parsed("R 2"), AnswerOf(Kind::kReplaceAll, "tea"));
  EXPECT_EQ(Parsed("r 1"), AnswerOf(Kind::kReplace, "the"));
}

TEST(SpellAnswer, WithoutItsTextIsExplained) {
  EXPECT_EQ(Parsed("r").kind, Kind::kNone);
  EXPECT_THAT(Parsed("R ").text, HasSubstr("behind the letter"));
}

TEST(SpellAnswer, IsALetter) {
  EXPECT_EQ(Parsed("i"), AnswerOf(Kind::kIgnore));
  EXPECT_EQ(Parsed("I"), AnswerOf(Kind::kIgnoreAll));
  EXPECT_EQ(Parsed("a"), AnswerOf(Kind::kAdd));
  EXPECT_EQ(Parsed("s"), AnswerOf(Kind::kStop));
  EXPECT_EQ(Parsed("q"), AnswerOf(Kind::kStop));
  EXPECT_EQ(Parsed("?"), AnswerOf(Kind::kHelp));
  EXPECT_EQ(Parsed("i\r"), AnswerOf(Kind::kNone, "there is no answer \"i\r\""));
}

TEST(SpellAnswer, OfAnythingElseIsNone) {
  EXPECT_THAT(Parsed("the").text, HasSubstr("\"the\""));
  EXPECT_EQ(Parsed("i x").kind, Kind::kNone);
  EXPECT_EQ(Parsed("").kind, Kind::kNone);
}

TEST(Replacement, MayHoldWordsAndApostrophes) {
  EXPECT_EQ(ProblemOfReplacement("don't do Ärger", "WINDOWS-1252"), std::nullopt);
}

TEST(Replacement, MustHoldSomething) {
  EXPECT_NE(ProblemOfReplacement("", "UTF-8"), std::nullopt);
  EXPECT_NE(ProblemOfReplacement(" \t", "UTF-8"), std::nullopt);
}

TEST(Replacement, HoldsNoQuotesLineEndsAndControlCharacters) {
  EXPECT_THAT(ProblemOfReplacement("a\"b", "UTF-8"), Optional(HasSubstr("quotes")));
  EXPECT_THAT(ProblemOfReplacement("a\r\nb", "UTF-8"), Optional(HasSubstr("line ends")));
  EXPECT_THAT(ProblemOfReplacement("a\x1b[m", "UTF-8"), Optional(HasSubstr("control")));
}

TEST(Replacement, ContinuesNoLine) {
  EXPECT_THAT(ProblemOfReplacement("the _", "UTF-8"), Optional(HasSubstr("continues")));
}

TEST(Replacement, ExistsInTheEncodingOfTheFile) {
  EXPECT_THAT(ProblemOfReplacement("привет", "WINDOWS-1252"), Optional(HasSubstr("WINDOWS-1252")));
  EXPECT_EQ(ProblemOfReplacement("привет", "WINDOWS-1251"), std::nullopt);
  EXPECT_NE(ProblemOfReplacement("\xFF", "UTF-8"), std::nullopt);
}

}  // namespace spell_answers_test
}  // namespace brimwork
