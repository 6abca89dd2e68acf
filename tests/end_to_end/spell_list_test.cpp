// brimwork spell without a user: lists, replacements, and what is refused.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "end_to_end/spelling_workplace.h"

namespace brimwork {
namespace spell_list_test {

using testing::AllOf;
using testing::HasSubstr;
using testing::Not;

constexpr const char* kModule =
    "Attribute VB_Name = \"M\"\r\n"
    "' teh note\r\n"
    "Sub Main()\r\n"
    "    MsgBox \"recieve teh file\" & Totl\r\n"
    "End Sub\r\n";

struct SpellList : testing::Test {
  SpellList() { place.Write("m.bas", kModule); }
  SpellingWorkplace place;
};

TEST_F(SpellList, NamesEachWordWithItsPlaceAndSuggestions) {
  const ProgramResult result = place.Run({"spell", "--list", "m.bas"});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.out,
            "m.bas:2:3: \"teh\": suggestions the\n"
            "m.bas:4:13: \"recieve\": suggestions receive\n"
            "m.bas:4:21: \"teh\": suggestions the\n");
  EXPECT_EQ(result.error, "");
  EXPECT_EQ(place.Read("m.bas"), kModule);
}

TEST_F(SpellList, IsEmptyWhereNothingIsWrong) {
  place.Write("m.bas", "' the end\n");
  const ProgramResult result = place.Run({"spell", "--list", "m.bas"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.out + result.error, "");
}

TEST_F(SpellList, CountsTheLinesThatTheEditorHidesAndCharactersForColumns) {
  place.Write("f.frm",
              "VERSION 5.00\nBegin VB.Form F\n   Caption = \"Teh\"\nEnd\n"
              "Attribute VB_Name = \"F\"\ns = \"\xE4\xF6\xFC, teh\" ' \xDF teh\n");
  const ProgramResult result = place.Run({"spell", "--list", "f.frm"});
  EXPECT_THAT(result.out, AllOf(HasSubstr("f.frm:6:11: \"teh\""), HasSubstr("f.frm:6:20: \"teh\""),
                                Not(HasSubstr("f.frm:3"))));
}

TEST_F(SpellList, TakesSeveralFilesAndTellsTheirNumber) {
  place.Write("n.bas", "' wrod\n");
  place.Write("Shop.vbp", "Type=Exe\nModule=M; m.bas\nModule=N; n.bas\n");
  const ProgramResult result = place.Run({"spell", "--list", "Shop.vbp"});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_THAT(result.out, AllOf(HasSubstr("m.bas:2:3:"), HasSubstr("n.bas:1:3: \"wrod\"")));
  EXPECT_EQ(result.error, "2 files, 4 misspelled words\n");
}

TEST_F(SpellList, TakesStandardInput) {
  const ProgramResult result =
      place.Run({"spell", "--list", "--stdin-filename", "x.bas", "-"}, "' teh\n");
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.out, "x.bas:1:3: \"teh\": suggestions the\n");
}

TEST_F(SpellList, KnowsTheUsersOwnWords) {
  place.Write("words.txt", "teh\r\nrecieve\r\n");
  EXPECT_EQ(place.Run({"spell", "--list", "m.bas"}).exitCode, 0);
}

TEST_F(SpellList, TakesAWordForRightThatOneOfSeveralDictionariesHas) {
  place.AddDictionary("xx_YY", {"teh"});
  const ProgramResult result =
      place.Run({"spell", "--list", "--dictionary", "en_US", "--dictionary", "xx_YY", "m.bas"});
  EXPECT_THAT(result.out, AllOf(HasSubstr("recieve"), Not(HasSubstr("teh"))));
}

TEST_F(SpellList, TakesTheDictionaryOfTheUsersLanguage) {
  place.AddDictionary("xx_YY", {"teh", "recieve", "file", "note"});
  place.SetVariable("LC_ALL", "xx_YY.UTF-8");
  EXPECT_EQ(place.Run({"spell", "--list", "m.bas"}).exitCode, 0);
}

TEST_F(SpellList, SaysWhenTheUsersLanguageHasNoDictionary) {
  place.SetVariable("LC_ALL", "xx_YY.UTF-8");
  const ProgramResult result = place.Run({"spell", "--list", "m.bas"});
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_THAT(result.error, AllOf(HasSubstr("xx_YY"), HasSubstr("en_US")));
  EXPECT_EQ(place.Run({"spell", "--list", "--quiet", "m.bas"}).error, "");
}

TEST_F(SpellList, WithoutTheDictionaryIsAnErrorThatSaysWhereItWasLookedFor) {
  const ProgramResult result = place.Run({"spell", "--list", "--dictionary", "zz_ZZ", "m.bas"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.error, AllOf(HasSubstr("zz_ZZ"), HasSubstr("dictionaries"),
                                  HasSubstr("/usr/share/hunspell"), HasSubstr("en_US")));
  EXPECT_EQ(LinesOf(result.error).size(), 1u) << result.error;
}

TEST_F(SpellList, EndsWithAnErrorWhenAFileCannotBeRead) {
  const ProgramResult result = place.Run({"spell", "--list", "m.bas", "missing.bas"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.out, HasSubstr("m.bas:2:3"));
}

TEST_F(SpellList, GoesWithNoModeThatWrites) {
  for (const char* mode : {"--write", "--check", "--diff", "--replace=teh=the"}) {
    const ProgramResult result = place.Run({"spell", "--list", mode, "m.bas"});
    EXPECT_EQ(result.exitCode, 2) << mode;
    EXPECT_THAT(result.error, HasSubstr("--list changes nothing"));
  }
  EXPECT_EQ(place.Read("m.bas"), kModule);
}

struct SpellReplace : SpellList {};

constexpr const char* kReplaced =
    "Attribute VB_Name = \"M\"\r\n"
    "' the note\r\n"
    "Sub Main()\r\n"
    "    MsgBox \"receive the file\" & Totl\r\n"
    "End Sub\r\n";

const Words kReplacements{"spell",           "--replace", "teh=the",   "--replace",
                          "recieve=receive", "--replace", "Totl=Total"};

Words With(Words words, const Words& more) {
  words.insert(words.end(), more.begin(), more.end());
  return words;
}

TEST_F(SpellReplace, PrintsTheResult) {
  const ProgramResult result = place.Run(With(kReplacements, {"m.bas"}));
  EXPECT_EQ(result.exitCode, 0) << result.error;
  EXPECT_EQ(result.out, kReplaced);
  EXPECT_EQ(place.Read("m.bas"), kModule);
}

TEST_F(SpellReplace, WritesTheFile) {
  const ProgramResult result = place.Run(With(kReplacements, {"--write", "m.bas"}));
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.error, "m.bas: 2 lines changed, 0 added, 0 removed\n");
  EXPECT_EQ(place.Read("m.bas"), kReplaced);
}

TEST_F(SpellReplace, ShowsTheChanges) {
  const ProgramResult result = place.Run(With(kReplacements, {"--diff", "m.bas"}));
  EXPECT_THAT(result.out, AllOf(HasSubstr("-' teh note"), HasSubstr("+' the note")));
}

TEST_F(SpellReplace, ChecksWhetherAFileWouldChange) {
  const ProgramResult result = place.Run(With(kReplacements, {"--check", "m.bas"}));
  EXPECT_EQ(result.exitCode, 1);
  EXPECT_EQ(result.out, "m.bas\n");
  place.Write("m.bas", kReplaced);
  EXPECT_EQ(place.Run(With(kReplacements, {"--check", "m.bas"})).exitCode, 0);
}

TEST_F(SpellReplace, NeedsNoDictionary) {
  place.Remove("dictionaries");
  place.SetVariable("LC_ALL", "xx_YY");
  EXPECT_EQ(place.Run(With(kReplacements, {"m.bas"})).out, kReplaced);
}

TEST_F(SpellReplace, LeavesAFileAloneWhoseEncodingHasNotTheText) {
  const ProgramResult result = place.Run({"spell", "--replace", "teh=\u0442", "--write", "m.bas"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.error, AllOf(HasSubstr("m.bas:2"), HasSubstr("WINDOWS-1252")));
  EXPECT_EQ(place.Read("m.bas"), kModule);
}

TEST_F(SpellReplace, RefusesWhatIsNoReplacement) {
  for (const char* replacement :
       {"teh", "=the", "teh=", "teh end=x", "C:\\x=y", "teh=a\"b", "teh=a\nb", "teh=the _"}) {
    const ProgramResult result = place.Run({"spell", "--replace", replacement, "m.bas"});
    EXPECT_EQ(result.exitCode, 2) << replacement;
    EXPECT_THAT(result.error, HasSubstr("--replace")) << replacement;
    EXPECT_EQ(result.out, "");
  }
}

struct SpellWithoutAUser : SpellList {};

TEST_F(SpellWithoutAUser, SaysWhatToGive) {
  for (const Words& words :
       {Words{"spell", "m.bas"}, Words{"run", "Spell Check - Quotes and Comments", "m.bas"}}) {
    const ProgramResult result = place.Run(words);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.error,
                AllOf(HasSubstr("terminal"), HasSubstr("--list"), HasSubstr("--replace")));
    EXPECT_EQ(LinesOf(result.error).size(), 1u);
  }
  EXPECT_EQ(place.Read("m.bas"), kModule);
}

TEST_F(SpellWithoutAUser, StillWantsAFileFirst) {
  EXPECT_THAT(place.Run({"spell"}).error, HasSubstr("no files given"));
}

constexpr const char* kUntidy = "Sub A()\nx = \"teh\" ' wrod\nEnd Sub\n";

TEST_F(SpellWithoutAUser, ACleanUpGoesWithoutTheStepAndSaysSo) {
  place.Write("m.bas", kUntidy);
  const ProgramResult result = place.Run({"cleanup", "--steps", "Indent,SpellCheck", "m.bas"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.out, "Sub A()\n    x = \"teh\" ' wrod\nEnd Sub\n");
  EXPECT_THAT(result.error, AllOf(HasSubstr("SpellCheck"), HasSubstr("--replace")));
  EXPECT_EQ(LinesOf(result.error).size(), 1u);
}

TEST_F(SpellWithoutAUser, ACleanUpReplaces) {
  place.Write("m.bas", kUntidy);
  const ProgramResult result =
      place.Run({"cleanup", "--steps", "SpellCheck,Indent,LineNumber,Comment", "--replace",
                 "teh=the", "--replace", "wrod=word", "m.bas"});
  EXPECT_EQ(result.exitCode, 0) << result.error;
  EXPECT_THAT(result.out, HasSubstr("x = \"the\" ' word\n"));
  EXPECT_EQ(result.error, "");
}

TEST_F(SpellWithoutAUser, ACleanUpTakesWordsOnlyForTheStep) {
  const ProgramResult result =
      place.Run({"cleanup", "--steps", "Indent", "--replace", "teh=the", "m.bas"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.error, HasSubstr("SpellCheck"));
}

}  // namespace spell_list_test
}  // namespace brimwork
