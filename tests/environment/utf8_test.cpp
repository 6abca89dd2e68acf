#include "environment/utf8.h"

#include <gtest/gtest.h>

namespace brimwork {
namespace utf8_test {

TEST(Utf8, FindsTheFirstByteAboveAsciiWhereverItStands) {
  for (std::size_t size = 0; size < 80; ++size) {
    std::string text(size, 'a');
    EXPECT_EQ(FindNonAscii(text, 0), size);
    for (std::size_t at = 0; at < size; ++at) {
      text[at] = '\x80';
      EXPECT_EQ(FindNonAscii(text, 0), at);
      EXPECT_EQ(FindNonAscii(text, at + 1), size);
      EXPECT_EQ(CountNonAscii(text), 1u);
      text[at] = 'a';
    }
  }
}

TEST(Utf8, WritesAndReadsCharactersOfEverySize) {
  for (const char32_t character : {U'A', U'\x7F', U'\x80', U'\x7FF', U'\x800', U'\xFFFD',
                                   U'\x10000', U'\xF0000', U'\x10FFFF'}) {
    std::string text;
    AppendUtf8(text, character);
    EXPECT_EQ(Utf8Size(text), text.size());
    EXPECT_EQ(Utf8Character(text), character);
  }
}

TEST(Utf8, RefusesWhatIsNoCharacter) {
  for (const char* text :
       {"\x80", "\xC0\x80", "\xC1\xBF", "\xE0\x9F\xBF", "\xED\xA0\x80", "\xF0\x8F\xBF\xBF",
        "\xF4\x90\x80\x80", "\xF5\x80\x80\x80", "\xC3", "\xC3(", "\xE2\x82", "\xE2\x82("}) {
    EXPECT_EQ(Utf8Size(text), 0u) << text;
  }
  EXPECT_EQ(Utf8Size(""), 0u);
}

}  // namespace utf8_test
}  // namespace brimwork
