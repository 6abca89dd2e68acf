// Files come back byte for byte, whatever they hold.
#include <gtest/gtest.h>

#include <string>
#include <vector>

#include "memory/source_file.h"
#include "support/known_encoding.h"
#include "support/source_files.h"

namespace brimwork {
namespace source_file_bytes_test {

struct Fixture {
  std::string bytes;
  std::string encoding = kWindows;
};

std::vector<Fixture> AllFixtures() {
  std::string lineFeeds;
  for (const char c : kForm) lineFeeds += c == '\r' ? "" : std::string(1, c);
  std::string mixed = kForm;
  for (std::size_t at = 0; (at = mixed.find("\r\n", at + 40)) != std::string::npos;)
    mixed.erase(at, 1);
  std::string large;
  for (int i = 0; i < 20000; ++i) large += "    x = " + std::to_string(i) + " ' Z\xE4hler\r\n";
  return {
      {kForm},
      {lineFeeds},
      {mixed},
      {kForm.substr(0, kForm.size() - 2)},
      {lineFeeds.substr(0, lineFeeds.size() - 1)},
      {""},
      {"\n"},
      {"\r\n"},
      {"\r"},
      {"\r\r\n\r"},
      {"\n\r\n\n"},
      {"Sub A()"},
      {"Attribute VB_Name = \"a\"\r\n"},
      {"Attribute VB_Name = \"a\""},
      {"Attribute a.VB_VarHelpID = -1"},
      {"x\r\nAttribute a.VB_VarHelpID = -1\nAttribute b.VB_VarHelpID = -1"},
      {"x\r\nAttribute a.VB_VarHelpID = -1\n"},
      {"Attribute VB_Name = \"a\"\nAttribute a.VB_VarHelpID = -1\r\nx"},
      {large},
      {std::string(200000, 'x') + "\r\n" + std::string(70000, '\xE4') + "\r\nAttribute a.VB_B=1"},
      {"x = \"\x83\x5C\" ' \x87\x90 \x81\xE0\r\nAttribute a.VB_Description = \"\x87\x90\"\r\n",
       "CP932"},
      {"x = \"\xC4\xE3\xBA\xC3\"\r\n", "CP936"},
      {"' \xCF\xF0\xE8\xE2\xE5\xF2\r\n", "CP1251"},
      {"\xEF\xBB\xBF' Gr\xC3\xB6\xC3\x9F"
       "e\r\nSub A()\r\n"},
      {"\xEF\xBB\xBF"},
      {"\xEF\xBB\xBF"
       "Attribute VB_Name = \"a\"\r\n"},
      {"\xEF\xBB\xBF\r\nx", "CP932"},
      {"Gr\xC3\xB6\xC3\x9F"
       "e",
       "UTF-8"},
      {Wide("Sub A()\r\nEnd Sub\r\n"), "UTF-16"},
      {"\xFF\xFE" + Wide("Sub A()\r\nEnd Sub\r\n"), "UTF-16"},
      {"\xFE\xFF" + BigEndian("Sub A()\r\nEnd Sub\r\n"), "UTF-16"},
      {"\xFE\xFF" + BigEndian("Sub A()"), "utf-16le"},
      {BigEndian("Sub A()\r\n"), "UTF-16BE"},
      {"a \x1B$B$\"\x1B(B b\r\nc\r\n", "ISO-2022-JP"}};
}

std::vector<Fixture> UneditedFixtures() {
  std::vector<Fixture> fixtures = AllFixtures();
  std::erase_if(fixtures, [](const Fixture& each) { return !IsKnownEncoding(each.encoding); });
  return fixtures;
}

TEST(SourceFileBytes, ComeBackUnedited) {
  for (const Fixture& fixture : UneditedFixtures()) {
    SourceFile file = Parsed(fixture.bytes, fixture.encoding);
    const ModuleText text = file.TakeText();
    EXPECT_EQ(Composed(file, text), fixture.bytes) << fixture.bytes.substr(0, 300);
  }
}

TEST(SourceFileBytes, ComeBackWhenEditsAreTakenBack) {
  for (const Fixture& fixture : UneditedFixtures()) {
    SourceFile file = Parsed(fixture.bytes, fixture.encoding);
    ModuleText text = file.TakeText();
    for (int line = 1; line <= text.Count(); ++line) {
      const std::string before(text.Line(line));
      text.Replace(line, before + "x");
      text.Replace(line, before);
    }
    EXPECT_EQ(Composed(file, text), fixture.bytes) << fixture.bytes.substr(0, 300);
  }
}

}  // namespace source_file_bytes_test
}  // namespace brimwork
