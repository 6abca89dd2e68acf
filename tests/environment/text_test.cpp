#include "environment/text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "environment/run_time_error.h"

namespace brimwork {
namespace text_test {

using testing::ElementsAre;

TEST(Text, TrimTakesBlanksFromBothEndsAndNeverTabs) {
  EXPECT_EQ(Trim("  a b  "), "a b");
  EXPECT_EQ(Trim(" \ta\t "), "\ta\t");
  EXPECT_EQ(Trim("    "), "");
  EXPECT_EQ(Trim("\t"), "\t");
}

TEST(Text, TrimBlanksAndTabsTakesBoth) {
  EXPECT_EQ(TrimBlanksAndTabs(" \t a \t"), "a");
  EXPECT_EQ(TrimBlanksAndTabs("\t \t"), "");
}

TEST(Text, OneSideIsTrimmedAlone) {
  EXPECT_EQ(TrimLeft("  a  "), "a  ");
  EXPECT_EQ(TrimRight("  a  "), "  a");
}

TEST(Text, ALineIsContinuedWhenItEndsInABlankAndAnUnderscore) {
  EXPECT_TRUE(IsContinued("x = 1 + _"));
  EXPECT_TRUE(IsContinued(" _"));
  EXPECT_FALSE(IsContinued("_"));
  EXPECT_FALSE(IsContinued("x_"));
  EXPECT_FALSE(IsContinued("x\t_"));
  EXPECT_FALSE(IsContinued("x _ "));
}

TEST(Text, PrefixesAreComparedInAnyLetterCase) {
  EXPECT_TRUE(StartsWithIgnoringCase("End sub", "END SUB"));
  EXPECT_FALSE(StartsWithIgnoringCase("En", "END"));
  EXPECT_FALSE(StartsWithIgnoringCase("Ent", "END"));
}

TEST(Text, NamesAreEqualInAnyLetterCaseBeyondAscii) {
  EXPECT_TRUE(EqualNames("Total", "TOTAL"));
  EXPECT_TRUE(EqualNames("Größe", "GRÖßE"));
  EXPECT_TRUE(EqualNames("ŁÓDŹ", "łódź"));
  EXPECT_TRUE(EqualNames("Ÿ", "ÿ"));
  EXPECT_TRUE(EqualNames("ΣΙΓΑ", "σιγα"));
  EXPECT_TRUE(EqualNames("Ёлка", "ёЛКА"));
  EXPECT_FALSE(EqualNames("Total", "Totals"));
  EXPECT_FALSE(EqualNames("a", "á"));
  EXPECT_FALSE(EqualNames("×", "÷"));
}

TEST(Text, FoldedNamesAreTheSameTextWhenTheNamesAreEqual) {
  EXPECT_EQ(FoldName("GRÖSSE"), FoldName("Grösse"));
  EXPECT_EQ(FoldName("ABC_1"), "abc_1");
  EXPECT_EQ(FoldName(""), "");
}

TEST(Text, ReplaceChangesEveryOccurrenceOnceFromTheLeft) {
  EXPECT_EQ(Replace("a-b-c", "-", "--"), "a--b--c");
  EXPECT_EQ(Replace("aaa", "aa", "b"), "ba");
  EXPECT_EQ(Replace("abc", "x", "y"), "abc");
  EXPECT_EQ(Replace("", "x", "y"), "");
}

TEST(Text, SplitGivesOnePartMoreThanThereAreSeparators) {
  EXPECT_THAT(Split("a,b,,c", ","), ElementsAre("a", "b", "", "c"));
  EXPECT_THAT(Split("", ","), ElementsAre(""));
  EXPECT_THAT(Split(",", ","), ElementsAre("", ""));
}

TEST(Text, LinesAreSplitAtCarriageReturnLineFeedAndAtALoneLineFeed) {
  EXPECT_THAT(SplitLines("a\r\nb\nc"), ElementsAre("a", "b", "c"));
  EXPECT_THAT(SplitLines(""), ElementsAre(""));
  EXPECT_THAT(SplitLines("a\r\n"), ElementsAre("a", ""));
  EXPECT_THAT(SplitLines("\r\n\r\n"), ElementsAre("", "", ""));
  EXPECT_THAT(SplitLines("a\rb"), ElementsAre("a\rb"));
}

TEST(Text, AnyLineFeedIsWrittenWithACarriageReturn) {
  EXPECT_EQ(WithCrLf("a\nb\r\nc"), "a\r\nb\r\nc");
}

TEST(Text, CharactersAreCountedNotBytes) {
  EXPECT_EQ(CharacterCount("Größe"), 5);
  EXPECT_EQ(CharacterCount("€😀"), 2);
  EXPECT_EQ(CharacterCount(""), 0);
}

TEST(Text, AByteOffsetIsFoundByCharacters) {
  EXPECT_EQ(ByteOffset("Größe", 0), 0u);
  EXPECT_EQ(ByteOffset("Größe", 3), 4u);
  EXPECT_EQ(ByteOffset("Größe", 5), 7u);
  EXPECT_EQ(ByteOffset("Größe", 99), 7u);
}

TEST(Text, IsNumericTakesDigitsWithOneSignAPointAndAnExponent) {
  for (const char* number : {"10", "0", " 10 ", "+5", "-5", "1.5", ".5", "5.", "1E5", "1e+5",
                             "2.5d-3", "1D5", "000120"}) {
    EXPECT_TRUE(IsNumeric(number)) << number;
  }
}

TEST(Text, IsNumericTakesHexadecimalAndOctalForms) {
  for (const char* number : {"&HFF", "&hff", "&O17", "&o7", " &H1 "}) {
    EXPECT_TRUE(IsNumeric(number)) << number;
  }
}

TEST(Text, IsNumericRefusesEverythingElse) {
  for (const char* text :
       {"",   " ",   "abc", "1a", "--5", "+-5", "5-",  "1.2.3", ".",   "+",
        "1E", "1E+", "E5",  "&",  "&H",  "&HG", "&O8", "&X1",   "1 2", "Retry"}) {
    EXPECT_FALSE(IsNumeric(text)) << '"' << text << '"';
  }
}

TEST(Text, ToIntegerReadsDecimalAndHexadecimalTexts) {
  EXPECT_EQ(ToInteger("4"), 4);
  EXPECT_EQ(ToInteger(" 8 "), 8);
  EXPECT_EQ(ToInteger("-3"), -3);
  EXPECT_EQ(ToInteger("&h004"), 4);
  EXPECT_EQ(ToInteger("&h0010"), 16);
  EXPECT_EQ(ToInteger("&o17"), 15);
  EXPECT_EQ(ToInteger("&HFFFF"), -1);
}

TEST(Text, ToIntegerRoundsHalvesToTheEvenNumber) {
  EXPECT_EQ(ToInteger("2.5"), 2);
  EXPECT_EQ(ToInteger("3.5"), 4);
  EXPECT_EQ(ToInteger("1E2"), 100);
}

int ErrorNumberOfToInteger(std::string_view text) {
  try {
    ToInteger(text);
  } catch (const RunTimeError& error) {
    return error.Number();
  }
  return 0;
}

TEST(Text, ToIntegerRaisesTypeMismatchForNoNumber) {
  EXPECT_EQ(ErrorNumberOfToInteger("four"), error_number::kTypeMismatch);
  EXPECT_EQ(ErrorNumberOfToInteger(""), error_number::kTypeMismatch);
}

TEST(Text, ToIntegerRaisesOverflowBeyondSixteenBits) {
  EXPECT_EQ(ErrorNumberOfToInteger("32767"), 0);
  EXPECT_EQ(ErrorNumberOfToInteger("32768"), error_number::kOverflow);
  EXPECT_EQ(ErrorNumberOfToInteger("-32768"), 0);
  EXPECT_EQ(ErrorNumberOfToInteger("-32769"), error_number::kOverflow);
  EXPECT_EQ(ErrorNumberOfToInteger("&H10000"), error_number::kOverflow);
}

}  // namespace text_test
}  // namespace brimwork
