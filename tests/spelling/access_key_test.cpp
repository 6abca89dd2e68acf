#include "spelling/access_key.h"

#include <gtest/gtest.h>

namespace brimwork {
namespace access_key_test {

TEST(AccessKey, IsNoPartOfTheLookedUpForm) {
  EXPECT_EQ(LookedUpForm("E&xit"), "Exit");
  EXPECT_EQ(LookedUpForm("&File"), "File");
}

TEST(AccessKey, LooksApostrophesUpInTheirPlainForm) { EXPECT_EQ(LookedUpForm("don’t"), "don't"); }

TEST(AccessKey, StaysOnItsLetter) {
  EXPECT_EQ(InFormOf("E&xti", "Exit"), "E&xit");
  EXPECT_EQ(InFormOf("&Fiel", "File"), "&File");
  EXPECT_EQ(InFormOf("Öf&fen", "Offen"), "O&ffen");
}

TEST(AccessKey, StaysOnItsLetterInAnotherCase) { EXPECT_EQ(InFormOf("e&Xti", "exit"), "e&xit"); }

TEST(AccessKey, GoesToTheFirstLetterWhenItsOwnIsGone) {
  EXPECT_EQ(InFormOf("E&kzit", "Exit"), "&Exit");
}

TEST(AccessKey, OfTheReplacementIsKept) { EXPECT_EQ(InFormOf("E&xti", "Exi&t"), "Exi&t"); }

TEST(AccessKey, IsNotAddedWhereThereWasNone) { EXPECT_EQ(InFormOf("Exti", "Exit"), "Exit"); }

TEST(AccessKey, LeavesTheFormOfApostrophesAsItWas) {
  EXPECT_EQ(InFormOf("dont’t", "don't"), "don’t");
  EXPECT_EQ(InFormOf("dont't", "don't"), "don't");
}

}  // namespace access_key_test
}  // namespace brimwork
