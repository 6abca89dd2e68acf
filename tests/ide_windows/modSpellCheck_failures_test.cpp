#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

#include "environment/run_time_error.h"
#include "ide_windows/modSpellCheck.h"
#include "support/faulty_environment.h"
#include "support/opened_module.h"
#include "support/spelling_corrector.h"

namespace brimwork {
namespace modSpellCheck_failures_test {

using testing::AnyOf;
using testing::ElementsAre;

const ShownMessage kNoWord{
    "Could not create an instance or MS Word to use for Spell Check\r\n"
    "Please verify that it is correctly installed and try again",
    64, "Initialization Error"};
const ShownMessage kCouldNotRun{"Error Encountered: Could Not Run SpellCheck Procedure", 64,
                                "Error Encountered"};
constexpr const char* kUsersClipboard = "the user's";

/// A spell check over a module in an environment that fails as told.
class FailingCheck {
 public:
  explicit FailingCheck(Fault fault) : faulty_(opened_.environment.Parts(), std::move(fault)) {
    opened_.environment.wordProcessors.dialog = user_.Dialog();
    opened_.environment.clipboard.SetText(kUsersClipboard);
    Environment environment = faulty_.Parts();
    Context context{environment};
    SpellCheckQuotesAndComments(context);
  }

  /// Every call to the operation raises an error.
  static FailingCheck Of(std::string_view failing) {
    return FailingCheck({Fault::Kind::kRaises, [failing](int, std::string_view operation) {
                           return operation == failing;
                         }});
  }

  const std::vector<std::string_view>& Operations() { return faulty_.Operations(); }
  const std::vector<ShownMessage>& Messages() { return opened_.environment.dialogs.Messages(); }
  const WordProcessorLog& Log() { return opened_.environment.wordProcessors.log; }
  TextLines Lines() { return opened_.Lines(); }
  std::string Clipboard() { return opened_.environment.clipboard.GetText(); }
  int Pointer() { return opened_.environment.screen.MousePointer(); }

 private:
  OpenedModule opened_{{"MsgBox \"teh\" ' teh end", "x = 1", "' wrod"}};
  SpellingCorrector user_{{{"teh", "the"}, {"wrod", "word"}}, {}};
  FaultyEnvironment faulty_;
};

TEST(SpellCheckFailure, IsToldWhenTheProgramCannotBeCreated) {
  FailingCheck check = FailingCheck::Of("WordProcessors.CreateObject");
  EXPECT_THAT(check.Messages(), ElementsAre(kNoWord));
  EXPECT_EQ(check.Log().quit, 0);
  EXPECT_EQ(check.Pointer(), mouse_pointer::kDefault);
  EXPECT_EQ(check.Clipboard(), kUsersClipboard);
}

TEST(SpellCheckFailure, IsToldWhenTheProgramIsNotInstalled) {
  OpenedModule opened({"MsgBox \"teh\""});
  opened.environment.wordProcessors.isInstalled = false;
  SpellCheckQuotesAndComments(opened.Commands());
  EXPECT_THAT(opened.environment.dialogs.Messages(), ElementsAre(kNoWord));
}

TEST(SpellCheckFailure, IsToldWhenThereIsNoObject) {
  FailingCheck check({Fault::Kind::kAnswersNothing, [](int, std::string_view operation) {
                        return operation == "WordProcessors.CreateObject";
                      }});
  EXPECT_THAT(check.Messages(), ElementsAre(kNoWord));
  EXPECT_THAT(check.Lines(), ElementsAre("MsgBox \"teh\" ' teh end", "x = 1", "' wrod"));
}

TEST(SpellCheckFailure, EndsTheProgramWithoutADocument) {
  FailingCheck check = FailingCheck::Of("WordProcessor.AddDocument");
  EXPECT_THAT(check.Messages(), ElementsAre(kCouldNotRun));
  EXPECT_EQ(check.Log().quit, 1);
  EXPECT_EQ(check.Clipboard(), kUsersClipboard);
}

TEST(SpellCheckFailure, ClosesTheDocumentWithoutSavingAndEndsTheProgram) {
  for (const char* operation :
       {"WordProcessor.SetActiveWindowState", "WordProcessor.PasteIntoSelection",
        "WordProcessor.CheckSpellingOfDocument", "WordProcessor.SelectDocument",
        "WordProcessor.CutSelection", "CodeModule.Lines", "CodeModule.CountOfLines",
        "CodeModule.ReplaceLine"}) {
    FailingCheck check = FailingCheck::Of(operation);
    EXPECT_THAT(check.Messages(), ElementsAre(kCouldNotRun)) << operation;
    EXPECT_EQ(check.Log().documentsClosed, 1) << operation;
    EXPECT_EQ(check.Log().documentsSaved, 0) << operation;
    EXPECT_EQ(check.Log().quit, 1) << operation;
    EXPECT_EQ(check.Clipboard(), kUsersClipboard) << operation;
    EXPECT_EQ(check.Pointer(), mouse_pointer::kDefault) << operation;
  }
}

TEST(SpellCheckFailure, EndsTheProgramWhenTheDocumentCannotBeClosed) {
  FailingCheck check = FailingCheck::Of("WordProcessor.CloseDocument");
  EXPECT_THAT(check.Messages(), ElementsAre(kCouldNotRun));
  EXPECT_EQ(check.Log().quit, 1);
  EXPECT_EQ(check.Clipboard(), kUsersClipboard);
}

TEST(SpellCheckFailure, GivesTheClipboardBackWhenTheProgramCannotBeEnded) {
  FailingCheck check = FailingCheck::Of("WordProcessor.Quit");
  EXPECT_THAT(check.Messages(), ElementsAre(kCouldNotRun));
  EXPECT_EQ(check.Log().documentsClosed, 1);
  EXPECT_EQ(check.Clipboard(), kUsersClipboard);
  EXPECT_EQ(check.Pointer(), mouse_pointer::kDefault);
}

TEST(SpellCheckFailure, PutsEverythingBackWhenEvenTheMessageCannotBeShown) {
  FailingCheck check({Fault::Kind::kRaises, [](int, std::string_view operation) {
                        return operation == "Dialogs.MsgBox" ||
                               operation == "WordProcessor.CutSelection";
                      }});
  EXPECT_EQ(check.Log().documentsClosed, 1);
  EXPECT_EQ(check.Log().quit, 1);
  EXPECT_EQ(check.Clipboard(), kUsersClipboard);
  EXPECT_EQ(check.Pointer(), mouse_pointer::kDefault);
}

TEST(SpellCheckFailure, KeepsWhatWasCorrectedBeforeIt) {
  int checks = 0;
  FailingCheck check({Fault::Kind::kRaises, [&](int, std::string_view operation) {
                        return operation == "WordProcessor.CheckSpellingOfDocument" &&
                               ++checks == 2;
                      }});
  EXPECT_THAT(check.Lines(), ElementsAre("MsgBox \"the\" ' teh end", "x = 1", "' wrod"));
}

TEST(SpellCheckFailure, ComesBeforeTheProgramIsEndedAndTheClipboardGivenBack) {
  FailingCheck check = FailingCheck::Of("WordProcessor.SelectDocument");
  const auto& operations = check.Operations();
  const auto behindFailure =
      std::find(operations.begin(), operations.end(), "WordProcessor.SelectDocument") + 1;
  EXPECT_THAT(std::vector<std::string_view>(behindFailure, operations.end()),
              ElementsAre("Dialogs.MsgBox", "WordProcessor.CloseDocument", "WordProcessor.Quit",
                          "Clipboard.Clear", "Clipboard.SetText", "Screen.SetMousePointer"));
}

TEST(SpellCheck, EndsTheProgramBeforeItGivesTheClipboardAndThePointerBack) {
  FailingCheck check(Fault{});
  const auto& operations = check.Operations();
  EXPECT_THAT(std::vector<std::string_view>(operations.end() - 5, operations.end()),
              ElementsAre("WordProcessor.CloseDocument", "WordProcessor.Quit", "Clipboard.Clear",
                          "Clipboard.SetText", "Screen.SetMousePointer"));
}

/// What must hold whichever single call of a spell check fails.
void ExpectAllPutBack(FailingCheck& check, const std::string& failed) {
  EXPECT_EQ(check.Clipboard(), kUsersClipboard) << failed;
  EXPECT_EQ(check.Pointer(), mouse_pointer::kDefault) << failed;
  EXPECT_GE(check.Log().quit, check.Log().started) << failed;
  EXPECT_EQ(check.Log().documentsClosed, check.Log().documentsOpened) << failed;
  ASSERT_EQ(check.Lines().size(), 3u) << failed;
  EXPECT_THAT(check.Lines()[0], AnyOf("MsgBox \"teh\" ' teh end", "MsgBox \"the\" ' teh end",
                                      "MsgBox \"teh\" ' the end"))
      << failed;
  EXPECT_EQ(check.Lines()[1], "x = 1") << failed;
  EXPECT_THAT(check.Lines()[2], AnyOf("' wrod", "' word")) << failed;
}

TEST(SpellCheckFailure, LeavesTheDesktopAndTheLinesWholeWhicheverCallFails) {
  const auto calls = static_cast<int>(FailingCheck(Fault{}).Operations().size());
  ASSERT_GT(calls, 20);
  for (const auto kind : {Fault::Kind::kRaises, Fault::Kind::kRaisesBehind}) {
    for (int failing = 1; failing <= calls; ++failing) {
      FailingCheck check({kind, [=](int call, std::string_view) { return call == failing; }});
      const std::string_view operation = check.Operations()[static_cast<std::size_t>(failing) - 1];
      // An object whose creation fails behind the creation is known to nobody.
      if (operation == "WordProcessors.CreateObject" && kind == Fault::Kind::kRaisesBehind)
        continue;
      ExpectAllPutBack(check, std::to_string(failing) + ' ' + std::string(operation));
    }
  }
}

}  // namespace modSpellCheck_failures_test
}  // namespace brimwork
