// brimwork spell with a user who answers on a terminal.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "end_to_end/spelling_workplace.h"
#include "environment/text.h"

namespace brimwork {
namespace spell_test {

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;

constexpr const char* kModule =
    "' teh note\n"
    "MsgBox \"recieve teh file\" & Totl & \"E&xti\"\n";

struct Spell : testing::Test {
  void SetUp() override {
    if (!HasPseudoTerminal()) GTEST_SKIP() << "this system opens no pseudo-terminal";
    place.SetVariable("NO_COLOR", "1");
    place.Write("m.bas", kModule);
  }

  SpellingWorkplace place;
};

TEST_F(Spell, AsksAboutEachWordAndWritesTheFile) {
  const ProgramResult result = place.RunOnTerminal({"spell", "m.bas"}, {"1", "1", "i", "r Exit"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(place.Read("m.bas"), "' the note\nMsgBox \"receive teh file\" & Totl & \"E&xit\"\n");
  EXPECT_THAT(result.terminal,
              AllOf(HasSubstr("m.bas:2:17: \"teh\"\r\n"
                              "    MsgBox \"receive teh file\" & Totl & \"E&xti\"\r\n"
                              "                    ~~~\r\n"
                              "  1 the\r\n"
                              "1, r TEXT, R TEXT, i ignore,"),
                    EndsWith("m.bas: 2 lines changed, 0 added, 0 removed\r\n")));
}

TEST_F(Spell, ShowsTheChangesInsteadWithDiff) {
  const ProgramResult result = place.RunOnTerminal({"spell", "--diff", "m.bas"}, {"1", "s"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_THAT(result.out, AllOf(HasSubstr("-' teh note"), HasSubstr("+' the note")));
  EXPECT_EQ(place.Read("m.bas"), kModule);
}

TEST_F(Spell, AsksNothingWhereNothingIsWrong) {
  place.Write("m.bas", "' the end\n");
  const ProgramResult result = place.RunOnTerminal({"spell", "m.bas"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.terminal, "");
}

TEST_F(Spell, KeepsWhatWasDecidedWhenTheUserStops) {
  for (const Words& answers : {Words{"1", "s"}, Words{"1", "q"}, Words{"1"}}) {
    place.Write("m.bas", kModule);
    EXPECT_EQ(place.RunOnTerminal({"spell", "m.bas"}, answers).exitCode, 0);
    EXPECT_EQ(place.Read("m.bas"), "' the note\nMsgBox \"recieve teh file\" & Totl & \"E&xti\"\n");
  }
}

TEST_F(Spell, LeavesTheFileAloneWhenNothingWasDecided) {
  const ProgramResult result = place.RunOnTerminal({"spell", "m.bas"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(place.Read("m.bas"), kModule);
}

TEST_F(Spell, AsksAgainAfterAWrongAnswerAndExplainsTheAnswers) {
  const ProgramResult result = place.RunOnTerminal({"spell", "m.bas"}, {"what", "?", "1", "s"});
  EXPECT_THAT(result.terminal,
              AllOf(HasSubstr("there is no answer \"what\""), HasSubstr("leave the word")));
  EXPECT_THAT(place.Read("m.bas"), testing::StartsWith("' the note"));
}

TEST_F(Spell, TakesADecisionForAllFilesOfTheRun) {
  place.Write("n.bas", "' teh recieve\n");
  const ProgramResult result = place.RunOnTerminal({"spell", "m.bas", "n.bas"}, {"R 1", "I", "i"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_THAT(place.Read("m.bas"), HasSubstr("recieve the file"));
  EXPECT_EQ(place.Read("n.bas"), "' the recieve\n");
  EXPECT_THAT(result.terminal, EndsWith("2 files, 2 changed\r\n"));
}

TEST_F(Spell, AddsWordsForLaterRuns) {
  place.RunOnTerminal({"spell", "m.bas"}, {"a", "a", "a"});
  EXPECT_EQ(place.Read("words.txt"), "teh\nrecieve\nExti\n");
  EXPECT_EQ(place.RunOnTerminal({"spell", "m.bas"}).terminal, "");
}

TEST_F(Spell, TellsWhenAWordCannotBeAdded) {
  place.Write("words.txt.lock/x", "");
  const ProgramResult result = place.RunOnTerminal({"spell", "m.bas"}, {"a", "1", "i"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_THAT(result.terminal, HasSubstr("words.txt"));
  EXPECT_THAT(place.Read("m.bas"), HasSubstr("receive teh"));
}

TEST_F(Spell, AsksAgainForATextThatTheFileCannotHold) {
  const ProgramResult result =
      place.RunOnTerminal({"spell", "m.bas"}, {"r \u0442\u0435\u0445\u0442", "1", "s"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_THAT(result.terminal, HasSubstr("WINDOWS-1252"));
  EXPECT_THAT(place.Read("m.bas"), testing::StartsWith("' the note"));
}

TEST_F(Spell, FitsInto80Columns) {
  place.Write("m.bas", "' " + std::string(90, 'x') + " teh " + std::string(90, '=') + " aa\n");
  const std::string shown =
      place
          .RunOnTerminal({"spell", "m.bas"},
                         {"?", std::string(200, 'z'), "r a\"b", "r a\tb", "r \u0442", "s"})
          .terminal;
  // The line end that the user types behind a prompt is not shown here.
  const std::string lines = Replace(shown, "help: ", "help: \n");
  for (const std::string_view line : SplitLines(lines)) {
    EXPECT_LE(CharacterCount(line), 80) << line;
  }
}

TEST_F(Spell, ShowsTheWordInColourUnlessTheUserWantsNone) {
  EXPECT_THAT(place.RunOnTerminal({"spell", "m.bas"}).terminal, Not(HasSubstr("\x1b")));
  place.UnsetVariable("NO_COLOR");
  EXPECT_THAT(place.RunOnTerminal({"spell", "m.bas"}).terminal,
              HasSubstr("' \x1b[31mteh\x1b[m note"));
  EXPECT_THAT(place.RunOnTerminal({"spell", "--color", "never", "m.bas"}).terminal,
              Not(HasSubstr("\x1b")));
}

TEST_F(Spell, IsTheCommandOfItsCaption) {
  const ProgramResult result =
      place.RunOnTerminal({"run", "Spell Check - Quotes and Comments", "m.bas"}, {"1", "s"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_THAT(place.Read("m.bas"), testing::StartsWith("' the note"));
}

TEST_F(Spell, AsksNothingWithCheckOrForStandardInput) {
  for (const Words& words : {Words{"spell", "--check", "m.bas"}, Words{"spell", "--diff", "-"}}) {
    const ProgramResult result = place.RunOnTerminal(words, {"1"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.terminal, AllOf(HasSubstr("--list"), HasSubstr("--replace")));
  }
  EXPECT_EQ(place.Read("m.bas"), kModule);
}

TEST_F(Spell, AsksForNothingThatAReplacementWasGivenFor) {
  const ProgramResult result =
      place.RunOnTerminal({"spell", "--replace", "teh=the", "--write", "m.bas"});
  EXPECT_THAT(result.terminal, Not(HasSubstr("ignore")));
  EXPECT_EQ(place.Read("m.bas"), "' the note\nMsgBox \"recieve the file\" & Totl & \"E&xti\"\n");
}

constexpr const char* kUntidy = "Sub A()\nx = \"teh\" & \"wrod\" ' teh\nEnd Sub\n";

TEST_F(Spell, IsAStepOfTheCleanUp) {
  place.Write("m.bas", kUntidy);
  const ProgramResult result = place.RunOnTerminal(
      {"cleanup", "--steps", "Indent,SpellCheck,LineNumber,Comment", "--write", "m.bas"},
      {"1", "1", "i", "1"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_THAT(place.Read("m.bas"), HasSubstr(" x = \"the\" & \"word\" ' teh\n"));
  EXPECT_THAT(result.terminal, testing::ContainsRegex("m.bas: [0-9]+ lines changed"));
}

TEST_F(Spell, IsLeftOutOfACleanUpThatChecks) {
  place.Write("m.bas", kUntidy);
  const ProgramResult result =
      place.RunOnTerminal({"cleanup", "--steps", "Indent,SpellCheck", "--check", "m.bas"}, {"1"});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_THAT(result.terminal, AllOf(HasSubstr("SpellCheck"), Not(HasSubstr("ignore"))));
}

TEST_F(Spell, KeepsEveryByteAroundTheWords) {
  place.Write("m.bas", "' \xE4 teh\r\n\n\t\r\n' wrod");
  place.RunOnTerminal({"spell", "m.bas"}, {"1", "1"});
  EXPECT_EQ(place.Read("m.bas"), "' \xE4 the\r\n\n\t\r\n' word");
}

}  // namespace spell_test
}  // namespace brimwork
