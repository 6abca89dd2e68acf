#include "memory/rich_text.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "environment/run_time_error.h"
#include "environment/utf8.h"

namespace brimwork {
namespace rich_text_test {

using testing::ElementsAre;

constexpr Color kNavy = Rgb(0, 0, 128);
constexpr Color kGreen = Rgb(0, 128, 0);

RichText TextOf(std::string_view text) {
  RichText content;
  content.SetText(text);
  return content;
}

/// The colours from character to character: n(avy), g(reen), - for the automatic one, ? for others.
std::string Colors(const RichText& content) {
  std::string colors;
  for (int position = 0; position < content.Size(); ++position) {
    const auto color = content.FormatAt(position).color;
    colors += !color ? '-' : color == kNavy ? 'n' : color == kGreen ? 'g' : '?';
  }
  return colors;
}

std::vector<std::uint32_t> RunStarts(const RichText& content) {
  std::vector<std::uint32_t> starts;
  for (const FormatRun& run : content.Formats().Runs()) starts.push_back(run.start);
  return starts;
}

int ErrorOf(const std::function<void()>& action) {
  try {
    action();
  } catch (const RunTimeError& error) {
    return error.Number();
  }
  return 0;
}

TEST(RichTextText, HasCrLfForEveryKindOfLineEnd) {
  EXPECT_EQ(TextOf("a\nb\rc\r\nd\n\re\r\r\nf").Text(), "a\r\nb\r\nc\r\nd\r\n\r\ne\r\n\r\nf");
  EXPECT_EQ(TextOf("\n").Text(), "\r\n");
  EXPECT_EQ(TextOf("").Text(), "");
}

TEST(RichTextText, HasAReplacementCharacterForEachByteThatIsNoUtf8) {
  const RichText content = TextOf("a\xFF\xE6\x97z");
  EXPECT_EQ(content.Text(), "a\uFFFD\uFFFD\uFFFDz");
  EXPECT_EQ(content.Size(), 5);
}

TEST(RichTextText, CountsCharactersAndBothOfALineEnd) { EXPECT_EQ(TextOf("aé日😀\r\n").Size(), 6); }

TEST(RichTextFormat, StartsAsThatOfANewControl) {
  EXPECT_EQ(TextOf("a").FormatAt(0), (TextFormat{"MS Sans Serif", 16, std::nullopt}));
}

TEST(RichTextFormat, IsSetForTheCharactersOfARange) {
  RichText content = TextOf("If x Then");
  content.SetColor({0, 2}, kNavy);
  content.SetColor({5, 4}, kNavy);
  content.SetColor({3, 1}, kGreen);
  EXPECT_EQ(Colors(content), "nn-g-nnnn");
}

TEST(RichTextFormat, CountsCharactersWhereverTheyTakeSeveralBytes) {
  RichText content = TextOf("日本語 é If 😀x");
  content.SetColor({6, 2}, kNavy);
  content.SetColor({9, 1}, kGreen);
  content.SetColor({1, 1}, kGreen);
  EXPECT_EQ(Colors(content), "-g----nn-g-");
}

TEST(RichTextFormat, ChangesOnlyWhatIsSet) {
  RichText content = TextOf("abc");
  content.SetFontName({0, 3}, "Courier New");
  content.SetFontSize({1, 2}, 10);
  content.SetColor({2, 1}, kNavy);
  EXPECT_EQ(content.FormatAt(0), (TextFormat{"Courier New", 16, std::nullopt}));
  EXPECT_EQ(content.FormatAt(1), (TextFormat{"Courier New", 20, std::nullopt}));
  EXPECT_EQ(content.FormatAt(2), (TextFormat{"Courier New", 20, kNavy}));
}

TEST(RichTextFormat, TellsBlackFromTheAutomaticColor) {
  RichText content = TextOf("ab");
  content.SetColor({0, 1}, Rgb(0, 0, 0));
  EXPECT_EQ(content.FormatAt(0).color, Rgb(0, 0, 0));
  EXPECT_EQ(content.FormatAt(1).color, std::nullopt);
}

TEST(RichTextFormat, BehindTheTextIsThatOfTheLastCharacter) {
  RichText content = TextOf("ab");
  content.SetColor({1, 1}, kGreen);
  EXPECT_EQ(content.FormatAt(2).color, kGreen);
  EXPECT_EQ(content.FormatAt(1000).color, kGreen);
  EXPECT_EQ(content.FormatAt(-1).color, std::nullopt);
}

TEST(RichTextFormat, OfAnEmptyRangeOrOneBehindTheTextChangesNothing) {
  RichText content = TextOf("abc");
  content.SetColor({1, 0}, kNavy);
  content.SetColor({3, 5}, kNavy);
  content.SetColor({-3, -5}, kNavy);
  EXPECT_EQ(Colors(content), "---");
  EXPECT_THAT(RunStarts(content), ElementsAre(0));
}

TEST(RichTextFormat, OfARangeReachingBeyondTheTextEndsWithIt) {
  RichText content = TextOf("abc");
  content.SetColor({2, 0x7FFFFFFF}, kNavy);
  EXPECT_EQ(Colors(content), "--n");
}

TEST(RichTextFormat, OfALineEndIsOneForCrAndLf) {
  RichText cr = TextOf("a\nb");
  cr.SetColor({1, 1}, kNavy);
  EXPECT_EQ(Colors(cr), "-nn-");
  RichText lf = TextOf("a\nb");
  lf.SetColor({2, 2}, kNavy);
  EXPECT_EQ(Colors(lf), "---n");
}

TEST(RichTextFormat, GivenToNoTextIsTakenByTheTextPutThere) {
  RichText content;
  content.SetColor({0, 0}, kNavy);
  content.SetFontName({0, 0}, "Courier New");
  content.Replace({0, 0}, "ab");
  EXPECT_EQ(content.FormatAt(1), (TextFormat{"Courier New", 16, kNavy}));
}

TEST(RichTextFormat, IsForgottenWhenTheTextIsSet) {
  RichText content = TextOf("abc");
  content.SetColor({0, 3}, kNavy);
  content.SetText("abc");
  EXPECT_EQ(Colors(content), "---");
}

TEST(RichTextFormat, OfASizeThatNoFontHasRaisesErrorFive) {
  RichText content = TextOf("abc");
  for (const int points : {0, -1, 2161}) {
    EXPECT_EQ(ErrorOf([&] {
                content.SetFontSize({0, 3}, points);
              }),
              error_number::kInvalidProcedureCall)
        << points;
  }
  content.SetFontSize({0, 3}, 2160);
  EXPECT_EQ(content.FormatAt(0).halfPoints, 4320);
}

TEST(RichTextFormat, CannotNameMoreThan65536Fonts) {
  RichText content = TextOf("a");
  for (int font = 0; font < 65535; ++font) content.SetFontName({0, 1}, std::to_string(font));
  EXPECT_EQ(content.FormatAt(0).fontName, "65534");
  EXPECT_EQ(ErrorOf([&] { content.SetFontName({0, 1}, "one more"); }), error_number::kOverflow);
  content.SetFontName({0, 1}, "7");
  EXPECT_EQ(content.FormatAt(0).fontName, "7");
}

TEST(RichTextRuns, AreOneWhereNeighboursHaveOneFormat) {
  RichText content = TextOf("abcdef");
  content.SetColor({0, 2}, kNavy);
  content.SetColor({4, 2}, kNavy);
  EXPECT_THAT(RunStarts(content), ElementsAre(0, 2, 4));
  content.SetColor({2, 2}, kNavy);
  EXPECT_THAT(RunStarts(content), ElementsAre(0));
}

TEST(RichTextRuns, AreSplitWithinAndMergedAgain) {
  RichText content = TextOf("abcdef");
  content.SetColor({0, 6}, kNavy);
  content.SetColor({2, 2}, kGreen);
  EXPECT_THAT(RunStarts(content), ElementsAre(0, 2, 4));
  content.SetColor({1, 4}, kGreen);
  EXPECT_THAT(RunStarts(content), ElementsAre(0, 1, 5));
  content.SetColor({0, 6}, kNavy);
  EXPECT_THAT(RunStarts(content), ElementsAre(0));
}

TEST(RichTextReplace, GivesTheNewTextTheFormatOfTheFirstCharacterReplaced) {
  RichText content = TextOf("abcdef");
  content.SetColor({1, 2}, kNavy);
  content.SetColor({3, 2}, kGreen);
  EXPECT_EQ(content.Replace({2, 2}, "XYZ"), 5);
  EXPECT_EQ(content.Text(), "abXYZef");
  EXPECT_EQ(Colors(content), "-nnnng-");
}

TEST(RichTextReplace, LeavesTheFormatsBehindInTheirPlaces) {
  RichText content = TextOf("ab cd ef");
  content.SetColor({3, 2}, kNavy);
  content.SetColor({6, 2}, kGreen);
  content.Replace({0, 2}, "long");
  EXPECT_EQ(Colors(content), "-----nn-gg");
  content.Replace({0, 5}, "");
  EXPECT_EQ(Colors(content), "nn-gg");
}

TEST(RichTextReplace, OfOneSpellingByAnotherKeepsEverythingElse) {
  RichText content = TextOf("if é\r\nif");
  content.SetColor({0, 2}, kNavy);
  content.SetColor({6, 2}, kNavy);
  EXPECT_EQ(content.Replace({6, 2}, "If"), 8);
  EXPECT_EQ(content.Replace({0, 2}, "If"), 2);
  EXPECT_EQ(content.Text(), "If é\r\nIf");
  EXPECT_EQ(Colors(content), "nn----nn");
}

TEST(RichTextReplace, GivesAnInsertionTheFormatInFrontOfIt) {
  RichText content = TextOf("ab");
  content.SetColor({0, 1}, kNavy);
  content.SetColor({1, 1}, kGreen);
  content.Replace({1, 0}, "x");
  content.Replace({0, 0}, "y");
  content.Replace({4, 0}, "z");
  EXPECT_EQ(content.Text(), "yaxbz");
  EXPECT_EQ(Colors(content), "nnngg");
}

TEST(RichTextReplace, OfAllTextByNothingKeepsTheFormatForWhatComesNext) {
  RichText content = TextOf("abc");
  content.SetColor({0, 1}, kNavy);
  EXPECT_EQ(content.Replace({0, 3}, ""), 0);
  EXPECT_EQ(content.Size(), 0);
  content.Replace({0, 0}, "new");
  EXPECT_EQ(Colors(content), "nnn");
}

TEST(RichTextReplace, TakesALineEndInWhole) {
  RichText cr = TextOf("a\r\nb");
  EXPECT_EQ(cr.Replace({1, 1}, "-"), 2);
  EXPECT_EQ(cr.Text(), "a-b");
  RichText lf = TextOf("a\r\nb");
  EXPECT_EQ(lf.Replace({2, 2}, "-"), 2);
  EXPECT_EQ(lf.Text(), "a-");
}

TEST(RichTextReplace, InsertsBeforeALineEndThatTheCaretIsWithin) {
  RichText content = TextOf("a\r\nb");
  EXPECT_EQ(content.Replace({2, 0}, "x\n"), 4);
  EXPECT_EQ(content.Text(), "ax\r\n\r\nb");
}

TEST(RichTextReplace, CanTakeTheTextFromItself) {
  RichText content = TextOf("abc");
  content.Replace({0, 1}, std::string_view(content.Text()).substr(1));
  EXPECT_EQ(content.Text(), "bcbc");
}

TEST(RichTextLines, OfNoTextAreOneEmptyLine) {
  const RichText content;
  EXPECT_EQ(content.LineCount(), 1);
  EXPECT_EQ(content.LineAt(0), 0);
  EXPECT_EQ(content.LineStart(0), 0);
  EXPECT_EQ(content.Line(0), "");
}

TEST(RichTextLines, HaveAnEmptyOneBehindALastLineEnd) {
  const RichText content = TextOf("a\r\n");
  EXPECT_EQ(content.LineCount(), 2);
  EXPECT_EQ(content.Line(0), "a");
  EXPECT_EQ(content.Line(1), "");
  EXPECT_EQ(content.LineStart(1), 3);
  EXPECT_EQ(content.LineAt(3), 1);
}

TEST(RichTextLines, HoldThePositionWithinTheirLineEnd) {
  const RichText content = TextOf("ab\r\n\r\nc");
  std::vector<int> lines;
  for (int position = 0; position <= content.Size(); ++position) {
    lines.push_back(content.LineAt(position));
  }
  EXPECT_THAT(lines, ElementsAre(0, 0, 0, 0, 1, 1, 2, 2));
}

TEST(RichTextLines, StartAtCharacters) {
  const RichText content = TextOf("日本\r\n😀\r\nx");
  EXPECT_EQ(content.LineStart(1), 4);
  EXPECT_EQ(content.LineStart(2), 7);
  EXPECT_EQ(content.Line(1), "😀");
}

TEST(RichTextLines, FollowEveryChange) {
  RichText content = TextOf("a\r\nb\r\nc");
  EXPECT_EQ(content.LineCount(), 3);
  content.Replace({3, 1}, "x\r\ny");
  EXPECT_EQ(content.LineCount(), 4);
  EXPECT_EQ(content.Line(2), "y");
  content.Replace({0, 3}, "abc");
  EXPECT_EQ(content.LineCount(), 3);
  EXPECT_EQ(content.Line(0), "abcx");
  content.Replace({0, 2}, "\r\n");
  EXPECT_EQ(content.LineCount(), 4);
  EXPECT_EQ(content.Line(1), "cx");
}

TEST(RichTextChanged, KeepsTheFormatsOverTheChangedText) {
  RichText content = TextOf("ab\r\ncd");
  content.SetColor({1, 4}, kNavy);
  const RichText doubled =
      content.Changed([](std::string_view text) { return std::string(text) + std::string(text); });
  EXPECT_EQ(doubled.Text(), "aab\r\ncb\r\ncdd");
  EXPECT_EQ(Colors(doubled), "--nnnnnnnn--");
  EXPECT_EQ(content.Changed([](std::string_view) { return std::string(); }).Text(), "");
}

TEST(RichTextEquality, ComparesTextAndFormatsButNotTheWayThere) {
  RichText one = TextOf("abc");
  RichText other = TextOf("abc");
  one.SetFontName({0, 3}, "Arial");
  one.SetFontName({0, 3}, "Courier New");
  other.SetFontName({0, 1}, "Courier New");
  EXPECT_FALSE(one == other);
  other.SetFontName({1, 2}, "Courier New");
  EXPECT_TRUE(one == other);
  other.Replace({0, 1}, "x");
  EXPECT_FALSE(one == other);
}

}  // namespace rich_text_test
}  // namespace brimwork
