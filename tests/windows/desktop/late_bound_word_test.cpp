#include "windows/desktop/late_bound_word.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "environment/resume_next.h"
#include "support/windows/fake_dispatch.h"
#include "support/windows/registered_program.h"

namespace brimwork::windows {
namespace late_bound_word_test {

using testing::ElementsAre;
using win32::ComPointer;
using win32::Variant;

std::vector<std::string> MembersOf(const FakeDispatch& object) {
  std::vector<std::string> members;
  for (const FakeDispatch::Call& call : object.calls) members.push_back(call.member);
  return members;
}

/// A word processor of fakes, with one document.
struct FakeWord {
  FakeWord() {
    const auto done = [](FakeDispatch::Invocation&) { return S_OK; };
    application->Gives("Documents", Variant(documents));
    application->Gives("ActiveDocument", Variant(document));
    application->Gives("ActiveWindow", Variant(window));
    application->Gives("Selection", Variant(selection));
    application->On("Quit", done);
    documents->Gives("Add", Variant(document));
    window->On("WindowState", done);
    for (const char* method : {"Paste", "Cut"}) selection->On(method, done);
    for (const char* method : {"CheckSpelling", "Select", "Close"}) document->On(method, done);
    for (const auto& each : {application, document}) each->arguments["SaveChanges"] = 7;
  }

  ComPointer<FakeDispatch> application = FakeDispatch::Make();
  ComPointer<FakeDispatch> documents = FakeDispatch::Make();
  ComPointer<FakeDispatch> document = FakeDispatch::Make();
  ComPointer<FakeDispatch> window = FakeDispatch::Make();
  ComPointer<FakeDispatch> selection = FakeDispatch::Make();
};

struct LateBoundWordTest : testing::Test, FakeWord {
  LateBoundWordTest() {
    connection->patience.sleep = [this](unsigned time) { slept += time; };
  }

  unsigned slept = 0;
  std::shared_ptr<Connection> connection = std::make_shared<Connection>();
  LateBoundWord word{ComPointer<IDispatch>(application.get()), connection};
};

TEST_F(LateBoundWordTest, AddsAnEmptyDocument) {
  word.AddDocument();
  ASSERT_THAT(MembersOf(*documents), ElementsAre("Add"));
  EXPECT_EQ(documents->calls[0].arguments.size(), 0u);
}

TEST_F(LateBoundWordTest, SetsTheStateOfTheActiveWindow) {
  word.SetActiveWindowState(document_window_state::kMinimized);
  ASSERT_THAT(MembersOf(*window), ElementsAre("WindowState"));
  EXPECT_EQ(window->calls[0].kind, DISPATCH_PROPERTYPUT);
  EXPECT_EQ(window->calls[0].arguments[0].ToLong(), 2);
}

TEST_F(LateBoundWordTest, TextTravelsThroughTheSelection) {
  word.PasteIntoSelection();
  word.CheckSpellingOfDocument();
  word.SelectDocument();
  word.CutSelection();
  EXPECT_THAT(MembersOf(*selection), ElementsAre("Paste", "Cut"));
  EXPECT_THAT(MembersOf(*document), ElementsAre("CheckSpelling", "Select"));
  EXPECT_THAT(MembersOf(*application),
              ElementsAre("Selection", "ActiveDocument", "ActiveDocument", "Selection"));
}

TEST_F(LateBoundWordTest, ClosesTheDocumentByTheNameOfTheArgument) {
  word.CloseDocument(false);
  word.CloseDocument(true);
  ASSERT_THAT(MembersOf(*document), ElementsAre("Close", "Close"));
  EXPECT_THAT(document->calls[0].named, ElementsAre(7));
  EXPECT_THAT(document->calls[0].types, ElementsAre(VT_I4));
  EXPECT_EQ(document->calls[0].arguments[0].ToLong(), 0);
  EXPECT_EQ(document->calls[1].arguments[0].ToLong(), -1);
}

TEST_F(LateBoundWordTest, GivesTheFirstArgumentWhereNamesAreNotKnown) {
  document->arguments.clear();
  word.CloseDocument(false);
  ASSERT_THAT(MembersOf(*document), ElementsAre("Close"));
  EXPECT_TRUE(document->calls[0].named.empty());
  EXPECT_EQ(document->calls[0].arguments[0].ToLong(), 0);
}

TEST_F(LateBoundWordTest, QuitsWithoutAQuestion) {
  word.Quit();
  ASSERT_THAT(MembersOf(*application), ElementsAre("Quit"));
  EXPECT_THAT(application->calls[0].named, ElementsAre(7));
  EXPECT_EQ(application->calls[0].arguments[0].ToLong(), 0);
}

TEST_F(LateBoundWordTest, RaisesErrorNinetyOneWithoutADocument) {
  application->Gives("ActiveDocument", Variant(static_cast<IDispatch*>(nullptr)));
  const auto error = ResumeNext([&] { word.CheckSpellingOfDocument(); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->Number(), error_number::kObjectNotSet);
}

TEST_F(LateBoundWordTest, RaisesTheErrorOfAFailingCall) {
  document->Fails("Close", E_FAIL);
  const auto error = ResumeNext([&] { word.CloseDocument(false); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->Number(), error_number::kAutomationError);
}

TEST_F(LateBoundWordTest, CallsAgainWhereItWasTurnedAway) {
  int calls = 0;
  document->On("Close",
               [&](FakeDispatch::Invocation&) { return ++calls < 3 ? RPC_E_CALL_REJECTED : S_OK; });
  word.CloseDocument(false);
  EXPECT_EQ(calls, 3);
  EXPECT_GT(slept, 0u);
}

TEST(LateBoundWords, RaiseErrorFourHundredAndTwentyNineWithoutTheProgram) {
  for (const char* program : {"Brimwork.NoSuchProgram", ""}) {
    const auto error = ResumeNext([&] { LateBoundWords().CreateObject(program); });
    ASSERT_TRUE(error) << program;
    EXPECT_EQ(error->Number(), error_number::kCannotCreateObject);
  }
}

TEST(LateBoundWords, StartTheProgramOfAName) {
  FakeWord fake;
  const RegisteredProgram program("BrimworkTest.Word", fake.application.get());
  const auto word = LateBoundWords().CreateObject("BrimworkTest.Word");
  word->AddDocument();
  word->Quit();
  EXPECT_THAT(MembersOf(*fake.documents), ElementsAre("Add"));
  EXPECT_THAT(MembersOf(*fake.application), ElementsAre("Documents", "Quit"));
}

}  // namespace late_bound_word_test
}  // namespace brimwork::windows
