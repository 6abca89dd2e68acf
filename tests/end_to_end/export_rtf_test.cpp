// Rich text of a module: colours, spelling, encodings, and a quote that nothing closes.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "end_to_end/workplace.h"

namespace brimwork {
namespace export_rtf_test {

using testing::AllOf;
using testing::EndsWith;
using testing::HasSubstr;
using testing::Not;
using testing::StartsWith;

class ExportedRichText : public testing::Test {
 protected:
  std::string Exported(const std::string& bytes, const Words& options) const {
    place.Write("m.bas", bytes);
    Words words{"export", "-q", "--format", "rtf"};
    words.insert(words.end(), options.begin(), options.end());
    words.push_back("m.bas");
    const ProgramResult result = place.Run(words);
    EXPECT_EQ(result.exitCode, 0) << result.error;
    EXPECT_EQ(result.error, "");
    return result.out;
  }

  /// The one error line of an export that fails.
  std::string ErrorOf(Words words) const {
    words.insert(words.begin(), {"export", "--format", "rtf", "--keywords", "If"});
    const ProgramResult result = place.Run(words);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(LinesOf(result.error).size(), 1u) << result.error;
    return result.error;
  }

  Workplace place;
};

TEST_F(ExportedRichText, IsInCourierNewOfTenPoints) {
  const std::string text = Exported("x = 1\n", {"--keywords", "If"});
  EXPECT_THAT(text, AllOf(StartsWith("{\\rtf1"), HasSubstr("Courier New"), HasSubstr("\\fs20"),
                          HasSubstr("x = 1"), Not(HasSubstr("\\red0\\green0\\blue128;"))));
}

TEST_F(ExportedRichText, TakesKeywordsAsTheListSpellsThem) {
  const std::string text = Exported("if x then end_1 ' Note\n", {"--keywords", "If,Then,End"});
  EXPECT_THAT(
      text, AllOf(HasSubstr("\\red0\\green0\\blue128;"), HasSubstr("\\red0\\green128\\blue0;"),
                  HasSubstr("If"), HasSubstr("Then"), Not(HasSubstr("if x")), HasSubstr("' Note")));
}

TEST_F(ExportedRichText, OpensInAnotherProgramInItsColours) {
  if (place.Shell("command -v unrtf").exitCode != 0) GTEST_SKIP() << "unrtf is not installed";
  place.Write("out.rtf",
              Exported("x = 1\nSub A() ' note\nq = \"End\"\nEnd Sub\n", {"--keywords", "Sub,End"}));
  const std::string page = place.Shell("unrtf --html out.rtf").out;
  EXPECT_THAT(page, AllOf(HasSubstr("<font face=\"Courier New\">"),
                          HasSubstr("<font color=\"#000080\">Sub</font>"),
                          HasSubstr("<font color=\"#000000\"> A() </font>"),
                          HasSubstr("<font color=\"#008000\">' note</font>"),
                          HasSubstr("q = &quot;End&quot;<br>"),
                          HasSubstr("<font color=\"#000080\">End</font>")));
}

TEST_F(ExportedRichText, HoldsTheCharactersOfTheEncoding) {
  EXPECT_THAT(Exported("' \xE2\x82\xAC\n", {"--encoding", "UTF-8"}), HasSubstr("\\u8364?"));
  EXPECT_THAT(Exported("' \xC4\n", {"--encoding", "cp1251"}), HasSubstr("\\u1044"));
  EXPECT_THAT(Exported(std::string("\xFF\xFE'\0 \0\xAC\x20\r\0\n\0", 12), {"--encoding", "UTF-16"}),
              HasSubstr("\\u8364?"));
}

TEST_F(ExportedRichText, HoldsTheCharacterThatASecondByteFormMeans) {
  // Both are U+2252 in this encoding.
  const std::string one = Exported("' \x81\xE0\n", {"--encoding", "cp932"});
  const std::string other = Exported("' \x87\x90\n", {"--encoding", "cp932"});
  EXPECT_THAT(one, HasSubstr("\\u8786"));
  EXPECT_EQ(other, one);
}

TEST_F(ExportedRichText, NamesTheLineOfAQuoteThatNothingCloses) {
  place.Write("f.frm",
              "VERSION 5.00\nBegin VB.Form F\nEnd\nAttribute VB_Name = \"F\"\n"
              "Sub A()\nAttribute A.VB_Description = \"d\"\nx = \"open\nEnd Sub\n");
  EXPECT_EQ(ErrorOf({"f.frm"}),
            "brimwork: f.frm:7: a quote has no further quote anywhere behind it, so this makes no "
            "rich text; close the quote, or export as text or html\n");
}

TEST_F(ExportedRichText, NamesThatLineAlsoOfExportedLines) {
  place.Write("m.bas", "Attribute VB_Name = \"m\"\na = 1\nb = 2\nx = \"open\ny = \"shut\"\n");
  EXPECT_THAT(ErrorOf({"--lines", "3:4", "m.bas"}),
              StartsWith("brimwork: m.bas:4: a quote has no"));
  EXPECT_THAT(ErrorOf({"--lines", "4:5", "m.bas"}),
              StartsWith("brimwork: m.bas:5: a quote has no"));
}

TEST_F(ExportedRichText, WritesNothingOfACodeWithAnOpenQuote) {
  place.Write("m.bas", "x = \"open\n");
  ErrorOf({"-o", "out.rtf", "m.bas"});
  EXPECT_THAT(place.Names(), testing::ElementsAre("m.bas"));
}

TEST_F(ExportedRichText, OfAProjectLeavesOutTheModuleWithAnOpenQuote) {
  place.Write("src/a.bas", "x = \"open\n");
  place.Write("src/b.bas", "x = 1\n");
  const ProgramResult result =
      place.Run({"export", "--format", "rtf", "--keywords", "If", "-o", "out", "src"});
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_THAT(result.error, AllOf(HasSubstr("brimwork: src/a.bas:1: a quote has no further quote"),
                                  EndsWith("1 file exported to out, 1 failed\n")));
  EXPECT_THAT(place.Read("out/b.rtf"), HasSubstr("x = 1"));
}

TEST_F(ExportedRichText, OfAnEmptyModuleIsAnEmptyDocument) {
  EXPECT_THAT(Exported("", {"--keywords", "If"}), StartsWith("{\\rtf1"));
}

}  // namespace export_rtf_test
}  // namespace brimwork
