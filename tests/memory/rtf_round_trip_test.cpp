// What is written is read back the same: text, fonts, sizes and colours.
#include <gtest/gtest.h>

#include <string>

#include "environment/text.h"
#include "memory/rtf_reader.h"
#include "memory/rtf_writer.h"
#include "memory/text_codec.h"
#include "support/random_rich_text.h"

namespace brimwork {
namespace rtf_round_trip_test {

void ExpectComesBack(const RichText& content) {
  const std::string document = WriteRtf(content);
  SCOPED_TRACE(document);
  const RichText read = ReadRtf(document);
  ASSERT_EQ(read.Text(), content.Text());
  ASSERT_TRUE(read == content);
  ASSERT_EQ(WriteRtf(read), document);
}

class RandomRichTextRoundTrip : public testing::TestWithParam<unsigned> {};

TEST_P(RandomRichTextRoundTrip, GivesTheSameTextAndFormats) {
  RandomRichText random(GetParam());
  for (int round = 0; round < 200 && !HasFatalFailure(); ++round) ExpectComesBack(random.Content());
}

TEST_P(RandomRichTextRoundTrip, OfAPartGivesThePart) {
  RandomRichText random(GetParam());
  for (int round = 0; round < 200; ++round) {
    RichText content = random.Content();
    const TextRange range = random.Range(content.Size());
    const RichText part = ReadRtf(WriteRtf(content, range));
    const ByteRange bytes = content.BytesOf(range);
    ASSERT_EQ(part.Text(), content.Text().substr(bytes.start, bytes.Size()));
    if (bytes.Size() == 0) continue;
    content.Replace({0, CharacterCount(content.Text().substr(0, bytes.start))}, "");
    content.Replace({part.Size(), content.Size()}, "");
    ASSERT_TRUE(part == content);
  }
}

INSTANTIATE_TEST_SUITE_P(Seeds, RandomRichTextRoundTrip, testing::Range(1u, 21u));

TEST(RichTextRoundTrip, GivesEveryCharacterOfTheCodePages) {
  for (const char* encoding : {"WINDOWS-1251", "WINDOWS-1252", "CP932", "CP936"}) {
    TextCodec codec(encoding);
    std::string text;
    for (int lead = 0x80; lead < 0x100; ++lead) {
      text += codec.DecodeStart(std::string(1, static_cast<char>(lead)));
      for (int trail = 0x40; trail < 0x100; ++trail) {
        text += codec.DecodeStart(std::string{static_cast<char>(lead), static_cast<char>(trail)});
      }
    }
    RichText content;
    content.SetText(text);
    EXPECT_GT(content.Size(), 100) << encoding;
    ExpectComesBack(content);
  }
}

TEST(RichTextRoundTrip, GivesEveryAsciiCharacterBehindEveryOther) {
  std::string text;
  for (char first = 0; first >= 0 && first < 127; ++first) {
    for (char second = 1; second < 127; ++second) text += {first, second};
  }
  RichText content;
  content.SetText(text);
  ExpectComesBack(content);
}

}  // namespace rtf_round_trip_test
}  // namespace brimwork
