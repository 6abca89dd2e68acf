#include "environment/byte_marks.h"

#include <gtest/gtest.h>

#include <string>
#include <vector>

namespace brimwork {
namespace byte_marks_test {

struct IsDigitByte {
  bool operator()(unsigned char c) const { return static_cast<unsigned char>(c - '0') < 10; }
};
using Digits = ByteMarks<IsDigitByte>;

struct IsControl {
  bool operator()(unsigned char c) const { return c < ' '; }
};

TEST(ByteMarks, FindTheOneMarkedByteFromEveryPlaceInFrontOfIt) {
  for (const std::size_t length : {1u, 63u, 64u, 65u, 128u, 200u}) {
    for (std::size_t place = 0; place < length; ++place) {
      std::string text(length, 'x');
      text[place] = '7';
      Digits digits(text);
      for (std::size_t from = 0; from <= place; ++from) ASSERT_EQ(digits.Next(from), place);
      for (std::size_t from = place + 1; from <= length; ++from) {
        ASSERT_EQ(digits.Next(from), length) << place;
      }
    }
  }
}

TEST(ByteMarks, FindTheOneByteWithoutAMark) {
  for (const std::size_t length : {1u, 63u, 64u, 65u, 200u}) {
    for (std::size_t place = 0; place < length; ++place) {
      std::string text(length, '7');
      text[place] = 'x';
      Digits digits(text);
      for (std::size_t from = 0; from <= place; ++from) ASSERT_EQ(digits.NextUnmarked(from), place);
      ASSERT_EQ(digits.NextUnmarked(place + 1), length);
    }
  }
}

TEST(ByteMarks, LeadFromWordToWord) {
  const std::string text = "12 345,6" + std::string(100, ' ') + "78";
  Digits digits(text);
  std::vector<std::string> found;
  for (std::size_t at = digits.Next(0); at < text.size(); at = digits.Next(at)) {
    const std::size_t end = digits.NextUnmarked(at);
    found.push_back(text.substr(at, end - at));
    at = end;
  }
  EXPECT_EQ(found, (std::vector<std::string>{"12", "345", "6", "78"}));
}

TEST(ByteMarks, EndWithTheText) {
  EXPECT_EQ(Digits("").Next(0), 0u);
  EXPECT_EQ(Digits("").NextUnmarked(0), 0u);
  EXPECT_EQ(Digits("12").NextUnmarked(0), 2u);
  EXPECT_EQ(ByteMarks<IsControl>("abc").Next(0), 3u);
}

TEST(ByteMarks, LookAtBytesBeyondAsciiToo) {
  EXPECT_EQ(Digits("\xB0\xFF"
                   "1")
                .Next(0),
            2u);
  EXPECT_EQ(Digits("1\xB1").NextUnmarked(0), 1u);
}

}  // namespace byte_marks_test
}  // namespace brimwork
