#include "windows/desktop/control_rich_text.h"

#include <gtest/gtest.h>

#include "memory/rtf_reader.h"
#include "windows/desktop/rich_edit_text.h"

namespace brimwork::windows {
namespace control_rich_text_test {

std::string TextOf(std::string_view streamed, std::wstring_view units) {
  return ReadRtf(PortableRichText(streamed, units)).Text();
}

TEST(PortableRichText, IsOfAsciiAlone) {
  EXPECT_EQ(
      PortableRichText("{\\urtf1\\uc1 \xC3\xA4\xE2\x82\xAC\xF0\x9F\x98\x80\\par}", L"ä€\U0001F600"),
      "{\\rtf1\\ansi\\uc1 \\u228?\\u8364?\\u-10179?\\u-8704?\\par}\r\n");
}

TEST(PortableRichText, LeavesWhatIsAsciiAsItIs) {
  const std::string document = "{\\rtf1{\\fonttbl{\\f0 A;}}\\pard \\{x\\}\\\\par\\'e9\\par}\r\n";
  EXPECT_EQ(PortableRichText(document, L"{x}\\paré"), document);
}

TEST(PortableRichText, EndsEveryLineAsAParagraph) {
  EXPECT_EQ(TextOf("{\\urtf1 a}", L"a"), "a");
  EXPECT_EQ(TextOf("{\\urtf1 a\\par}", L"a"), "a");
  EXPECT_EQ(TextOf("{\\urtf1 a\\par}", L"a\r"), "a\r\n");
  EXPECT_EQ(TextOf("{\\urtf1 a\\par\\pard}", L"a\r"), "a\r\n");
  EXPECT_EQ(TextOf(std::string("{\\urtf1 \\par\\par b}\r\n\0", 21), L"\r\rb"), "\r\n\r\nb");
}

TEST(PortableRichText, PutsCharactersInPlaceOfTheirStandIns) {
  const std::wstring units{L'a', 0, L'\t', 0x0B, kStandIn, 0xFFFF, 0x2028};
  const std::wstring held = WithStandIns(units);
  EXPECT_TRUE(held ==
              std::wstring({L'a', kStandIn, kStandIn, kStandIn, kStandIn, kStandIn, kStandIn}));
  EXPECT_EQ(TextOf("{\\urtf1 " + TextOfUnits(held) + "}", units), TextOfUnits(units));
}

TEST(PortableRichText, KnowsStandInsThatAreGivenByTheirNumbers) {
  const std::wstring units{L'\t', 0x01, L'x'};
  EXPECT_EQ(TextOf("{\\urtf1 \\u-1793?\\u63743\\'3fx\\u228?}", units), "\t\x01xä");
}

TEST(PortableRichText, IsADocumentWhereTheControlGivesNothing) {
  EXPECT_EQ(PortableRichText("", L""), "{\\rtf1\\ansi\\par\r\n}\r\n");
  EXPECT_EQ(TextOf("", L""), "");
}

TEST(WithStandIns, LeavesWhatAControlHolds) {
  const std::wstring units = L"ab\rä日\U0001F600\x7F\xA0\xE000";
  EXPECT_TRUE(WithStandIns(units) == units);
}

TEST(IsRichText, KnowsAWholeDocument) {
  EXPECT_TRUE(IsRichText("{\\rtf1 a\\}{b}}"));
  EXPECT_TRUE(IsRichText("{\\rtf}\r\n"));
  EXPECT_FALSE(IsRichText(""));
  EXPECT_FALSE(IsRichText("plain text"));
  EXPECT_FALSE(IsRichText("{\\rtf1 {a}"));
  EXPECT_FALSE(IsRichText("{\\rtf1 a\\}"));
  EXPECT_FALSE(IsRichText(" {\\rtf1 a}"));
}

}  // namespace control_rich_text_test
}  // namespace brimwork::windows
