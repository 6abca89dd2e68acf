#include "cli/spell_display.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string_view>

#include "environment/text.h"

namespace brimwork {
namespace spell_display_test {

using testing::ElementsAre;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

MisspelledWord Word(std::string before, std::string written, std::string behind) {
  MisspelledWord word;
  word.path = "a.bas";
  word.line = 3;
  word.column = 9;
  word.before = std::move(before);
  word.written = word.word = std::move(written);
  word.behind = std::move(behind);
  return word;
}

std::vector<std::string> QuestionLines(const MisspelledWord& word,
                                       const std::vector<std::string>& suggestions = {}) {
  const std::string text = QuestionText(word, suggestions, false);
  std::vector<std::string> lines;
  for (const std::string_view line : SplitLines(text)) lines.emplace_back(line);
  return lines;
}

TEST(SpellQuestionText, ShowsThePlaceTheLineAndTheSuggestions) {
  EXPECT_THAT(QuestionLines(Word("    MsgBox \"", "Teh", " end\""), {"The", "Eh"}),
              ElementsAre("", "a.bas:3:9: \"Teh\"", "    MsgBox \"Teh end\"", "            ~~~",
                          "  1 The  2 Eh", ""));
}

TEST(SpellQuestionText, SaysThatThereAreNoSuggestions) {
  EXPECT_EQ(QuestionLines(Word("' ", "xyzzy", ""))[4], "  no suggestions");
}

TEST(SpellQuestionText, MarksTheWordInCharacters) {
  EXPECT_THAT(QuestionLines(Word("' für ", "größr", " x")),
              ElementsAre("", "a.bas:3:9: \"größr\"", "    ' für größr x", "          ~~~~~",
                          "  no suggestions", ""));
}

TEST(SpellQuestionText, CutsALongLineAroundTheWord) {
  const std::string much(200, 'x');
  const auto lines = QuestionLines(Word(much, "teh", much));
  EXPECT_LE(lines[2].size(), 80u);
  EXPECT_THAT(lines[2], testing::StartsWith("    ...xxx"));
  EXPECT_THAT(lines[2], EndsWith("xxx..."));
  EXPECT_EQ(lines[2].find("teh"), lines[3].find("~~~"));
}

TEST(SpellQuestionText, UsesTheWholeWidthOnOneSideWhenTheOtherIsShort) {
  const std::string much(200, 'x');
  const auto atEnd = QuestionLines(Word(much, "teh", " end"));
  EXPECT_EQ(atEnd[2].size(), 79u);
  EXPECT_THAT(atEnd[2], EndsWith("xteh end"));
  const auto atStart = QuestionLines(Word("' ", "teh", much));
  EXPECT_EQ(atStart[2].size(), 79u);
  EXPECT_THAT(atStart[2], testing::StartsWith("    ' tehx"));
}

TEST(SpellQuestionText, CutsAWordThatIsLongerThanALine) {
  for (const std::string& line : QuestionLines(Word("' ", std::string(300, 'x'), " end"))) {
    if (line.starts_with("a.bas")) continue;
    EXPECT_LE(line.size(), 80u) << line;
  }
}

TEST(SpellQuestionText, BreaksManySuggestionsIntoLines) {
  const auto lines = QuestionLines(Word("", "x", ""), std::vector<std::string>(9, "suggestions"));
  ASSERT_EQ(lines.size(), 7u);
  for (const std::string& line : lines) EXPECT_LE(line.size(), 80u);
  EXPECT_THAT(lines[5], HasSubstr("9 suggestions"));
}

TEST(SpellQuestionText, SendsNothingToTheTerminalThatItWouldObey) {
  const std::string text = QuestionText(Word("\x1b[2J\t'\x07", "t\xFFh", "\x7F"), {}, false);
  EXPECT_THAT(text, HasSubstr("?[2J '?t?h?"));
}

TEST(SpellQuestionText, IsColouredWhereThatIsWanted) {
  const MisspelledWord word = Word("' ", "teh", " end");
  EXPECT_THAT(QuestionText(word, {}, true), HasSubstr("' \x1b[31mteh\x1b[m end"));
  EXPECT_THAT(QuestionText(word, {}, false), Not(HasSubstr("\x1b")));
}

TEST(SpellPrompt, NamesTheNumbersThatCanBeTyped) {
  EXPECT_THAT(AnswerPrompt(9), testing::StartsWith("1-9, r TEXT"));
  EXPECT_THAT(AnswerPrompt(1), testing::StartsWith("1, r TEXT"));
  EXPECT_THAT(AnswerPrompt(0), testing::StartsWith("r TEXT"));
  EXPECT_LE(AnswerPrompt(9).size(), 78u);
}

TEST(SpellHelp, FitsInto80Columns) {
  for (const std::string_view line : SplitLines(AnswerHelp())) EXPECT_LE(line.size(), 80u) << line;
}

TEST(SpellListLine, IsThePlaceTheWordAndItsSuggestions) {
  EXPECT_EQ(ListLine(Word("' ", "teh", ""), {"the", "tea"}),
            "a.bas:3:9: \"teh\": suggestions the, tea\n");
  EXPECT_EQ(ListLine(Word("' ", "xyzzy", ""), {}), "a.bas:3:9: \"xyzzy\": no suggestions\n");
}

}  // namespace spell_display_test
}  // namespace brimwork
