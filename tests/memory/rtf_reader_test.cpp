#include "memory/rtf_reader.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>

#include "environment/run_time_error.h"

namespace brimwork {
namespace rtf_reader_test {

using testing::HasSubstr;
using testing::StartsWith;

constexpr Color kNavy = Rgb(0, 0, 128);
constexpr Color kGreen = Rgb(0, 128, 0);

std::string TextOf(const std::string& body) {
  return ReadRtf("{\\rtf1\\ansi " + body + "}").Text();
}

/// The text of a body in a font of a character set.
std::string TextIn(int charset, const std::string& body) {
  return TextOf("{\\fonttbl{\\f0\\fnil\\fcharset" + std::to_string(charset) + " A;}}\\f0 " + body);
}

std::string ErrorOf(std::string_view document) {
  try {
    ReadRtf(document);
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Number(), error_number::kInvalidFileFormat);
    return error.what();
  }
  return "none";
}

TEST(RtfReader, TakesTheLastParagraphsEndForNoText) {
  EXPECT_EQ(TextOf("a\\par "), "a");
  EXPECT_EQ(TextOf("a\\par\r\n"), "a");
  EXPECT_EQ(TextOf("a"), "a");
  EXPECT_EQ(TextOf("a\\par b"), "a\r\nb");
  EXPECT_EQ(TextOf("a\\par\\par"), "a\r\n");
  EXPECT_EQ(TextOf("\\par"), "");
  EXPECT_EQ(TextOf(""), "");
}

TEST(RtfReader, KeepsALineBreakAtTheEnd) { EXPECT_EQ(TextOf("a\\line"), "a\r\n"); }

TEST(RtfReader, KnowsEveryWayToEndALine) {
  EXPECT_EQ(TextOf("a\\par b\\line c\\sect d\\\ne\\\r\nf\\'0dg\\'0d\\'0ah\\u10?i"),
            "a\r\nb\r\nc\r\nd\r\ne\r\nf\r\ng\r\nh\r\ni");
}

TEST(RtfReader, PassesOverTheLineEndsOfTheDocument) { EXPECT_EQ(TextOf("a\r\nb\nc\rd"), "abcd"); }

TEST(RtfReader, TakesOneBlankBehindAWordForItsEnd) {
  EXPECT_EQ(TextOf("\\b a\\b0  b\\i c"), "a bc");
  EXPECT_EQ(TextOf("\\fs20a"), "a");
  EXPECT_EQ(TextOf("\\li-5-3"), "-3");
}

TEST(RtfReader, UndoesEscapes) {
  EXPECT_EQ(TextOf("\\\\par \\{x\\}\\tab\\'41\\'7B"), "\\par {x}\tA{");
  EXPECT_EQ(TextOf("a\\~b\\_c\\-d"), "a\u00A0b\u2011cd");
}

TEST(RtfReader, KnowsTheWordsForCharacters) {
  EXPECT_EQ(TextOf("\\lquote a\\rquote\\ldblquote b\\rdblquote\\endash\\emdash\\bullet\\cell z"),
            "‘a’“b”–—•\tz");
}

TEST(RtfReader, ReadsColorsFontsAndSizes) {
  const RichText content = ReadRtf(
      "{\\rtf1\\ansi\\deff0{\\fonttbl{\\f0\\fswiss Arial;}{\\f3\\fmodern\\fcharset0 Courier New;}}"
      "{\\colortbl ;\\red0\\green0\\blue128;\\red0\\green128\\blue0;}"
      "\\pard\\f3\\fs20\\cf1 If\\cf2  'c\\cf0\\f0\\fs17 x\\par}");
  EXPECT_EQ(content.Text(), "If 'cx");
  EXPECT_EQ(content.FormatAt(0), (TextFormat{"Courier New", 20, kNavy}));
  EXPECT_EQ(content.FormatAt(2), (TextFormat{"Courier New", 20, kGreen}));
  EXPECT_EQ(content.FormatAt(5), (TextFormat{"Arial", 17, std::nullopt}));
  EXPECT_EQ(content.Formats().Runs().size(), 3u);
}

TEST(RtfReader, TakesFormatsBackAtTheEndOfAGroup) {
  const RichText content =
      ReadRtf("{\\rtf1{\\colortbl ;\\red0\\green0\\blue128;}a{\\cf1\\fs40 b}c}");
  EXPECT_EQ(content.FormatAt(0), content.FormatAt(2));
  EXPECT_EQ(content.FormatAt(1).color, kNavy);
  EXPECT_EQ(content.FormatAt(1).halfPoints, 40);
}

TEST(RtfReader, StartsInTheDocumentsFontAtTwelvePointsAndGoesBackThereForPlain) {
  const RichText content = ReadRtf(
      "{\\rtf1\\deff1{\\fonttbl{\\f0 Arial;}{\\f1 Courier New;}}"
      "{\\colortbl ;\\red1\\green2\\blue3;}a\\f0\\cf1\\fs10 b\\plain c}");
  EXPECT_EQ(content.FormatAt(0), (TextFormat{"Courier New", 24, std::nullopt}));
  EXPECT_EQ(content.FormatAt(1), (TextFormat{"Arial", 10, Rgb(1, 2, 3)}));
  EXPECT_EQ(content.FormatAt(2), content.FormatAt(0));
}

TEST(RtfReader, LeavesCharactersAloneAtTheStartOfAParagraph) {
  const RichText content = ReadRtf("{\\rtf1{\\colortbl ;\\red1\\green2\\blue3;}\\cf1 a\\pard b}");
  EXPECT_EQ(content.Formats().Runs().size(), 1u);
}

TEST(RtfReader, KeepsTheFormatOfNoText) {
  const RichText content = ReadRtf("{\\rtf1{\\fonttbl{\\f0 Courier New;}}\\pard\\f0\\fs20\\par}");
  EXPECT_EQ(content.Text(), "");
  EXPECT_EQ(content.FormatAt(0), (TextFormat{"Courier New", 20, std::nullopt}));
}

TEST(RtfReader, TakesTheFirstColorForTheAutomaticOneOnlyWhereItIsEmpty) {
  EXPECT_EQ(ReadRtf("{\\rtf1{\\colortbl;\\red9\\green9\\blue9;}\\cf0 a}").FormatAt(0).color,
            std::nullopt);
  EXPECT_EQ(ReadRtf("{\\rtf1{\\colortbl\\red0\\green0\\blue128;}a}").FormatAt(0).color, kNavy);
}

TEST(RtfReader, TakesColorsAndFontsThatAreMissingForTheDefaultOnes) {
  const RichText content = ReadRtf("{\\rtf1{\\colortbl ;}\\cf7\\f7 a\\cf-1\\f-1 b}");
  EXPECT_EQ(content.FormatAt(0), (TextFormat{"MS Sans Serif", 24, std::nullopt}));
  EXPECT_EQ(content.Formats().Runs().size(), 1u);
}

TEST(RtfReader, HoldsNumbersWithinTheirBounds) {
  const RichText content = ReadRtf(
      "{\\rtf1{\\colortbl ;\\red999\\green-5\\blue128;}\\cf1\\fs99999999999999999999 a\\fs0 b}");
  EXPECT_EQ(content.FormatAt(0).color, Rgb(255, 0, 128));
  EXPECT_EQ(content.FormatAt(0).halfPoints, 4320);
  EXPECT_EQ(content.FormatAt(1).halfPoints, 1);
}

TEST(RtfReader, ReadsAFontTableWithoutInnerGroups) {
  const RichText content =
      ReadRtf("{\\rtf1{\\fonttbl\\f0\\fnil Arial;\\f1\\fmodern Courier New;}\\f1 a\\f0 b}");
  EXPECT_EQ(content.FormatAt(0).fontName, "Courier New");
  EXPECT_EQ(content.FormatAt(1).fontName, "Arial");
}

TEST(RtfReader, ReadsFontNamesOfAnyScript) {
  const RichText content = ReadRtf(
      "{\\rtf1{\\fonttbl{\\f0\\fnil\\fcharset128 \\'82\\'6c\\'82\\'72{\\*\\falt MS Gothic};}"
      "{\\f1\\fnil \\u1046?\\'3bx;}}\\f0 a\\f1 b}");
  EXPECT_EQ(content.FormatAt(0).fontName, "ＭＳ");
  EXPECT_EQ(content.FormatAt(1).fontName, "Ж;x");
}

TEST(RtfReader, ReadsBytesByTheFontsCharacterSet) {
  EXPECT_EQ(TextIn(0, "\\'e9\\'80"), "é€");
  EXPECT_EQ(TextIn(204, "\\'cf\\'f0\\'e8"), "При");
  EXPECT_EQ(TextIn(128, "\\'93\\'fa\\'96\\'7b\\'8c\\'ea"), "日本語");
  EXPECT_EQ(TextIn(134, "\\'c4\\'e3\\'ba\\'c3"), "你好");
  EXPECT_EQ(TextIn(136, "\\'a7\\'41"), "你");
  EXPECT_EQ(TextIn(129, "\\'c7\\'d1"), "한");
  EXPECT_EQ(TextIn(238, "\\'b3"), "ł");
  EXPECT_EQ(TextIn(161, "\\'e1"), "α");
}

TEST(RtfReader, ReadsBytesByTheDocumentsCodePageWhereTheFontTellsNone) {
  EXPECT_EQ(TextOf("\\ansicpg1251 \\'cf"), "П");
  EXPECT_EQ(TextOf("\\'cf"), "Ï");
  EXPECT_EQ(ReadRtf("{\\rtf1\\mac \\'8a}").Text(), "ä");
  EXPECT_EQ(ReadRtf("{\\rtf1\\pc \\'81}").Text(), "ü");
  EXPECT_EQ(ReadRtf("{\\rtf1\\pca \\'81}").Text(), "ü");
  EXPECT_EQ(TextOf("\\ansicpg1251{\\fonttbl{\\f0\\fcharset1 A;}}\\f0\\'cf"), "П");
}

TEST(RtfReader, ReadsBytesByACodePageGivenToTheFont) {
  EXPECT_EQ(
      TextOf("{\\fonttbl{\\f0\\fcharset0\\cpg1251 A;}{\\f1\\cpg65001 B;}}\\f0\\'cf\\f1\\'d0\\'96"),
      "ПЖ");
}

TEST(RtfReader, ReadsBytesOfAnUnknownCodePageAsWesternOnes) {
  EXPECT_EQ(TextOf("\\ansicpg4711 \\'e9"), "é");
}

TEST(RtfReader, ReadsUnescapedBytesLikeEscapedOnes) {
  EXPECT_EQ(TextOf("caf\xE9"), "café");
  EXPECT_EQ(TextIn(128, "\x93\xFA"), "日");
}

TEST(RtfReader, ReadsACharacterWhoseLastByteIsWrittenAsAscii) {
  EXPECT_EQ(TextIn(128, "\\'83Jx"), "カx");
  EXPECT_EQ(TextIn(128, "\\'83\\'5cx"), "ソx");
}

TEST(RtfReader, ShowsBytesThatAreNoTextAsReplacementCharacters) {
  EXPECT_EQ(TextOf("a\\'81b"), "a\uFFFDb");
  EXPECT_EQ(TextIn(128, "\\'83\\b x"), "\uFFFDx");
  EXPECT_EQ(TextIn(128, "\\'ff\\'93\\'fa"), "\uFFFD日");
}

TEST(RtfReader, ReadsUnicodeWithItsFallbackPassedOver) {
  EXPECT_EQ(TextOf("\\u1046?x"), "Жx");
  EXPECT_EQ(TextOf("\\uc2\\u26085\\'93\\'fax"), "日x");
  EXPECT_EQ(TextOf("\\uc0\\u26085 x"), "日x");
  EXPECT_EQ(TextOf("\\uc3\\u26085 ab\\tab x"), "日x");
  EXPECT_EQ(TextOf("\\u-30050?"), "語");
  EXPECT_EQ(TextOf("\\u35486?"), "語");
}

TEST(RtfReader, EndsTheFallbackAtABrace) {
  EXPECT_EQ(TextOf("{\\uc4\\u1046 a}b"), "Жb");
  EXPECT_EQ(TextOf("\\uc4\\u1046 a{b}"), "Жb");
}

TEST(RtfReader, TakesTheFallbacksSizeBackAtTheEndOfAGroup) {
  EXPECT_EQ(TextOf("{\\uc0\\u1046 a}\\u1046 ab"), "ЖaЖb");
}

TEST(RtfReader, CountsBinaryDataAsOneCharacterOfTheFallback) {
  EXPECT_EQ(TextOf("\\uc2\\u1046\\bin3 }}}?x"), "Жx");
}

TEST(RtfReader, JoinsTheHalvesOfACharacter) {
  EXPECT_EQ(TextOf("\\u-10179?\\u-8704?"), "😀");
  EXPECT_EQ(TextOf("\\u55357\\'3f\\u56832\\'3f"), "😀");
  EXPECT_EQ(TextOf("\\uc0 \\u55357\\uc1 \\u56832\\'3f"), "😀");
}

TEST(RtfReader, ShowsHalvesAloneAsReplacementCharacters) {
  EXPECT_EQ(TextOf("\\u-10179?x"), "\uFFFDx");
  EXPECT_EQ(TextOf("\\u-8704?x"), "\uFFFDx");
  EXPECT_EQ(TextOf("\\u-10179?\\b\\tab\\u-8704?"), "\uFFFD\t\uFFFD");
  EXPECT_EQ(TextOf("\\u-10179?\\par\\u-8704?"), "\uFFFD\r\n\uFFFD");
  EXPECT_EQ(TextOf("\\u-10179?\\u-10179?\\u-8704?"), "\uFFFD😀");
  EXPECT_EQ(TextOf("\\u-10179?\\'e9"), "\uFFFDé");
  EXPECT_EQ(TextOf("{\\u-10179?}\\u-8704?"), "\uFFFD\uFFFD");
}

TEST(RtfReader, PassesOverWhatIsNoText) {
  EXPECT_EQ(TextOf("{\\*\\generator Some Program;}{\\info{\\title T}{\\author A}}"
                   "{\\stylesheet{\\s1 Heading;}}{\\pict\\wmetafile8 0102}{\\header h}"
                   "{\\footnote f}a"),
            "a");
}

TEST(RtfReader, PassesOverBinaryDataWhateverItHolds) {
  EXPECT_EQ(TextOf("{\\pict\\bin5 }}\\{ }a"), "a");
  EXPECT_EQ(TextOf("a\\bin0 b\\bin-5 c"), "abc");
}

TEST(RtfReader, ShowsTheResultOfAField) {
  EXPECT_EQ(TextOf("{\\field{\\*\\fldinst HYPERLINK \"x\"}{\\fldrslt link}}"), "link");
}

TEST(RtfReader, PassesOverWordsItDoesNotKnow) {
  EXPECT_EQ(TextOf("\\kerning0\\cf1\\lang1033\\nosupersub\\unheardof a\\f b\\u c"), "abc");
}

TEST(RtfReader, LeavesTheTextBehindTheDocumentAlone) {
  EXPECT_EQ(ReadRtf(std::string("{\\rtf1 a\\par}\r\n\0}{", 18)).Text(), "a");
}

TEST(RtfReader, ReadsADocumentOfAWordPad) {
  const RichText content = ReadRtf(
      "{\\rtf1\\ansi\\ansicpg1251\\deff0\\deflang1049{\\fonttbl{\\f0\\fnil\\fcharset204"
      "{\\*\\fname Courier New;}Courier New CYR;}{\\f1\\fswiss\\fprq2\\fcharset0 Arial;}}\r\n"
      "{\\colortbl ;\\red0\\green128\\blue0;}\r\n"
      "{\\*\\generator Msftedit 5.41.21.2510;}\\viewkind4\\uc1\\pard\\f0\\fs20 x = 1 "
      "\\cf1 ' \\'ef\\'f0\\'e8\\'e2\\'e5\\'f2\\cf0\\par\r\n\\lang1033\\f1\\fs24 end\\par\r\n}\r\n");
  EXPECT_EQ(content.Text(), "x = 1 ' привет\r\nend");
  EXPECT_EQ(content.FormatAt(6), (TextFormat{"Courier New CYR", 20, kGreen}));
  EXPECT_EQ(content.FormatAt(16), (TextFormat{"Arial", 24, std::nullopt}));
}

TEST(RtfReader, ReadsADocumentOfAnOfficeProgram) {
  const RichText content = ReadRtf(
      "{\\rtf1\\ansi\\deff3\\adeflang1025\n{\\fonttbl{\\f0\\froman\\fprq2\\fcharset0 Times New "
      "Roman;}{\\f3\\froman\\fprq2\\fcharset0 Liberation Serif{\\*\\falt Times New Roman};}}\n"
      "{\\colortbl;\\red0\\green0\\blue0;\\red0\\green0\\blue128;}\n"
      "{\\stylesheet{\\s0\\snext0\\hich\\af5 Normal;}}{\\*\\generator X}"
      "{\\info{\\creatim\\yr2024\\mo1}{\\printim\\yr0}}\\viewbksp1\n"
      "{\\*\\ftnsep\\chftnsep}\\pgndec\\pard\\plain \\s0\\ql\\nowidctlpar\n"
      "{\\cf2 Sub}{\\hich\\af3\\loch A() \\u26085\\'3f\\u26412\\'3f}\n"
      "\\par \\pard\\plain \\s0 {\\loch x}\n\\par }");
  EXPECT_EQ(content.Text(), "SubA() 日本\r\nx");
  EXPECT_EQ(content.FormatAt(0), (TextFormat{"Liberation Serif", 24, kNavy}));
  EXPECT_EQ(content.FormatAt(3).color, std::nullopt);
}

TEST(RtfReader, RefusesWhatIsNoRichText) {
  for (const char* document : {"", "plain text", "{", "{}", "{\\rt f}", "\\rtf1 a", "{ \\rtf1 a}",
                               "{{\\rtf1 a}}", "{\\*\\rtf1 a}"}) {
    EXPECT_THAT(ErrorOf(document), StartsWith("no valid rich text: \"{\\rtf\" is missing"))
        << document;
  }
}

TEST(RtfReader, TellsWhatIsWrongAndWhere) {
  EXPECT_EQ(ErrorOf("{\\rtf1 a"), "no valid rich text: a group is not closed at byte 8");
  EXPECT_EQ(ErrorOf("{\\rtf1 a\\"),
            "no valid rich text: a backslash has nothing behind it at byte 9");
  EXPECT_EQ(ErrorOf("{\\rtf1 \\'4"),
            "no valid rich text: a byte is not given as two hexadecimal digits at byte 9");
  EXPECT_EQ(ErrorOf("{\\rtf1 \\'4g}"),
            "no valid rich text: a byte is not given as two hexadecimal digits at byte 9");
  EXPECT_EQ(ErrorOf("{\\rtf1 \\bin9 123}"),
            "no valid rich text: binary data is cut off at byte 13");
}

TEST(RtfReader, RefusesGroupsNestedBeyondReason) {
  EXPECT_EQ(ReadRtf("{\\rtf1 " + std::string(999, '{') + "a" + std::string(1000, '}')).Text(), "a");
  EXPECT_THAT(ErrorOf("{\\rtf1 " + std::string(2'000'000, '{')), HasSubstr("nested too deep"));
}

}  // namespace rtf_reader_test
}  // namespace brimwork
