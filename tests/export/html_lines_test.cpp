#include "export/html_lines.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brimwork {
namespace html_lines_test {

using testing::ElementsAre;

// Tags as short as the words between them.
const std::string K = "<font color=\"#000080\">";
const std::string C = "<font color=\"#008000\">";
const std::string E = "</font>";

constexpr const char* kWords = "If,Then,End,Sub";

/// The lines as they are in the control, turned one after the other.
std::vector<std::string> ConvertedLines(const std::vector<std::string>& lines,
                                        const std::string& words = kWords) {
  KeywordList keywords(words);
  HtmlLines html(keywords);
  std::vector<std::string> converted;
  for (const std::string& line : lines) converted.emplace_back(html.Convert(line + ' '));
  return converted;
}

std::string Converted(const std::string& line, const std::string& words = kWords) {
  return ConvertedLines({line}, words).front();
}

TEST(HtmlLines, ColorKeywordsAndLeaveTheRest) {
  EXPECT_THAT(ConvertedLines({"If x Then", "'note"}, "If,Then"),
              ElementsAre(K + "If " + E + "x " + K + "Then ", E + C + "'note " + E));
}

TEST(HtmlLines, ACommentIsClosedWhereItsLineEnds) {
  EXPECT_EQ(Converted("'note"), C + "'note " + E);
  EXPECT_THAT(ConvertedLines({"'note", "x"}), ElementsAre(C + "'note " + E, "x "));
}

TEST(HtmlLines, EscapeQuotesAndAngleBracketsAndAmpersands) {
  EXPECT_EQ(Converted("s = \"a<b\"", ""), "s = &quot;a&lt;b&quot; ");
  EXPECT_EQ(Converted("a&b<c>d", ""), "a&amp;b&lt;c&gt;d ");
  EXPECT_EQ(Converted("&amp;", ""), "&amp;amp; ");
  EXPECT_EQ(Converted("it's", ""), "it's ");
}

TEST(HtmlLines, AnEmptyLineOpensAKeywordSpanOrGoesOnInOne) {
  EXPECT_THAT(ConvertedLines({"", "", ""}), ElementsAre(K + " ", " ", " "));
}

TEST(HtmlLines, AnEmptyLineIsColoredWithoutAnyKeywordsToo) {
  EXPECT_THAT(ConvertedLines({"", "x"}, ""), ElementsAre(K + " ", E + "x "));
}

TEST(HtmlLines, AnIndentOpensAKeywordSpan) {
  EXPECT_EQ(Converted("  x"), K + "  " + E + "x ");
  EXPECT_EQ(Converted("  If"), K + "  If ");
  EXPECT_EQ(Converted("x  y"), "x " + K + " " + E + "y ");
}

TEST(HtmlLines, TrailingBlanksOpenAKeywordSpan) {
  EXPECT_THAT(ConvertedLines({"x ", "y"}), ElementsAre("x " + K + " ", E + "y "));
}

TEST(HtmlLines, NeighboringKeywordsShareOneSpan) {
  EXPECT_EQ(Converted("End If x"), K + "End If " + E + "x ");
  EXPECT_EQ(Converted("End  If x"), K + "End  If " + E + "x ");
}

TEST(HtmlLines, AKeywordSpanGoesOnOverLineEnds) {
  EXPECT_THAT(ConvertedLines({"End", "Sub", "x"}), ElementsAre(K + "End ", "Sub ", E + "x "));
}

TEST(HtmlLines, AKeywordSpanThatNothingEndsStaysOpen) {
  EXPECT_THAT(ConvertedLines({"x", "End Sub"}), ElementsAre("x ", K + "End Sub "));
}

TEST(HtmlLines, KeywordsAreFoundLetterForLetter) {
  EXPECT_EQ(Converted("if IF If"), "if IF " + K + "If ");
}

TEST(HtmlLines, AnyPartOfTheListIsAKeyword) {
  EXPECT_EQ(Converted("n", "Then"), K + "n ");
  EXPECT_EQ(Converted("hen,E", "Then,End"), K + "hen,E ");
  EXPECT_EQ(Converted(",", "Then,End"), K + ", ");
}

TEST(HtmlLines, OnlyTheBlankEndsAWord) {
  EXPECT_EQ(Converted("If\tx"), "If\tx ");
  EXPECT_EQ(Converted("If(x)"), "If(x) ");
  EXPECT_EQ(Converted("\tIf"), "\tIf ");
  EXPECT_EQ(Converted("x=1", "x=1"), K + "x=1 ");
  EXPECT_EQ(Converted("If\xC2\xA0x"), "If\xC2\xA0x ");
}

TEST(HtmlLines, TheListIsSearchedForTheEscapedWord) {
  EXPECT_EQ(Converted("<", "<,>"), "&lt; ");
  EXPECT_EQ(Converted("<", "&lt;"), K + "&lt; ");
  EXPECT_EQ(Converted("&", "x,&,y"), "&amp; ");
  EXPECT_EQ(Converted("\"Hello\"", "&quot;Hello&quot;"), K + "&quot;Hello&quot; ");
}

TEST(HtmlLines, NothingWithinALiteralIsAKeyword) {
  EXPECT_EQ(Converted("\"a If b\" If"), "&quot;a If b&quot; " + K + "If ");
}

TEST(HtmlLines, ALiteralEndsTheKeywordSpanInFrontOfIt) {
  EXPECT_EQ(Converted("If \"If x\""), K + "If " + E + "&quot;If x&quot; ");
}

TEST(HtmlLines, ALiteralOfBlanksEndsTheKeywordSpan) {
  EXPECT_EQ(Converted("End \" \" End"), K + "End " + E + "&quot; &quot; " + K + "End ");
}

TEST(HtmlLines, AnOpenLiteralKeepsKeywordsOffInTheLinesBelow) {
  EXPECT_THAT(ConvertedLines({"x = \"open", "If", "close\" If"}),
              ElementsAre("x = &quot;open ", "If ", "close&quot; " + K + "If "));
}

TEST(HtmlLines, AnOpenLiteralLeavesEmptyLinesUncolored) {
  EXPECT_THAT(ConvertedLines({"\"open", "", "  x"}), ElementsAre("&quot;open ", " ", "  x "));
}

TEST(HtmlLines, TheWordThatClosesALiteralIsLookedUp) {
  EXPECT_EQ(Converted("\"a b\"", "b&quot;"), "&quot;a " + K + "b&quot; ");
}

TEST(HtmlLines, DoubledQuotesLeaveALiteralOpen) {
  EXPECT_EQ(Converted("\"a \"\" If \" If"), "&quot;a &quot;&quot; If &quot; " + K + "If ");
}

TEST(HtmlLines, ACommentBeginsAtAWordThatBeginsWithAnApostrophe) {
  EXPECT_EQ(Converted("x 'note If y"), "x " + C + "'note If y " + E);
  EXPECT_EQ(Converted("x ' If"), "x " + C + "' If " + E);
  EXPECT_EQ(Converted("x=1'note"), "x=1'note ");
  EXPECT_EQ(Converted("x=1' note"), "x=1' note ");
  EXPECT_EQ(Converted("\t'note"), "\t'note ");
}

TEST(HtmlLines, ASecondApostropheOpensNoSecondComment) {
  EXPECT_EQ(Converted("'one 'two ' three"), C + "'one 'two ' three " + E);
}

TEST(HtmlLines, AKeywordSpanIsClosedInFrontOfAComment) {
  EXPECT_EQ(Converted("End Sub 'done"), K + "End Sub " + E + C + "'done " + E);
  EXPECT_EQ(Converted("  ' indented"), K + "  " + E + C + "' indented " + E);
}

TEST(HtmlLines, NothingInACommentIsAKeyword) {
  EXPECT_EQ(Converted("' If  Then"), C + "' If  Then " + E);
}

TEST(HtmlLines, KeywordsAreColoredAgainBelowAComment) {
  EXPECT_THAT(ConvertedLines({"'one", "If"}), ElementsAre(C + "'one " + E, K + "If "));
}

TEST(HtmlLines, ACommentBeginsWithinALiteralToo) {
  EXPECT_EQ(Converted("\"it 'is so\""), "&quot;it " + C + "'is so&quot; " + E);
}

TEST(HtmlLines, AQuoteInACommentOpensALiteral) {
  EXPECT_THAT(ConvertedLines({"' 5\" wide", "If", "\" If"}),
              ElementsAre(C + "' 5&quot; wide " + E, "If ", "&quot; " + K + "If "));
}

TEST(HtmlLines, AWordThatBeginsWithAQuoteBeginsNoComment) {
  EXPECT_EQ(Converted("\"'x\""), "&quot;'x&quot; ");
  EXPECT_EQ(Converted("<'x"), "&lt;'x ");
}

TEST(HtmlLines, RemBeginsNoComment) {
  EXPECT_EQ(Converted("Rem If x"), "Rem " + K + "If " + E + "x ");
}

TEST(HtmlLines, OtherLettersPassThrough) {
  EXPECT_EQ(Converted("\u00e4 = \u20ac\u4e2d"), "\u00e4 = \u20ac\u4e2d ");
  EXPECT_EQ(Converted("\u00e4", "\u00e4,If"), K + "\u00e4 ");
}

TEST(HtmlLines, EachRunStartsAnew) {
  KeywordList keywords(kWords);
  {
    HtmlLines html(keywords);
    html.Convert("If \"open ");
  }
  HtmlLines html(keywords);
  EXPECT_EQ(html.Convert("If "), K + "If ");
}

}  // namespace html_lines_test
}  // namespace brimwork
