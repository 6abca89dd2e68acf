#include "cli/printable.h"

#include <gtest/gtest.h>

namespace brimwork {
namespace printable_test {

const std::string kLong(100, 'x');

TEST(PrintableText, HasNoCharacterThatMovesTheCursor) {
  EXPECT_EQ(Printable("a\tb\x1b[1m\x7F\r\n"), "a b?[1m???");
  EXPECT_EQ(Printable("gr\xC3\xBC\xDF"), "gr\xC3\xBC?");
}

TEST(WrappedWords, FitTheTerminal) {
  const std::string word(26, 'w');
  EXPECT_EQ(WordWrapped(word + ' ' + word + ' ' + word, "  "),
            "  " + word + ' ' + word + "\n  " + word + "\n");
  const std::string full = word + ' ' + word + ' ' + std::string(23, 'w');
  EXPECT_EQ(WordWrapped(full, "  "), "  " + full + "\n");
}

TEST(WrappedWords, AreBrokenWhereOneIsTooLong) {
  EXPECT_EQ(WordWrapped(kLong, ""), kLong.substr(0, 79) + "\n" + kLong.substr(79) + "\n");
  EXPECT_EQ(WordWrapped("ab " + kLong, ""),
            "ab\n" + kLong.substr(0, 79) + "\n" + kLong.substr(79) + "\n");
}

TEST(WrappedWords, CountCharactersInsteadOfBytes) {
  std::string text;
  for (int i = 0; i < 79; ++i) text += "\xC3\xBC";
  EXPECT_EQ(WordWrapped(text, ""), text + "\n");
}

TEST(WrappedWords, OfNothingAreNoLine) {
  EXPECT_EQ(WordWrapped("", "  "), "");
  EXPECT_EQ(WordWrapped("   ", "  "), "");
}

TEST(MarkedLinesOfAText, ShowWhereEachLineStarts) {
  EXPECT_EQ(MarkedLines("a\r\n\r\n  b"), "  | a\n  | \n  |   b\n");
  EXPECT_EQ(MarkedLines(""), "  (empty)\n");
}

TEST(MarkedLinesOfAText, GoOnWithoutAMark) {
  EXPECT_EQ(MarkedLines(kLong + "\r\ny"),
            "  | " + kLong.substr(0, 75) + "\n    " + kLong.substr(75) + "\n  | y\n");
}

TEST(MarkedLinesOfAText, HaveNoEmptyLineBehindAFullOne) {
  EXPECT_EQ(MarkedLines(kLong.substr(0, 75)), "  | " + kLong.substr(0, 75) + "\n");
}

}  // namespace printable_test
}  // namespace brimwork
