#include "memory/text_codec.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "support/known_encoding.h"

namespace brimwork {
namespace text_codec_test {

using testing::HasSubstr;

std::string Decoded(TextCodec& codec, std::string bytes) { return codec.Decode(std::move(bytes)); }

std::string Encoded(TextCodec& codec, std::string_view text) {
  std::string buffer;
  return std::string(codec.Encode(text, buffer));
}

std::size_t DecodeErrorOffset(TextCodec& codec, std::string bytes) {
  try {
    codec.Decode(std::move(bytes));
  } catch (const TextCodecError& error) {
    return error.Offset();
  }
  return std::string::npos;
}

std::size_t EncodeErrorOffset(TextCodec& codec, std::string_view text) {
  try {
    Encoded(codec, text);
  } catch (const TextCodecError& error) {
    return error.Offset();
  }
  return std::string::npos;
}

TEST(TextCodec, ReadsAndWritesWindows1252) {
  TextCodec codec("WINDOWS-1252");
  EXPECT_EQ(Decoded(codec, "Z\xE4hler \x80 ' caf\xE9"), "Zähler € ' café");
  EXPECT_EQ(Encoded(codec, "Zähler € ' café"), "Z\xE4hler \x80 ' caf\xE9");
}

TEST(TextCodec, TakesTheNamesOfEncodingsInAnyCase) {
  TextCodec codec("windows-1251");
  EXPECT_EQ(Decoded(codec, "\xCF\xF0\xE8"), "При");
}

TEST(TextCodec, NamesAnUnknownEncodingAndWhereTheKnownOnesAreListed) {
  for (const char* name : {"WINDOWS-9999", "", "CP1252//TRANSLIT", "UTF-16//IGNORE", "//"}) {
    try {
      TextCodec codec{std::string(name)};
      FAIL() << name;
    } catch (const std::invalid_argument& error) {
      EXPECT_EQ(error.what(), "unknown encoding \"" + std::string(name) +
                                  "\"; \"iconv -l\" lists the names that can be given");
    }
  }
}

TEST(TextCodec, TakesANameAsIconvListsIt) {
  TextCodec codec("CP1252//");
  EXPECT_EQ(Decoded(codec, "\xE4"), "ä");
}

TEST(TextCodec, MovesAsciiTextInsteadOfCopyingIt) {
  for (const char* encoding : {"WINDOWS-1252", "UTF-8", "CP932"}) {
    TextCodec codec(encoding);
    std::string bytes(1000, 'x');
    const char* const data = bytes.data();
    const std::string text = codec.Decode(std::move(bytes));
    EXPECT_EQ(text.data(), data) << encoding;
    std::string buffer;
    EXPECT_EQ(codec.Encode(text, buffer).data(), data) << encoding;
  }
}

TEST(TextCodec, RefusesTheBytesThatWindows1252DoesNotDefine) {
  TextCodec codec("WINDOWS-1252");
  for (const char byte : {'\x81', '\x8D', '\x8F', '\x90', '\x9D'}) {
    EXPECT_EQ(DecodeErrorOffset(codec, std::string("\xE4 a") + byte), 3u);
  }
}

TEST(TextCodec, LeavesTheBytesAloneWhenTheyCannotBeDecoded) {
  for (const char* encoding : {"WINDOWS-1252", "UTF-8", "UTF-16LE"}) {
    TextCodec codec(encoding);
    std::string bytes = "abc\x81";
    if (std::string(encoding) == "UTF-16LE") bytes.pop_back();
    const std::string before = bytes;
    EXPECT_THROW(codec.Decode(std::move(bytes)), TextCodecError);
    EXPECT_EQ(bytes, before) << encoding;
  }
}

TEST(TextCodec, TellsTheByteThatIsNoText) {
  TextCodec codec("WINDOWS-1252");
  try {
    Decoded(codec, "abc\x81");
    FAIL();
  } catch (const TextCodecError& error) {
    EXPECT_STREQ(error.what(), "the byte 0x81 is no text in WINDOWS-1252");
  }
}

TEST(TextCodec, TellsTheCharacterThatTheEncodingHasNot) {
  TextCodec codec("WINDOWS-1252");
  EXPECT_EQ(EncodeErrorOffset(codec, "ä → b"), 3u);
  try {
    Encoded(codec, "→");
    FAIL();
  } catch (const TextCodecError& error) {
    EXPECT_STREQ(error.what(), "the character \"→\" (U+2192) does not exist in WINDOWS-1252");
  }
}

TEST(TextCodec, RefusesNewTextThatIsNoUtf8) {
  for (const char* encoding : {"WINDOWS-1252", "UTF-8", "UTF-16LE"}) {
    TextCodec codec(encoding);
    EXPECT_EQ(EncodeErrorOffset(codec, "ab\xFF"), 2u) << encoding;
  }
}

TEST(TextCodec, DoesNotWriteAsOneByteWhatWouldBeReadAsAnother) {
  TextCodec codec("SHIFT_JIS");
  EXPECT_EQ(Decoded(codec, "a \\ 2"), "a \\ 2");
  EXPECT_EQ(EncodeErrorOffset(codec, "a \u00A5 2"), 2u);
}

TEST(TextCodec, ReadsTrailBytesThatLookLikeAscii) {
  TextCodec codec("CP932");
  EXPECT_EQ(Decoded(codec, "x = \"\x83\x5C\" ' \x95\x5C\r\n"), "x = \"ソ\" ' 表\r\n");
  EXPECT_EQ(Encoded(codec, "x = \"ソ\" ' 表\r\n"), "x = \"\x83\x5C\" ' \x95\x5C\r\n");
}

TEST(TextCodec, RefusesACharacterThatTheLineEndCutsOff) {
  TextCodec codec("CP932");
  EXPECT_EQ(DecodeErrorOffset(codec, "ab\x83\r\n"), 2u);
  EXPECT_EQ(DecodeErrorOffset(codec, "ab\x83"), 2u);
}

TEST(TextCodec, GivesTheBytesBackWhereSeveralFormsMeanOneCharacter) {
  TextCodec codec("CP932");
  const std::string bytes = "\x87\x90 \x81\xE0 \xED\x40 \xFA\x5C";
  const std::string text = Decoded(codec, bytes);
  EXPECT_EQ(Encoded(codec, text), bytes);
  EXPECT_EQ(codec.ForDisplay(text), "≒ ≒ 纊 纊");
}

TEST(TextCodec, WritesNewTextInTheUsualForm) {
  TextCodec codec("CP932");
  Decoded(codec, "\x87\x90");
  EXPECT_EQ(Encoded(codec, "≒"), "\x81\xE0");
}

TEST(TextCodec, ShowsTextWithoutOtherFormsAsItIs) {
  TextCodec codec("CP932");
  EXPECT_EQ(codec.ForDisplay("表 \xFF"), "表 \xFF");
  Decoded(codec, "\x87\x90");
  EXPECT_EQ(codec.ForDisplay("表 \xFF"), "表 \xFF");
}

/// Each character of up to two bytes alone, and between others.
void ExpectEveryTwoBytesComeBack(const std::string& encoding) {
  TextCodec codec(encoding);
  std::string all;
  int decodable = 0;
  for (int first = 0x80; first < 0x100; ++first) {
    for (int second = 0x20; second < 0x100; ++second) {
      const std::string bytes{static_cast<char>(first), static_cast<char>(second)};
      try {
        const std::string text = Decoded(codec, bytes);
        ASSERT_EQ(Encoded(codec, text), bytes) << encoding << first << " " << second;
        all += bytes;
        ++decodable;
      } catch (const TextCodecError&) {
      }
    }
  }
  EXPECT_GT(decodable, 5000) << encoding;
  EXPECT_EQ(Encoded(codec, Decoded(codec, all)), all) << encoding;
}

TEST(TextCodec, GivesEveryCharacterOfTheMultiByteCodePagesBack) {
  for (const char* encoding :
       {"CP932", "SHIFT_JIS", "CP936", "GBK", "GB18030", "CP949", "BIG5", "CP950", "BIG5-HKSCS",
        "EUC-JP", "EUC-KR", "EUC-JISX0213", "JOHAB"}) {
    if (IsKnownEncoding(encoding)) ExpectEveryTwoBytesComeBack(encoding);
  }
}

TEST(TextCodec, GivesEveryByteOfTheSingleByteCodePagesBack) {
  for (const char* encoding :
       {"CP1250", "CP1251", "CP1252", "CP1253", "CP1254", "CP1255", "CP1256", "CP1257", "CP1258",
        "CP874", "ISO-8859-1", "ISO-8859-15", "KOI8-R", "CP850", "MACINTOSH"}) {
    TextCodec codec(encoding);
    std::string bytes;
    for (int byte = 0; byte < 0x100; ++byte) {
      const std::string one(1, static_cast<char>(byte));
      if (DecodeErrorOffset(codec, one) == std::string::npos) bytes += one + one + "a" + one;
    }
    EXPECT_GT(bytes.size(), 4u * 200) << encoding;
    EXPECT_EQ(Encoded(codec, Decoded(codec, bytes)), bytes) << encoding;
  }
}

TEST(TextCodec, KeepsCombiningMarksApartFromTheirLetters) {
  TextCodec codec("CP1258");
  const std::string bytes = "a\xEC \xEA\xEC e\xCC";
  EXPECT_EQ(Encoded(codec, Decoded(codec, bytes)), bytes);
}

TEST(TextCodec, ReadsCharactersOfThreeAndFourBytes) {
  if (!IsKnownEncoding("GB18030")) GTEST_SKIP() << "this system does not know GB18030";
  TextCodec gb18030("GB18030");
  const std::string emoji =
      "a\x94\x39\xDA\x33"
      "b";
  EXPECT_EQ(Decoded(gb18030, emoji), "a\U0001F4A9b");
  EXPECT_EQ(Encoded(gb18030, "a\U0001F4A9b"), emoji);
  TextCodec eucJp("EUC-JP");
  const std::string supplementary = "\x8F\xB0\xA1 ";
  EXPECT_EQ(Encoded(eucJp, Decoded(eucJp, supplementary)), supplementary);
}

TEST(TextCodec, KeepsThePrivateCharactersThatAnEncodingHasItself) {
  TextCodec utf8("UTF-8");
  EXPECT_EQ(Encoded(utf8, Decoded(utf8, "\U000F0000")), "\U000F0000");
  if (!IsKnownEncoding("GB18030")) GTEST_SKIP() << "this system does not know GB18030";
  TextCodec gb18030("GB18030");
  const std::string bytes = Encoded(gb18030, "\U000F0001");
  EXPECT_EQ(bytes.size(), 4u);
  EXPECT_EQ(Encoded(gb18030, Decoded(gb18030, bytes)), bytes);
  EXPECT_EQ(gb18030.ForDisplay(Decoded(gb18030, bytes)), "\U000F0001");
}

TEST(TextCodec, RefusesDamagedUtf8AtItsFirstByte) {
  TextCodec codec("utf8");
  EXPECT_EQ(Decoded(codec, "Zähler → ≒"), "Zähler → ≒");
  EXPECT_EQ(DecodeErrorOffset(codec, "Zähler \xE2\x86"), 8u);
  EXPECT_EQ(DecodeErrorOffset(codec, "\xC0\xAF"), 0u);
}

TEST(TextCodec, ReadsAndWritesWholeTextsInEncodingsWithoutAscii) {
  const std::string text = "Sub Größe()\r\nEnd Sub\r\n";
  for (const char* encoding : {"UTF-16LE", "UTF-16BE", "UTF-32LE", "IBM1141"}) {
    if (!IsKnownEncoding(encoding)) continue;
    TextCodec codec(encoding);
    EXPECT_FALSE(codec.IsAsciiCompatible()) << encoding;
    const std::string bytes = Encoded(codec, text);
    EXPECT_NE(bytes, text);
    EXPECT_EQ(Decoded(codec, bytes), text) << encoding;
  }
}

TEST(TextCodec, ReadsAndWritesWholeTextsInEncodingsWithStates) {
  if (!IsKnownEncoding("ISO-2022-JP")) GTEST_SKIP() << "this system does not know ISO-2022-JP";
  TextCodec japanese("ISO-2022-JP");
  EXPECT_EQ(Decoded(japanese, "a \x1B$B$\"\x1B(B b"), "a あ b");
}

TEST(TextCodec, RefusesAWholeTextThatWouldNotComeBack) {
  if (!IsKnownEncoding("ISO-2022-JP")) GTEST_SKIP() << "this system does not know ISO-2022-JP";
  TextCodec codec("ISO-2022-JP");
  try {
    Decoded(codec, "ab\x1B(B");  // a change to the state that it is in already
    FAIL();
  } catch (const TextCodecError& error) {
    EXPECT_EQ(error.Offset(), 2u);
    EXPECT_STREQ(error.what(), "the text would not come back as the same bytes in ISO-2022-JP");
  }
}

TEST(TextCodec, TellsWhereAWholeTextBreaksOff) {
  TextCodec codec("UTF-16LE");
  EXPECT_EQ(DecodeErrorOffset(codec, std::string("a\0b\0c", 5)), 4u);
  EXPECT_EQ(EncodeErrorOffset(codec, "ab\xFF"), 2u);
  TextCodec ebcdic("IBM037");
  EXPECT_EQ(EncodeErrorOffset(ebcdic, "ab→"), 2u);
}

TEST(TextCodec, DecodesTheStartOfATextThatBreaksOff) {
  TextCodec codec("WINDOWS-1252");
  EXPECT_EQ(codec.DecodeStart("\xE4\x62\x81zz"), "äb");
  TextCodec wide("UTF-16LE");
  EXPECT_EQ(wide.DecodeStart(std::string_view("a\0b\0c", 5)), "ab");
}

}  // namespace text_codec_test
}  // namespace brimwork
