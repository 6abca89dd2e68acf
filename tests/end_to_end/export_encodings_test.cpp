// The encoding of what is exported: the source's own where other programs can read it as ASCII.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "end_to_end/workplace.h"

namespace brimwork {
namespace export_encodings_test {

std::string Utf16(std::string_view ascii) {
  std::string bytes;
  for (const char c : ascii) bytes.append({c, '\0'});
  return bytes;
}

class ExportEncodings : public testing::Test {
 protected:
  std::string Exported(const std::string& format, const std::string& bytes,
                       const Words& options = {}) const {
    place.Write("m.bas", bytes);
    Words words{"export", "-q", "--format", format};
    words.insert(words.end(), options.begin(), options.end());
    words.push_back("m.bas");
    const ProgramResult result = place.Run(words);
    EXPECT_EQ(result.exitCode, 0) << result.error;
    return result.out;
  }

  /// The page of one line that has no keywords.
  static std::string Page(const std::string& line) {
    return "<pre>\r\n" + line + " \r\n</pre>\r\n";
  }

  Workplace place;
};

TEST_F(ExportEncodings, OfWindows1252IsKept) {
  EXPECT_EQ(Exported("text", "s = \"\xFC\x80\"\n"), "s = \"\xFC\x80\"");
  EXPECT_EQ(Exported("html", "s = \"\xFC\x80\"\n"), Page("s = &quot;\xFC\x80&quot;"));
}

TEST_F(ExportEncodings, OfCyrillicIsKept) {
  const std::string line = "s = \"\xC4\xE0\"";
  EXPECT_EQ(Exported("text", line + "\n", {"--encoding", "cp1251"}), line);
  EXPECT_EQ(Exported("html", line + "\n", {"--encoding", "cp1251"}),
            Page("s = &quot;\xC4\xE0&quot;"));
}

TEST_F(ExportEncodings, OfJapaneseIsKeptWithTrailBytesThatLookLikeAscii) {
  // The second bytes are a bar and a backslash; the last character has two byte forms.
  const std::string line = "' \x83\x7C\x83\x5C\x87\x90";
  EXPECT_EQ(Exported("text", line + "\n", {"--encoding", "cp932"}), line);
  EXPECT_EQ(Exported("html", line + "\n", {"--encoding", "cp932"}),
            "<pre>\r\n<font color=\"#008000\">" + line + " </font>\r\n</pre>\r\n");
}

TEST_F(ExportEncodings, OfUtf8IsKeptWithoutItsByteOrderMark) {
  EXPECT_EQ(Exported("text", "\xEF\xBB\xBFs = \"\xE2\x82\xAC\"\n"), "s = \"\xE2\x82\xAC\"");
  EXPECT_EQ(Exported("html", "s = \"\xE2\x82\xAC\"\n", {"--encoding", "UTF-8"}),
            Page("s = &quot;\xE2\x82\xAC&quot;"));
}

TEST_F(ExportEncodings, OfUtf16BecomesUtf8) {
  const std::string bytes = "\xFF\xFE" + Utf16("s = \"") + "\xAC\x20" + Utf16("\"\r\n");
  EXPECT_EQ(Exported("text", bytes, {"--encoding", "UTF-16"}), "s = \"\xE2\x82\xAC\"");
  EXPECT_EQ(Exported("html", bytes, {"--encoding", "UTF-16"}),
            Page("s = &quot;\xE2\x82\xAC&quot;"));
}

TEST_F(ExportEncodings, OfLinesIsThatOfTheFile) {
  EXPECT_EQ(Exported("text", "x\ns = \"\xC4\xE0\"\n", {"--encoding", "cp1251", "--lines", "2:2"}),
            "s = \"\xC4\xE0\"");
}

}  // namespace export_encodings_test
}  // namespace brimwork
