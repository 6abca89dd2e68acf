#include "cli/export_keywords.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "cli/command_request.h"
#include "memory/source_error.h"
#include "settings/setting_defaults.h"
#include "support/temporary_folder.h"

namespace brimwork {
namespace export_keywords_test {

using testing::HasSubstr;
using testing::ThrowsMessage;

constexpr const char* kWestern = "WINDOWS-1252";

class Keywords : public testing::Test {
 protected:
  std::string InFile(std::string_view bytes, const std::string& encoding = kWestern) {
    WriteBytes(folder_ / "words", bytes);
    return KeywordsOf("@" + (folder_ / "words").string(), encoding);
  }

  TemporaryFolder folder_;
};

TEST_F(Keywords, AreTheBuiltInOnesOnRequest) {
  EXPECT_EQ(KeywordsOf("builtin", kWestern), kBuiltInKeyWordList);
}

TEST_F(Keywords, AreAListAsItStands) {
  EXPECT_EQ(KeywordsOf("If,Then", kWestern), "If,Then");
  EXPECT_EQ(KeywordsOf(" If , Then ", kWestern), " If , Then ");
  EXPECT_EQ(KeywordsOf("", kWestern), "");
}

TEST_F(Keywords, InAFileAreSeparatedByCommasAndLineEnds) {
  EXPECT_EQ(InFile("If,Then\r\nEnd\nSub\r\n"), "If,Then,End,Sub");
  EXPECT_EQ(InFile("If"), "If");
}

TEST_F(Keywords, InAFileMayHaveBlanksAroundThem) {
  EXPECT_EQ(InFile("  If ,\tThen \n\n , ,\n On Error ,#If\n"), "If,Then,On Error,#If");
}

TEST_F(Keywords, InAnEmptyFileAreNone) {
  EXPECT_EQ(InFile(""), "");
  EXPECT_EQ(InFile("\n \n,\n"), "");
}

TEST_F(Keywords, InAFileMayBeUtf8WithAByteOrderMarkAndWithout) {
  EXPECT_EQ(InFile("\xEF\xBB\xBFSch\xC3\xB6n,If"), "Sch\xC3\xB6n,If");
  EXPECT_EQ(InFile("Sch\xC3\xB6n,If"), "Sch\xC3\xB6n,If");
}

TEST_F(Keywords, InAFileThatIsNoUtf8AreInTheEncodingOfTheRun) {
  EXPECT_EQ(InFile("Sch\xF6n,If"), "Sch\xC3\xB6n,If");
  EXPECT_EQ(InFile("\xD0\xF3\xF1,If", "WINDOWS-1251"), "\xD0\xA0\xD1\x83\xD1\x81,If");
  EXPECT_EQ(InFile(std::string_view("I\0f\0", 4), "UTF-16LE"), "If");
}

TEST_F(Keywords, OfAFileThatCannotBeReadAreAnError) {
  EXPECT_THAT([&] { KeywordsOf("@" + (folder_ / "none").string(), kWestern); },
              ThrowsMessage<SourceError>(HasSubstr("none: stat: No such file or directory")));
  EXPECT_THAT([&] { InFile(std::string_view("If\0Then", 7)); },
              ThrowsMessage<SourceError>(HasSubstr("words:1:3: this is a binary file")));
  EXPECT_THAT([&] { KeywordsOf("@", kWestern); },
              ThrowsMessage<UsageError>(HasSubstr("needs the name of a file")));
}

}  // namespace export_keywords_test
}  // namespace brimwork
