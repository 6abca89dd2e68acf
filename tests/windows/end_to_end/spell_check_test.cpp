// "Spell Check - Quotes and Comments", clicked in the bench, with a word processor and without.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "support/windows/test_word.h"
#include "support/windows/user.h"
#include "support/windows/users_clipboard.h"
#include "support/windows/waiting.h"
#include "windows/end_to_end/bench_suite.h"
#include "windows/end_to_end/bench_windows.h"
#include "windows/end_to_end/entry_clicks.h"

namespace brimwork {
namespace spell_check_test {

using ::testing::ElementsAre;

constexpr const char* kComponent = "modStock";
constexpr const char* kText =
    "Private Sub Greet()\r\n"
    "  MsgBox \"Teh end\"\r\n"
    "  Teh = Größe 'a coment on Größe\r\n"
    "End Sub";
constexpr const char* kCorrected =
    "Private Sub Greet()\r\n"
    "  MsgBox \"The end\"\r\n"
    "  Teh = Größe 'a comment on Größe\r\n"
    "End Sub";

std::string Corrected(std::string text) {
  if (text == "Teh end") return "The end";
  return text == "a coment on Größe" ? "a comment on Größe" : text + " is not to be checked";
}

class SpellCheckEntry : public BenchSuite, public ::testing::WithParamInterface<int> {
 protected:
  void SetUp() override {
    if (TestWord::IsInstalled()) GTEST_SKIP() << "this system has a word processor of its own";
    pane_ = ShowText(kComponent, kText, 1, 1);
    PutOnClipboard(kUsersText);
  }

  static void ExpectMessage(const std::string& title, const std::string& text) {
    const HWND box = WaitForDialog(Bench(), title);
    ASSERT_NE(box, nullptr);
    EXPECT_EQ(MessageIn(box), text);
    PressKey(VK_RETURN);
    EXPECT_TRUE(Bench().WaitUntilGone(box));
  }

  void ExpectCode(const std::string& text) {
    EXPECT_EQ(TextOf(pane_), text);
    WaitUntil([] { return TextOnClipboard() == kUsersText; });
    EXPECT_EQ(TextOnClipboard(), kUsersText);
    EXPECT_TRUE(WaitUntilAlone(Bench()));
  }

  bench::Client pane_{nullptr};
};

TEST_P(SpellCheckEntry, WritesWhatTheWordProcessorLeaves) {
  const TestWord word(Corrected);

  ClickEntry(Bench(), GetParam());

  EXPECT_TRUE(WaitUntil([&] { return word.HasQuit() && !word.IsHeld(); }));
  EXPECT_THAT(word.Calls(),
              ElementsAre("Add", "WindowState", "Paste", "CheckSpelling", "Select", "Cut", "Paste",
                          "CheckSpelling", "Select", "Cut", "Close", "Quit"));
  ExpectCode(kCorrected);
}

TEST_P(SpellCheckEntry, TellsOfAWordProcessorThatFails) {
  const TestWord word(nullptr);

  ClickEntry(Bench(), GetParam());

  ExpectMessage("Error Encountered", "Error Encountered: Could Not Run SpellCheck Procedure");
  EXPECT_TRUE(WaitUntil([&] { return word.HasQuit() && !word.IsHeld(); }));
  EXPECT_THAT(word.Calls(),
              ElementsAre("Add", "WindowState", "Paste", "CheckSpelling", "Close", "Quit"));
  ExpectCode(kText);
}

TEST_P(SpellCheckEntry, TellsWhereThereIsNoWordProcessor) {
  ClickEntry(Bench(), GetParam());

  ExpectMessage("Initialization Error",
                "Could not create an instance or MS Word to use for Spell Check\r\n"
                "Please verify that it is correctly installed and try again");
  ExpectCode(kText);
}

INSTANTIATE_TEST_SUITE_P(All, SpellCheckEntry, ::testing::Values(10, 51), HandlerName);

}  // namespace spell_check_test
}  // namespace brimwork
