#include "cli/html_text.h"

#include <gtest/gtest.h>

namespace brimwork {
namespace html_text_test {

TEST(HtmlText, EscapesWhatMeansSomethingInAPage) {
  EXPECT_EQ(HtmlText("a<b> & \"c\" 'd'"), "a&lt;b&gt; &amp; &quot;c&quot; 'd'");
}

TEST(HtmlText, KeepsOtherCharacters) {
  EXPECT_EQ(HtmlText("Gr\xC3\xBC\xC3\x9F"
                     "e \xE2\x82\xAC \xF0\x9F\x98\x80\t"),
            "Gr\xC3\xBC\xC3\x9F"
            "e \xE2\x82\xAC \xF0\x9F\x98\x80\t");
}

TEST(HtmlText, ReplacesWhatAPageCannotHold) {
  EXPECT_EQ(HtmlText("a\nb\x01"
                     "c\x7F"),
            "a\xEF\xBF\xBD"
            "b\xEF\xBF\xBD"
            "c\xEF\xBF\xBD");
  EXPECT_EQ(HtmlText("\xFC\xC3"), "\xEF\xBF\xBD\xEF\xBF\xBD");
  EXPECT_EQ(HtmlText("\xC2\x85|\xEF\xB7\x90|\xEF\xBF\xBE"),
            "\xEF\xBF\xBD|\xEF\xBF\xBD|\xEF\xBF\xBD");
}

TEST(PercentEncoding, LeavesUnreservedCharactersOnly) {
  EXPECT_EQ(PercentEncoded("Form-1_a~b.htm"), "Form-1_a~b.htm");
  EXPECT_EQ(PercentEncoded("Price List.htm"), "Price%20List.htm");
  EXPECT_EQ(PercentEncoded("a?b#c%d:e\"f&g"), "a%3Fb%23c%25d%3Ae%22f%26g");
  EXPECT_EQ(PercentEncoded("\xC3\xBC\xFF\\"), "%C3%BC%FF%5C");
}

}  // namespace html_text_test
}  // namespace brimwork
