#include "memory/rtf_writer.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "environment/utf8.h"

namespace brimwork {
namespace rtf_writer_test {

using testing::EndsWith;
using testing::HasSubstr;
using testing::StartsWith;

constexpr Color kBlack = Rgb(0, 0, 0);
constexpr Color kNavy = Rgb(0, 0, 128);
constexpr Color kGreen = Rgb(0, 128, 0);

RichText TextOf(std::string_view text) {
  RichText content;
  content.SetText(text);
  return content;
}

RichText CodeOf(std::string_view text) {
  RichText code = TextOf(text);
  const TextRange all{0, code.Size()};
  code.SetColor(all, kBlack);
  code.SetFontName(all, "Courier New");
  code.SetFontSize(all, 10);
  return code;
}

/// What is written behind the header for text in the format of a new control.
std::string BodyOf(std::string_view text) {
  constexpr std::string_view kStart = "\\pard\\cf0\\f0\\fs16";
  const std::string document = WriteRtf(TextOf(text));
  const auto start = document.find(kStart);
  EXPECT_NE(start, std::string::npos) << document;
  EXPECT_THAT(document, EndsWith("}\r\n"));
  const auto body = start + kStart.size();
  return document.substr(body, document.size() - 3 - body);
}

TEST(RtfWriter, WritesColoredCodeAsOneDocument) {
  RichText code = CodeOf("If x Then ' test\r\nEnd If");
  code.SetColor({0, 2}, kNavy);
  code.SetColor({5, 4}, kNavy);
  code.SetColor({10, 6}, kGreen);
  code.SetColor({18, 3}, kNavy);
  code.SetColor({22, 2}, kNavy);
  EXPECT_EQ(WriteRtf(code),
            "{\\rtf1\\ansi\\ansicpg1252\\deff0\\uc1{\\fonttbl"
            "{\\f0\\fmodern\\fcharset0 Courier New;}}\r\n"
            "{\\colortbl ;\\red0\\green0\\blue128;\\red0\\green0\\blue0;\\red0\\green128\\blue0;}"
            "\r\n"
            "\\viewkind4\\uc1\\pard\\cf1\\f0\\fs20 If\\cf2  x \\cf1 Then\\cf2  \\cf3 ' test\\cf2"
            "\\par\r\n"
            "\\cf1 End\\cf2  \\cf1 If\\par\r\n"
            "}\r\n");
}

TEST(RtfWriter, ListsTheColorsInTheOrderOfTheirFirstUse) {
  RichText code = CodeOf("x If 'c");
  code.SetColor({2, 2}, kNavy);
  code.SetColor({5, 2}, kGreen);
  EXPECT_THAT(WriteRtf(code),
              HasSubstr("{\\colortbl ;\\red0\\green0\\blue0;\\red0\\green0\\blue128;"
                        "\\red0\\green128\\blue0;}"));
}

TEST(RtfWriter, ListsNoColorThatTheTextDoesNotHave) {
  EXPECT_THAT(WriteRtf(TextOf("a")), HasSubstr("{\\colortbl ;}"));
  EXPECT_THAT(WriteRtf(CodeOf("a")), HasSubstr("{\\colortbl ;\\red0\\green0\\blue0;}"));
}

TEST(RtfWriter, ListsTheFontsInTheOrderOfTheirFirstUse) {
  RichText content = TextOf("abcd");
  content.SetFontName({1, 1}, "Courier New");
  content.SetFontName({2, 1}, "Times New Roman");
  content.SetFontName({3, 1}, "Wingdings");
  const std::string document = WriteRtf(content);
  EXPECT_THAT(document, HasSubstr("{\\fonttbl{\\f0\\fswiss\\fcharset0 MS Sans Serif;}"
                                  "{\\f1\\fmodern\\fcharset0 Courier New;}"
                                  "{\\f2\\froman\\fcharset0 Times New Roman;}"
                                  "{\\f3\\fnil\\fcharset0 Wingdings;}}"));
  EXPECT_THAT(document, HasSubstr("\\f0\\fs16 a\\f1 b\\f2 c\\f3 d\\par"));
}

TEST(RtfWriter, EscapesWhatWouldDivideTheFontTable) {
  RichText content = TextOf("a");
  content.SetFontName({0, 1}, "A;B\t{C}");
  EXPECT_THAT(WriteRtf(content), HasSubstr("{\\f0\\fnil\\fcharset0 A\\'3bB\\'09\\{C\\};}"));
}

TEST(RtfWriter, WritesOnlyWhatChangesFromRunToRun) {
  RichText content = CodeOf("abcd");
  content.SetColor({1, 1}, kNavy);
  content.SetFontSize({2, 1}, 12);
  content.SetFontName({3, 1}, "Arial");
  EXPECT_THAT(WriteRtf(content),
              HasSubstr("\\cf1\\f0\\fs20 a\\cf2 b\\cf1\\fs24 c\\f1\\fs20 d\\par"));
}

TEST(RtfWriter, EndsEveryLineWithAParagraph) {
  EXPECT_EQ(BodyOf(""), "\\par\r\n");
  EXPECT_EQ(BodyOf("a"), " a\\par\r\n");
  EXPECT_EQ(BodyOf("a\r\n"), " a\\par\r\n\\par\r\n");
  EXPECT_EQ(BodyOf("a\r\n\r\nb"), " a\\par\r\n\\par\r\nb\\par\r\n");
}

TEST(RtfWriter, WritesTheFormatOfNoText) {
  RichText empty;
  empty.SetFontName({0, 0}, "Courier New");
  empty.SetFontSize({0, 0}, 10);
  EXPECT_THAT(WriteRtf(empty), HasSubstr("Courier New;}}"));
  EXPECT_THAT(WriteRtf(empty), HasSubstr("\\pard\\cf0\\f0\\fs20\\par\r\n}"));
}

TEST(RtfWriter, EscapesWhatHasAMeaningInRichText) {
  EXPECT_EQ(BodyOf("a\\b{c}"), " a\\\\b\\{c\\}\\par\r\n");
  EXPECT_EQ(BodyOf("{\\par}"), "\\{\\\\par\\}\\par\r\n");
}

TEST(RtfWriter, WritesTabsAsWordsThatTextIsSetOffFrom) {
  EXPECT_EQ(BodyOf("\tx\t\t 1\t\\"), "\\tab x\\tab\\tab  1\\tab\\\\\\par\r\n");
}

TEST(RtfWriter, WritesControlCharactersAsBytes) {
  EXPECT_EQ(BodyOf(std::string("a\x01\x1F\x7F\0z", 6)), " a\\'01\\'1f\\'7f\\'00z\\par\r\n");
}

TEST(RtfWriter, WritesOtherScriptsAsSignedUtf16) {
  EXPECT_EQ(BodyOf("é7"), "\\u233?7\\par\r\n");
  EXPECT_EQ(BodyOf("Ж"), "\\u1046?\\par\r\n");
  EXPECT_EQ(BodyOf("日語"), "\\u26085?\\u-30050?\\par\r\n");
  EXPECT_EQ(BodyOf("\u7FFF\u8000\uFFFF"), "\\u32767?\\u-32768?\\u-1?\\par\r\n");
}

TEST(RtfWriter, WritesCharactersBeyondThe65536thAsTwoUnits) {
  EXPECT_EQ(BodyOf("😀"), "\\u-10179?\\u-8704?\\par\r\n");
  EXPECT_EQ(BodyOf("\U00010000\U0010FFFF"), "\\u-10240?\\u-9216?\\u-9217?\\u-8193?\\par\r\n");
}

TEST(RtfWriter, WritesAsciiAlone) {
  RichText content = TextOf("é Ж 日本 😀 \u0080 \uFFFD");
  content.SetFontName({0, 3}, "ＭＳ ゴシック");
  const std::string document = WriteRtf(content);
  EXPECT_EQ(FindNonAscii(document, 0), document.size());
}

TEST(RtfWriter, WritesAPartOfTheTextWithWhatItUses) {
  RichText code = CodeOf("If x 'c\r\nnext");
  code.SetColor({0, 2}, kNavy);
  code.SetColor({5, 2}, kGreen);
  const std::string document = WriteRtf(code, {1, 4});
  EXPECT_THAT(document, HasSubstr("{\\colortbl ;\\red0\\green0\\blue128;\\red0\\green0\\blue0;}"));
  EXPECT_THAT(document, EndsWith("\\cf1\\f0\\fs20 f\\cf2  x \\par\r\n}\r\n"));
}

TEST(RtfWriter, WritesALineEndThatIsPartlySelectedInWhole) {
  EXPECT_THAT(WriteRtf(TextOf("a\r\nb"), {0, 2}), EndsWith(" a\\par\r\n\\par\r\n}\r\n"));
  EXPECT_THAT(WriteRtf(TextOf("a\r\nb"), {2, 2}), EndsWith("\\par\r\nb\\par\r\n}\r\n"));
}

TEST(RtfWriter, WritesTheFormatWhereNothingIsSelected) {
  RichText code = TextOf("ab");
  code.SetColor({1, 1}, kNavy);
  EXPECT_THAT(WriteRtf(code, {1, 0}), EndsWith("\\cf1\\f0\\fs16\\par\r\n}\r\n"));
  EXPECT_THAT(WriteRtf(code, {9, 9}), EndsWith("\\cf1\\f0\\fs16\\par\r\n}\r\n"));
}

}  // namespace rtf_writer_test
}  // namespace brimwork
