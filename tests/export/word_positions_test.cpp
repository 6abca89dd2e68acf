#include "export/word_positions.h"

#include <gtest/gtest.h>

#include <string>

namespace brimwork {
namespace word_positions_test {

int NeverAsked(std::string_view word) {
  ADD_FAILURE() << "searched again: " << word;
  return -2;
}

/// Words of many lengths, some of which differ in their last letter or in a NUL only.
std::string WordOf(int i) {
  std::string word(static_cast<std::size_t>(i % 40), 'a');
  return word + std::to_string(i);
}

TEST(WordPositions, SearchesAWordThatIsNew) {
  WordPositions positions;
  std::string searched;
  const auto search = [&](std::string_view word) {
    searched = word;
    return 42;
  };
  EXPECT_EQ(positions.Of("Dim", search), 42);
  EXPECT_EQ(searched, "Dim");
}

TEST(WordPositions, RemembersAWord) {
  WordPositions positions;
  positions.Of("Dim", [](std::string_view) { return 42; });
  EXPECT_EQ(positions.Of("Dim", NeverAsked), 42);
}

TEST(WordPositions, RemembersThatAWordIsNowhere) {
  WordPositions positions;
  positions.Of("x", [](std::string_view) { return -1; });
  EXPECT_EQ(positions.Of("x", NeverAsked), -1);
}

TEST(WordPositions, TellsWordsApart) {
  WordPositions positions;
  const std::string words[] = {"",
                               "a",
                               "A",
                               std::string("a\0", 2),
                               "aa",
                               "abcdefgh",
                               "abcdefgi",
                               "abcdefgha",
                               "abcdefghb",
                               "habcdefg",
                               "\xC3\xB6",
                               "ab",
                               "ba",
                               "aba",
                               "aab",
                               "abab",
                               "abaab",
                               "abcdefgabcdefg",
                               "abcdefgabcdefgh",
                               "abcdefghabcdefgh",
                               "abcdefghabcdefghi",
                               "abcdefghabcdefghj"};
  int next = 0;
  for (const std::string& word : words) {
    positions.Of(word, [&](std::string_view) { return next++; });
  }
  next = 0;
  for (const std::string& word : words) EXPECT_EQ(positions.Of(word, NeverAsked), next++) << word;
}

TEST(WordPositions, LooksAtNothingBehindAWord) {
  WordPositions positions;
  const std::string text = "Dimension of many things";
  EXPECT_EQ(positions.Of("Dim", [](std::string_view) { return 42; }), 42);
  EXPECT_EQ(positions.Of(std::string_view(text).substr(0, 3), text.size(), NeverAsked), 42);
  positions.Of(std::string_view(text).substr(0, 9), text.size(),
               [](std::string_view) { return 7; });
  EXPECT_EQ(positions.Of("Dimension", NeverAsked), 7);
}

TEST(WordPositions, RemembersAnyNumberOfWords) {
  WordPositions positions;
  constexpr int kWords = 50'000;
  for (int i = 0; i < kWords; ++i) {
    ASSERT_EQ(positions.Of(WordOf(i), [&](std::string_view) { return i; }), i);
  }
  for (int i = 0; i < kWords; ++i) ASSERT_EQ(positions.Of(WordOf(i), NeverAsked), i);
}

TEST(WordPositions, KeepsTheWordsItselfAndNotTheCallersText) {
  WordPositions positions;
  std::string word = "Dim";
  positions.Of(word, [](std::string_view) { return 1; });
  word = "Sub";
  EXPECT_EQ(positions.Of(word, [](std::string_view) { return 2; }), 2);
  EXPECT_EQ(positions.Of("Dim", NeverAsked), 1);
}

TEST(WordPositions, RemembersNothingOfASearchThatFailed) {
  WordPositions positions;
  EXPECT_THROW(positions.Of("Dim", [](std::string_view) -> int { throw std::string("no"); }),
               std::string);
  EXPECT_EQ(positions.Of("Dim", [](std::string_view) { return 7; }), 7);
}

}  // namespace word_positions_test
}  // namespace brimwork
