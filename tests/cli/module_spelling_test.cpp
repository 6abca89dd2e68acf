// The spell check of one module with the user's decisions as its dialog.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cli/module_spelling.h"
#include "support/opened_module.h"
#include "support/small_dictionary.h"
#include "support/typed_answers.h"

namespace brimwork {
namespace module_spelling_test {

using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;
using testing::Not;
using Mode = SpellRun::Mode;

const std::vector<std::string> kKnown{"the",  "end", "word", "don't", "note",
                                      "it's", "one", "two",  "exit",  "we"};

/// A file whose spelling is checked by a user with answers.
class SpelledModule {
 public:
  explicit SpelledModule(const TextLines& lines, Mode mode = Mode::kAsk,
                         const std::string& preamble = {})
      : file_(SourceFile::Parse(preamble + JoinedLines(lines), "a.bas", "WINDOWS-1252")),
        pane_(environment_.Open("A", file_.TakeText())),
        run_(mode, SpellingSession(DictionariesFor(mode), folder_ / "words.txt")),
        spelling_(run_, file_, *pane_->Module(), "'=====", environment_.wordProcessors) {
    if (mode == Mode::kAsk) {
      run_.questions = std::make_unique<SpellQuestions>(run_.session, user_.Terminal());
    }
    environment_.settingsArea.SaveSetting("Brimwork", "Settings", "Seperator", "'=====");
  }

  /// Checks as often as it takes and returns the lines.
  TextLines Check(std::deque<std::string> answers = {}) {
    user_.lines = std::move(answers);
    spelling_.CheckWith([this] { CheckOnce(); });
    return LinesOf(*pane_->Module());
  }

  void CheckOnce() {
    Environment parts = environment_.Parts();
    Context context{parts};
    SpellCheckQuotesAndComments(context);
  }

  SpellingSession& Session() { return run_.session; }
  const std::string& Shown() const { return user_.shown; }
  std::size_t Unread() const { return user_.lines.size(); }
  const std::string& List() const { return spelling_.List(); }
  int ListedWords() const { return spelling_.ListedWords(); }
  const WordProcessorLog& Log() const { return environment_.wordProcessors.log; }

 private:
  std::vector<Dictionary> DictionariesFor(Mode mode) const {
    std::vector<Dictionary> dictionaries;
    if (mode == Mode::kReplace) return dictionaries;
    dictionaries.emplace_back(WriteDictionary(folder_.Path(), "small", kKnown));
    return dictionaries;
  }

  TemporaryFolder folder_;
  MemoryEnvironment environment_;
  SourceFile file_;
  std::shared_ptr<MemoryCodePane> pane_;
  TypedAnswers user_;
  SpellRun run_;
  ModuleSpelling spelling_;
};

TEST(ModuleSpelling, PutsTheUsersChoiceIntoTheLine) {
  SpelledModule module({"MsgBox \"Teh end\"", "x = 1 ' teh end"});
  EXPECT_THAT(module.Check({"1", "1"}), ElementsAre("MsgBox \"The end\"", "x = 1 ' the end"));
}

TEST(ModuleSpelling, AsksNothingWhereNothingIsWrong) {
  SpelledModule module({"MsgBox \"the end\" ' note"});
  EXPECT_THAT(module.Check(), ElementsAre("MsgBox \"the end\" ' note"));
  EXPECT_EQ(module.Shown(), "");
  EXPECT_EQ(module.Log().started, 1);
}

TEST(ModuleSpelling, CorrectsEveryPieceOfALine) {
  SpelledModule module({"MsgBox \"teh\" & \"wrod\" ' teh"});
  EXPECT_THAT(module.Check({"1", "1", "1"}), ElementsAre("MsgBox \"the\" & \"word\" ' the"));
}

TEST(ModuleSpelling, CorrectsEveryWordOfAPiece) {
  SpelledModule module({"' teh wrod, teh note"});
  EXPECT_THAT(module.Check({"1", "1", "i"}), ElementsAre("' the word, teh note"));
}

TEST(ModuleSpelling, AsksAboutEachPlaceOnce) {
  SpelledModule module({"' teh", "' teh", "MsgBox \"teh\" & \"wrod\""});
  EXPECT_THAT(module.Check({"i", "1", "i", "1", "unread"}),
              ElementsAre("' teh", "' the", "MsgBox \"teh\" & \"word\""));
  EXPECT_EQ(module.Unread(), 1u);
}

TEST(ModuleSpelling, AsksNoMoreInALaterSpellCheck) {
  SpelledModule module({"' teh", "' wrod"});
  module.Check({"i", "1"});
  const std::string shown = module.Shown();
  module.CheckOnce();
  EXPECT_EQ(module.Shown(), shown);
}

TEST(ModuleSpelling, TakesADecisionForEveryLaterPlace) {
  SpelledModule module({"' teh teh", "MsgBox \"teh\"", "' wrod", "' wrod"});
  EXPECT_THAT(module.Check({"R 1", "I", "unread"}),
              ElementsAre("' the the", "MsgBox \"the\"", "' wrod", "' wrod"));
  EXPECT_EQ(module.Unread(), 1u);
}

TEST(ModuleSpelling, KeepsWhatWasDecidedBeforeTheUserStopped) {
  SpelledModule module({"' teh", "' teh wrod", "' wrod", "' teh"});
  EXPECT_THAT(module.Check({"R 1", "s"}), ElementsAre("' the", "' the wrod", "' wrod", "' teh"));
}

TEST(ModuleSpelling, AsksOnceAboutAQuotedWordOfAComment) {
  SpelledModule module({"' teh \"wrod\" end", "' the \"teh\" end"});
  EXPECT_THAT(module.Check({"1", "1", "i", "unread"}),
              ElementsAre("' the \"word\" end", "' the \"teh\" end"));
  EXPECT_EQ(module.Unread(), 1u);
}

TEST(ModuleSpelling, LeavesCodeBehindAnApostropheInALiteralAlone) {
  SpelledModule module({"MsgBox \"don't\" & Totl & \"teh\" ' wrod"});
  EXPECT_THAT(module.Check({"1", "1", "unread"}),
              ElementsAre("MsgBox \"don't\" & Totl & \"the\" ' word"));
  EXPECT_EQ(module.Unread(), 1u);
  EXPECT_THAT(module.Shown(), Not(HasSubstr("Totl\"")));
}

TEST(ModuleSpelling, TakesTheTailOfALiteralWithAnApostropheForNoWord) {
  SpelledModule module({"s = \"we'll\" & x "});
  EXPECT_THAT(module.Check({"i", "unread"}), ElementsAre("s = \"we'll\" & x "));
  EXPECT_EQ(module.Unread(), 1u);
}

TEST(ModuleSpelling, CorrectsAWordToOneWithAnApostrophe) {
  SpelledModule module({"s = \"dont\" & x ' note"});
  EXPECT_THAT(module.Check({"r don't"}), ElementsAre("s = \"don't\" & x ' note"));
}

TEST(ModuleSpelling, AsksAboutTheWordsOfALineFromTheLeftThoughItCorrectsOnePieceATime) {
  SpelledModule module({"MsgBox \"teh\" & \"wrod\" ' noet", "' teh"});
  EXPECT_THAT(module.Check({"r these", "1", "r notes", "1"}),
              ElementsAre("MsgBox \"these\" & \"word\" ' notes", "' the"));
  EXPECT_THAT(module.Shown(), HasSubstr("    MsgBox \"these\" & \"word\" ' noet\n"));
}

TEST(ModuleSpelling, DoesNotAskAboutTheUsersOwnText) {
  SpelledModule module({"MsgBox \"teh\" & \"wrod\" ' x"});
  EXPECT_THAT(module.Check({"r zzyzx", "r yzzyz", "unread"}),
              ElementsAre("MsgBox \"zzyzx\" & \"yzzyz\" ' x"));
  EXPECT_EQ(module.Unread(), 1u);
}

TEST(ModuleSpelling, FollowsACommentThatACorrectionMakesStartEarlier) {
  SpelledModule module({"s = \"dont\" & Totl ' wrod teh"});
  EXPECT_THAT(module.Check({"r don't", "1", "i", "unread"}),
              ElementsAre("s = \"don't\" & Totl ' word teh"));
  EXPECT_EQ(module.Unread(), 1u);
}

TEST(ModuleSpelling, WritesWhatWasDecidedInTheLineWhereTheUserStopped) {
  SpelledModule module({"MsgBox \"teh\" & \"wrod\" & \"teh\" ' teh"});
  EXPECT_THAT(module.Check({"1", "1", "s"}),
              ElementsAre("MsgBox \"the\" & \"word\" & \"teh\" ' teh"));
}

TEST(ModuleSpelling, KeepsTheAccessKeyOfACaption) {
  SpelledModule module({"c.Add \"E&xti\""});
  EXPECT_THAT(module.Check({"1"}), ElementsAre("c.Add \"E&xit\""));
  EXPECT_THAT(module.Shown(), HasSubstr("\"E&xti\""));
}

TEST(ModuleSpelling, LeavesTheSeparatorLineOut) {
  SpelledModule module({"'=====", "'====="});
  EXPECT_THAT(module.Check(), ElementsAre("'=====", "'====="));
}

TEST(ModuleSpelling, NamesPlacesAsTheFileHasThem) {
  SpelledModule module({"s = \"Größe\" ' teh"}, Mode::kAsk,
                       "Attribute VB_Name = \"A\"\r\nOption Explicit\r\n");
  module.Check({"i", "i"});
  EXPECT_THAT(module.Shown(), HasSubstr("a.bas:3:"));
}

TEST(ModuleSpelling, ShowsTheLineWithItsCorrectionsSoFar) {
  SpelledModule module({"' teh wrod"});
  module.Check({"r these", "i"});
  EXPECT_THAT(module.Shown(), HasSubstr("    ' these wrod\n            ~~~~\n"));
  EXPECT_THAT(module.Shown(), HasSubstr("a.bas:1:9: \"wrod\""));
}

TEST(ModuleSpelling, ReplacesWithoutAsking) {
  SpelledModule module({"MsgBox \"teh\" & \"teh xx\" ' teh teh", "teh = \"wrod\""}, Mode::kReplace);
  module.Session().ReplaceAll("teh", "the");
  EXPECT_THAT(module.Check(),
              ElementsAre("MsgBox \"the\" & \"the xx\" ' the the", "teh = \"wrod\""));
  EXPECT_EQ(module.Shown(), "");
}

TEST(ModuleSpelling, ReplacesAWordByATextThatHoldsItOnce) {
  SpelledModule module({"' the the"}, Mode::kReplace);
  module.Session().ReplaceAll("the", "the the");
  EXPECT_THAT(module.Check(), ElementsAre("' the the the the"));
}

TEST(ModuleSpelling, ListsEachWordAndChangesNothing) {
  SpelledModule module({"MsgBox \"teh\" & \"wrod\"", "' \"teh\" end teh"}, Mode::kList);
  EXPECT_THAT(module.Check(), ElementsAre("MsgBox \"teh\" & \"wrod\"", "' \"teh\" end teh"));
  EXPECT_EQ(module.List(),
            "a.bas:1:9: \"teh\": suggestions the\n"
            "a.bas:1:17: \"wrod\": suggestions word\n"
            "a.bas:2:4: \"teh\": suggestions the\n"
            "a.bas:2:13: \"teh\": suggestions the\n");
  EXPECT_EQ(module.ListedWords(), 4);
}

TEST(ModuleSpelling, ListsNothingForAModuleWithoutText) {
  SpelledModule module({}, Mode::kList);
  EXPECT_THAT(module.Check(), IsEmpty());
  EXPECT_EQ(module.List(), "");
}

}  // namespace module_spelling_test
}  // namespace brimwork
