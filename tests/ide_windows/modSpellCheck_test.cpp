#include "ide_windows/modSpellCheck.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <utility>

#include "support/faulty_environment.h"
#include "support/opened_module.h"
#include "support/spelling_corrector.h"

namespace brimwork {
namespace modSpellCheck_test {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;

/// An open module, and a user who corrects "teh" and "wrod" in the spelling dialog.
struct CheckedModule : OpenedModule {
  explicit CheckedModule(const TextLines& lines) : OpenedModule(lines) {
    environment.wordProcessors.dialog = user.Dialog();
  }

  CheckedModule& Check() {
    SpellCheckQuotesAndComments(Commands());
    return *this;
  }

  const WordProcessorLog& Log() { return environment.wordProcessors.log; }

  SpellingCorrector user{{{"teh", "the"}, {"Teh", "The"}, {"wrod", "word"}}, {}};
};

TEST(SpellCheck, RewritesTheLineOfACorrectedLiteral) {
  EXPECT_THAT(CheckedModule({"MsgBox \"Teh end\""}).Check().Lines(),
              ElementsAre("MsgBox \"The end\""));
}

TEST(SpellCheck, RewritesTheLineOfACorrectedComment) {
  EXPECT_THAT(CheckedModule({"x = 1 ' teh sum"}).Check().Lines(), ElementsAre("x = 1 ' the sum"));
}

TEST(SpellCheck, SendsLiteralsAndCommentsInTheOrderOfTheLines) {
  CheckedModule module({"Sub A() ' one", "x = 1", "MsgBox \"two\" & \"three\"", "End Sub"});
  module.Check();
  EXPECT_THAT(module.user.texts, ElementsAre(" one", "two", "three"));
}

TEST(SpellCheck, NeverSendsCode) {
  CheckedModule module({"teh = wrod"});
  EXPECT_THAT(module.Check().Lines(), ElementsAre("teh = wrod"));
  EXPECT_THAT(module.user.texts, IsEmpty());
}

TEST(SpellCheck, OpensAndClosesTheProgramForAModuleWithoutQuotesAndApostrophes) {
  CheckedModule module({"Sub A()", "x = 1", "End Sub"});
  module.Check();
  EXPECT_EQ(module.Log().started, 1);
  EXPECT_EQ(module.Log().documentsOpened, 1);
  EXPECT_EQ(module.Log().documentsClosed, 1);
  EXPECT_EQ(module.Log().quit, 1);
  EXPECT_EQ(module.Log().spellingChecks, 0);
  EXPECT_THAT(module.environment.dialogs.Messages(), IsEmpty());
}

TEST(SpellCheck, MinimizesTheDocumentsWindowAndSavesNothing) {
  CheckedModule module({"MsgBox \"teh\""});
  module.Check();
  EXPECT_EQ(module.Log().windowState, document_window_state::kMinimized);
  EXPECT_EQ(module.Log().documentsSaved, 0);
}

TEST(SpellCheck, UsesOneDocumentForAllPieces) {
  CheckedModule module({"MsgBox \"a\" & \"b\" ' c"});
  module.Check();
  EXPECT_EQ(module.Log().spellingChecks, 3);
  EXPECT_EQ(module.Log().documentsOpened, 1);
  EXPECT_EQ(module.Log().documentsClosed, 1);
}

TEST(SpellCheck, LeavesTheSeparatorLineUntouched) {
  const std::string separator = "'" + std::string(89, '=');
  CheckedModule module({separator});
  module.Check();
  EXPECT_THAT(module.user.texts, IsEmpty());
}

TEST(SpellCheck, SendsAnyOtherLineOfEqualSigns) {
  const std::string shorter(88, '=');
  CheckedModule module({"'" + shorter});
  module.Check();
  EXPECT_THAT(module.user.texts, ElementsAre(shorter));
}

TEST(SpellCheck, KnowsTheSeparatorOfItsOwnSetting) {
  CheckedModule module({"'--teh--"});
  module.Set("Seperator", "'--teh--");
  EXPECT_THAT(module.Check().Lines(), ElementsAre("'--teh--"));
}

TEST(SpellCheck, DoesNotKnowTheSeparatorOfTheCommentCommands) {
  CheckedModule module({"'--teh--"});
  module.Set("Separator", "'--teh--");
  EXPECT_THAT(module.Check().Lines(), ElementsAre("'--the--"));
}

TEST(SpellCheck, TakesTheFirstApostropheForTheComment) {
  CheckedModule module({"s = \"don't\" ' teh note"});
  EXPECT_THAT(module.Check().Lines(), ElementsAre("s = \"don't\" ' the note"));
  EXPECT_THAT(module.user.texts, ElementsAre("don't", "t\" ' teh note"));
}

TEST(SpellCheck, BuildsEachNewLineFromTheLineAsItWas) {
  EXPECT_THAT(CheckedModule({"MsgBox \"teh\" & \"wrod\""}).Check().Lines(),
              ElementsAre("MsgBox \"teh\" & \"word\""));
}

TEST(SpellCheck, KeepsACorrectionWhenALaterPieceOfTheLineIsLeftAsItIs) {
  EXPECT_THAT(CheckedModule({"MsgBox \"teh\" & \"end\" ' fine"}).Check().Lines(),
              ElementsAre("MsgBox \"the\" & \"end\" ' fine"));
}

TEST(SpellCheck, WritesNoLineThatTheUserLeftAsItWas) {
  CheckedModule module({"MsgBox \"end\" ' fine"});
  FaultyEnvironment listing(module.environment.Parts(), Fault{});
  Environment listed = listing.Parts();
  Context context{listed};
  SpellCheckQuotesAndComments(context);
  EXPECT_THAT(module.user.texts, ElementsAre("end", " fine"));
  EXPECT_THAT(listing.Operations(), Not(Contains("CodeModule.ReplaceLine")));
}

TEST(SpellCheck, DoesNotSendAnEmptyPiece) {
  CheckedModule module({"s = \"\"", "x = 1 '", "MsgBox \"teh\""});
  EXPECT_THAT(module.Check().Lines(), ElementsAre("s = \"\"", "x = 1 '", "MsgBox \"the\""));
  EXPECT_THAT(module.user.texts, ElementsAre("teh"));
}

TEST(SpellCheck, PassesOverAQuoteWithoutItsPartner) {
  CheckedModule module({"s = \"teh", "x = 1 ' teh 5\" rule", "MsgBox \"teh\""});
  EXPECT_THAT(module.Check().Lines(),
              ElementsAre("s = \"teh", "x = 1 ' the 5\" rule", "MsgBox \"the\""));
  EXPECT_THAT(module.environment.dialogs.Messages(), IsEmpty());
}

TEST(SpellCheck, TakesALiteralThatTheUserEmptied) {
  CheckedModule module({"MsgBox \"teh\""});
  module.environment.wordProcessors.dialog = [](const std::string&) { return ""; };
  EXPECT_THAT(module.Check().Lines(), ElementsAre("MsgBox \"\""));
}

TEST(SpellCheck, KeepsTextOfAnyScript) {
  EXPECT_THAT(CheckedModule({"s = \"Größe teh 日本\" ' über wrod"}).Check().Check().Lines(),
              ElementsAre("s = \"Größe the 日本\" ' über word"));
}

TEST(SpellCheck, GivesTheClipboardsTextBack) {
  CheckedModule module({"MsgBox \"teh\""});
  module.environment.clipboard.SetText("the user's");
  module.Check();
  EXPECT_EQ(module.environment.clipboard.GetText(), "the user's");
}

TEST(SpellCheck, LeavesAnEmptyClipboardEmpty) {
  CheckedModule module({"MsgBox \"teh\""});
  module.Check();
  EXPECT_EQ(module.environment.clipboard.GetText(), "");
}

TEST(SpellCheck, ShowsTheHourglassWhileItRuns) {
  CheckedModule module({"MsgBox \"teh\""});
  int pointer = mouse_pointer::kDefault;
  module.environment.wordProcessors.dialog = [&](const std::string& text) {
    pointer = module.environment.screen.MousePointer();
    return text;
  };
  module.Check();
  EXPECT_EQ(pointer, mouse_pointer::kHourglass);
  EXPECT_EQ(module.environment.screen.MousePointer(), mouse_pointer::kDefault);
}

TEST(SpellCheck, AsksForACodeSourceAndStartsNothingWithoutOne) {
  CheckedModule module({"MsgBox \"teh\""});
  module.Close();
  module.Check();
  ASSERT_EQ(module.environment.dialogs.Messages().size(), 1u);
  EXPECT_EQ(module.environment.dialogs.Messages()[0].title, "Need Valid Code Source");
  EXPECT_EQ(module.Log().started, 0);
}

/// A word processor with a document open, whose cut text ends as a test asks for.
class CuttingWord : public WordProcessor {
 public:
  CuttingWord(Clipboard& clipboard, std::string mark)
      : clipboard_(clipboard), mark_(std::move(mark)) {}
  void AddDocument() override {}
  void SetActiveWindowState(int) override {}
  void PasteIntoSelection() override { text_ = clipboard_.GetText(); }
  void CheckSpellingOfDocument() override {}
  void SelectDocument() override {}
  void CutSelection() override { clipboard_.SetText(text_ + mark_); }
  void CloseDocument(bool) override {}
  void Quit() override {}

 private:
  Clipboard& clipboard_;
  std::string text_;
  std::string mark_;
};

std::string CheckedWithMark(const std::string& text, const std::string& mark) {
  MemoryClipboard clipboard;
  CuttingWord word(clipboard, mark);
  return CheckSpellingInWord(clipboard, word, text);
}

TEST(CheckSpellingInWord, TakesTheParagraphMarkOfTheDocumentOff) {
  EXPECT_EQ(CheckedWithMark("text", "\r\n"), "text");
  EXPECT_EQ(CheckedWithMark("text", "\r"), "text");
  EXPECT_EQ(CheckedWithMark("text", "\n"), "text");
  EXPECT_EQ(CheckedWithMark("text", ""), "text");
}

TEST(CheckSpellingInWord, TakesOneMarkOffAtMost) {
  EXPECT_EQ(CheckedWithMark("text", "\r\n\r\n"), "text\r\n");
}

TEST(CheckSpellingInWord, KeepsAMarkThatTheTextHadItself) {
  EXPECT_EQ(CheckedWithMark("text\r\n", ""), "text\r\n");
  EXPECT_EQ(CheckedWithMark("text\r\n", "\r\n"), "text\r\n");
}

TEST(CheckSpellingInWord, KeepsBlanksAroundTheText) {
  EXPECT_EQ(CheckedWithMark("  text ", "\r\n"), "  text ");
}

}  // namespace modSpellCheck_test
}  // namespace brimwork
