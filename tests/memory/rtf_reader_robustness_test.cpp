// Rich text that was damaged at random is read or refused, but never anything else.
#include <gtest/gtest.h>

#include <array>
#include <optional>
#include <random>
#include <string>

#include "environment/run_time_error.h"
#include "memory/rtf_reader.h"
#include "memory/rtf_writer.h"
#include "support/random_rich_text.h"

namespace brimwork {
namespace rtf_reader_robustness_test {

constexpr std::string_view kOdd =
    "{\\rtf1\\ansi\\ansicpg1251\\deff0{\\fonttbl{\\f0\\fcharset128 \\'82\\'6c{\\*\\falt X};}"
    "{\\f1\\fcharset204\\cpg1251 Y;}\\f2 Z;}{\\colortbl;\\red1\\green2\\blue3;}{\\*\\generator G;}"
    "{\\info{\\title T}}{\\pict\\bin3 }{}}\\pard\\plain\\f1\\cf1\\fs20 "
    "\\'cf\\'f0{\\f0\\'93\\'fa\\'83J}"
    "\\uc2\\u26085\\'93\\'fa\\u-10179??\\u-8704??\\tab\\line\\emdash\\~\\_\\\\\\{\\}\\\n\\par "
    "x\\par}";

/// None when the document is refused as no rich text; any other error is the test's failure.
std::optional<RichText> Read(const std::string& document) {
  try {
    return ReadRtf(document);
  } catch (const RunTimeError& error) {
    EXPECT_EQ(error.Number(), error_number::kInvalidFileFormat) << error.what();
    return std::nullopt;
  }
}

class DamagedRichText : public testing::TestWithParam<unsigned> {
 protected:
  std::string Document() {
    return random_.Below(3) == 0 ? std::string(kOdd) : WriteRtf(random_.Content());
  }

  std::string Damaged(std::string document) {
    for (int damages = 1 + random_.Below(4); damages > 0; --damages) DamageOnce(document);
    return document;
  }

  void DamageOnce(std::string& document) {
    const std::size_t at = Place(document);
    const std::size_t other = Place(document);
    switch (random_.Below(5)) {
      case 0:
        document.insert(at, 1, AnyByte());
        return;
      case 1:
        document.insert(at, Piece());
        return;
      case 2:
        document.erase(at, static_cast<std::size_t>(random_.Below(10)));
        return;
      case 3:
        document.insert(at, document.substr(other, static_cast<std::size_t>(random_.Below(60))));
        return;
      default:
        if (!document.empty()) document[at % document.size()] = AnyByte();
    }
  }

  std::size_t Place(const std::string& document) {
    return static_cast<std::size_t>(random_.Below(static_cast<int>(document.size()) + 1));
  }

  char AnyByte() { return static_cast<char>(random_.Below(256)); }

  std::string_view Piece() {
    static constexpr std::array<std::string_view, 16> kPieces = {"{",
                                                                 "}",
                                                                 "\\",
                                                                 "\\'",
                                                                 "\\'8",
                                                                 "\\u",
                                                                 "\\u-10179",
                                                                 "\\bin99 ",
                                                                 "\\uc9 ",
                                                                 "\\fonttbl",
                                                                 "\\colortbl",
                                                                 "\\f1",
                                                                 "\\fcharset128 ",
                                                                 "\\*",
                                                                 "\\par\r\n",
                                                                 "\\u-99999999999999 "};
    return kPieces[static_cast<std::size_t>(random_.Below(kPieces.size()))];
  }

  RandomRichText random_{GetParam()};
};

TEST_P(DamagedRichText, IsReadOrRefused) {
  int read = 0;
  int refused = 0;
  for (int round = 0; round < 300; ++round) {
    const std::string document = Damaged(Document());
    SCOPED_TRACE(document);
    const auto content = Read(document);
    ++(content ? read : refused);
    if (content) {
      ASSERT_TRUE(ReadRtf(WriteRtf(*content)) == *content);
      ASSERT_EQ(WithLineEnds(content->Text()), content->Text());
    }
  }
  EXPECT_GT(read, 20);
  EXPECT_GT(refused, 20);
}

INSTANTIATE_TEST_SUITE_P(Seeds, DamagedRichText, testing::Range(1u, 21u));

TEST(CutOffRichText, IsRefusedWhereverItIsCut) {
  const std::string document(kOdd);
  ASSERT_TRUE(Read(document));
  for (std::size_t size = 0; size < document.size(); ++size) {
    EXPECT_FALSE(Read(document.substr(0, size))) << size;
  }
}

}  // namespace rtf_reader_robustness_test
}  // namespace brimwork
