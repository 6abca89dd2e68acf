#include "spelling/known_words.h"

#include <gtest/gtest.h>

namespace brimwork {
namespace known_words_test {

TEST(KnownWords, HoldWhatWasAdded) {
  KnownWords words;
  EXPECT_FALSE(words.Holds("brimwork"));
  words.Add("brimwork");
  EXPECT_TRUE(words.Holds("brimwork"));
  EXPECT_FALSE(words.Holds("brim"));
}

TEST(KnownWords, HoldAWordAtTheStartOfASentence) {
  KnownWords words;
  words.Add("brimwork");
  words.Add("ärgerlich");
  EXPECT_TRUE(words.Holds("Brimwork"));
  EXPECT_TRUE(words.Holds("Ärgerlich"));
}

TEST(KnownWords, HoldANameOnlyWithItsCapital) {
  KnownWords words;
  words.Add("Vantrel");
  EXPECT_TRUE(words.Holds("Vantrel"));
  EXPECT_FALSE(words.Holds("vantrel"));
}

TEST(KnownWords, HoldThePossessive) {
  KnownWords words;
  words.Add("Vantrel");
  EXPECT_TRUE(words.Holds("Vantrel's"));
  EXPECT_FALSE(words.Holds("Vantrel'd"));
  EXPECT_FALSE(words.Holds("'s"));
}

}  // namespace known_words_test
}  // namespace brimwork
