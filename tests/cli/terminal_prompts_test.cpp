#include "cli/terminal_prompts.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/typed_answers.h"

namespace brimwork {
namespace terminal_prompts_test {

using testing::HasSubstr;
using testing::Optional;

struct Prompts : testing::Test {
  const TerminalPrompts& Typing(std::deque<std::string> lines) {
    user.lines = std::move(lines);
    user.shown.clear();
    return prompts;
  }

  TypedAnswers user;
  TerminalPrompts prompts{user.Terminal()};
};

TEST_F(Prompts, TakeALineAsItIs) {
  EXPECT_EQ(Typing({"  a\tb "}).AskLine("? "), "  a\tb ");
  EXPECT_EQ(user.shown, "? ");
}

TEST_F(Prompts, AskAgainForALineThatIsNoText) {
  EXPECT_EQ(Typing({"\xE4", "up \x1b[A", "fine"}).AskLine("? "), "fine");
  EXPECT_EQ(user.shown,
            "?   that is no UTF-8 text; type it again\n"
            "?   that holds control characters; type it again\n"
            "? ");
}

TEST_F(Prompts, EndWithTheInput) {
  EXPECT_THROW(Typing({}).AskLine(""), AnswersEnded);
  EXPECT_THROW(Typing({}).AskYesOrNo("Ok", true), AnswersEnded);
  EXPECT_THROW(Typing({"9"}).AskChoice({"a", "b"}, 1), AnswersEnded);
  EXPECT_THROW(Typing({}).AskText("a"), AnswersEnded);
  EXPECT_THROW(Typing({"a", "b"}).AskLines("a"), AnswersEnded);
}

TEST_F(Prompts, TakeYesAndNoInAnyLetterCase) {
  for (const char* yes : {"y", "Y", "yes", " Yes "}) {
    EXPECT_TRUE(Typing({yes}).AskYesOrNo("Ok", false)) << yes;
  }
  for (const char* no : {"n", "N", "no", "NO"}) {
    EXPECT_FALSE(Typing({no}).AskYesOrNo("Ok", true)) << no;
  }
}

TEST_F(Prompts, KeepTheAnswerThatThereIsOnEnter) {
  EXPECT_TRUE(Typing({""}).AskYesOrNo("Ok", true));
  EXPECT_EQ(user.shown, "Ok (y/n, Enter is y): ");
  EXPECT_FALSE(Typing({" "}).AskYesOrNo("Ok", false));
  EXPECT_EQ(user.shown, "Ok (y/n, Enter is n): ");
}

TEST_F(Prompts, AskAgainForWhatIsNeitherYesNorNo) {
  EXPECT_TRUE(Typing({"maybe", "y"}).AskYesOrNo("Ok", false));
  EXPECT_THAT(user.shown, HasSubstr(":   answer y or n\nOk (y/n"));
}

TEST_F(Prompts, TakeTheNumberOfAChoice) {
  EXPECT_EQ(Typing({"2"}).AskChoice({"On", "Off"}, 1), 2);
  EXPECT_EQ(user.shown, "  1 On\n  2 Off\n1 or 2 (Enter is 1): ");
  EXPECT_EQ(Typing({""}).AskChoice({"On", "Off"}, 2), 2);
  EXPECT_EQ(Typing({" 3 "}).AskChoice({"a", "b", "c"}, 1), 3);
  EXPECT_THAT(user.shown, HasSubstr("1 to 3 (Enter is 1): "));
}

TEST_F(Prompts, AskAgainForWhatIsNoChoice) {
  EXPECT_EQ(Typing({"0", "3", "-1", "1x", "on", "1"}).AskChoice({"On", "Off"}, 2), 1);
  EXPECT_THAT(user.shown, HasSubstr("  answer 1 or 2\n"));
}

TEST_F(Prompts, TakeAnotherText) {
  EXPECT_THAT(Typing({" '-- "}).AskText("'=="), Optional(std::string(" '-- ")));
  EXPECT_EQ(user.shown, "  | '==\nAnother text, a dot alone for none, Enter to keep it: ");
  EXPECT_THAT(Typing({"."}).AskText("'=="), Optional(std::string()));
  EXPECT_EQ(Typing({""}).AskText("'=="), std::nullopt);
}

TEST_F(Prompts, TakeLinesUpToADotAlone) {
  EXPECT_THAT(Typing({"a", "", " .", "b", "."}).AskLines("x"), Optional(std::string("a\n\n .\nb")));
  EXPECT_THAT(Typing({"."}).AskLines("x"), Optional(std::string()));
  EXPECT_EQ(Typing({""}).AskLines("x"), std::nullopt);
}

}  // namespace terminal_prompts_test
}  // namespace brimwork
