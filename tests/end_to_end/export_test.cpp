// One module exported: what the formats hold, where the result goes, and what is told.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <filesystem>

#include "end_to_end/sources.h"
#include "end_to_end/workplace.h"

namespace brimwork {
namespace export_test {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::StartsWith;

constexpr const char* kMessyAsText = "Sub Main()\r\nIf Ready Then\r\nWork\r\nEnd If\r\nEnd Sub";

constexpr const char* kMessyAsPage =
    "<pre>\r\n"
    "<font color=\"#000080\">Sub </font>Main() \r\n"
    "<font color=\"#000080\">If </font>Ready <font color=\"#000080\">Then \r\n"
    "</font>Work \r\n"
    "<font color=\"#000080\">End If \r\n"
    "End Sub \r\n"
    "</pre>\r\n";

constexpr const char* kKeywords = "Sub,If,Then,End";

class Export : public testing::Test {
 protected:
  Export() { place.Write("m.bas", kMessy); }

  /// What a run prints that says nothing else.
  std::string Output(Words words, const std::string& input = {}) const {
    words.insert(words.begin(), "export");
    const ProgramResult result = place.Run(words, input);
    EXPECT_EQ(result.exitCode, 0) << result.error;
    EXPECT_EQ(result.error, "");
    return result.out;
  }

  /// The one error line of a run that fails.
  std::string ErrorOf(Words words) const {
    words.insert(words.begin(), "export");
    const ProgramResult result = place.Run(words);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(LinesOf(result.error).size(), 1u) << result.error;
    return result.error;
  }

  Workplace place;
};

TEST_F(Export, PrintsTextWithoutAnyPlace) {
  EXPECT_EQ(Output({"--format", "text", "m.bas"}), kMessyAsText);
  EXPECT_EQ(Output({"--format", "text", "-o", "-", "m.bas"}), kMessyAsText);
  EXPECT_THAT(place.Names(), ElementsAre("m.bas"));
}

TEST_F(Export, PrintsAWebPageWithKeywordsAndComments) {
  EXPECT_EQ(Output({"--format", "html", "--keywords", kKeywords, "m.bas"}), kMessyAsPage);
  place.Write("c.bas", "If x Then\n'note\n  s = \"a<b\" & 'c'\n\n");
  EXPECT_EQ(Output({"--format", "html", "--keywords", "If,Then", "c.bas"}),
            "<pre>\r\n"
            "<font color=\"#000080\">If </font>x <font color=\"#000080\">Then \r\n"
            "</font><font color=\"#008000\">'note </font>\r\n"
            "<font color=\"#000080\">  </font>s = &quot;a&lt;b&quot; &amp; "
            "<font color=\"#008000\">'c' </font>\r\n"
            "<font color=\"#000080\"> \r\n"
            "</pre>\r\n");
}

TEST_F(Export, ShowsWhatTheEditorShowsAndNoMore) {
  place.Write("f.frm",
              "VERSION 5.00\nBegin VB.Form F\n   Caption = \"x\"\nEnd\n"
              "Attribute VB_Name = \"F\"\nOption Explicit\n"
              "Sub A()\nAttribute A.VB_Description = \"d\"\nEnd Sub\n");
  EXPECT_EQ(Output({"--format", "text", "f.frm"}), "Option Explicit\r\nSub A()\r\nEnd Sub");
}

TEST_F(Export, TakesModulesWithoutProceduresAndEmptyOnes) {
  place.Write("d.bas", "Option Explicit\n");
  place.Write("e.bas", "");
  place.Write("n.bas", "Attribute VB_Name = \"n\"\n");
  EXPECT_EQ(Output({"--format", "text", "d.bas"}), "Option Explicit");
  for (const char* name : {"e.bas", "n.bas"}) {
    EXPECT_EQ(Output({"--format", "text", name}), "");
    EXPECT_EQ(Output({"--format", "html", "--keywords", "If", name}),
              "<pre>\r\n<font color=\"#000080\"> \r\n</pre>\r\n");
  }
}

TEST_F(Export, TakesStandardInput) {
  EXPECT_EQ(Output({"--format", "text", "-"}, kMessy), kMessyAsText);
  place.Run({"export", "--format", "text", "-o", ".", "-"}, kMessy);
  EXPECT_EQ(place.Read("stdin.txt"), kMessyAsText);
  place.Run({"export", "--format", "text", "-o", ".", "--stdin-filename", "src/a.bas", "-"}, kMessy);
  EXPECT_EQ(place.Read("a.txt"), kMessyAsText);
  const ProgramResult result =
      place.Run({"export", "--format", "text", "--stdin-filename", "src/a.bas", "-"}, "x = \x81\n");
  EXPECT_THAT(result.error, StartsWith("brimwork: src/a.bas:1:5: "));
}

TEST_F(Export, LeavesTheSourceAlone) {
  Output({"--format", "html", "--keywords", "sub,main", "m.bas"});
  EXPECT_EQ(place.Read("m.bas"), kMessy);
}

TEST_F(Export, WritesAFileAndTellsWhere) {
  const ProgramResult result = place.Run({"export", "--format", "text", "-o", "out.x", "m.bas"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.out, "");
  EXPECT_EQ(result.error, "m.bas: exported to out.x\n");
  EXPECT_EQ(place.Read("out.x"), kMessyAsText);
  EXPECT_THAT(place.Names(), ElementsAre("m.bas", "out.x"));
}

TEST_F(Export, WritesIntoAFolderByTheSourcesName) {
  fs::create_directory(place / "there");
  EXPECT_EQ(Output({"-q", "--format", "text", "-o", "there", "m.bas"}), "");
  EXPECT_EQ(Output({"-q", "--format", "html", "--keywords", kKeywords, "-o", "new/deep/", "m.bas"}),
            "");
  EXPECT_EQ(place.Read("there/m.txt"), kMessyAsText);
  EXPECT_EQ(place.Read("new/deep/m.htm"), kMessyAsPage);
}

TEST_F(Export, NeedsTheFolderOfItsFile) {
  EXPECT_EQ(ErrorOf({"--format", "text", "-o", "none/a.txt", "m.bas"}),
            "brimwork: none: there is no such folder; make it first\n");
  EXPECT_EQ(ErrorOf({"--format", "text", "-o", "m.bas/a.txt", "m.bas"}),
            "brimwork: m.bas: this is no folder; make it first\n");
}

TEST_F(Export, MakesNoFolderWhenTheModuleCannotBeExported) {
  ErrorOf({"--format", "text", "-o", "new/", "gone.bas"});
  EXPECT_THAT(place.Names(), ElementsAre("m.bas"));
}

TEST_F(Export, TellsLinesAndEncodingWithVerbose) {
  EXPECT_EQ(place.Run({"export", "--format", "text", "-v", "-o", "a.txt", "m.bas"}).error,
            "m.bas: exported to a.txt\nm.bas: 5 lines, read as WINDOWS-1252\n");
  place.Write("one.bas", "\xEF\xBB\xBFx = 1\n");
  EXPECT_EQ(place.Run({"export", "--format", "text", "-v", "one.bas"}).error,
            "one.bas: 1 line, read as UTF-8\n");
}

TEST_F(Export, TellsOfAnEmptyKeywordListOnce) {
  for (const char* format : {"rtf", "html"}) {
    const ProgramResult result = place.Run({"export", "--format", format, "m.bas"});
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.error,
              "the keyword list is empty, so this export has no keyword colours: give --keywords "
              "builtin, or store a list with \"brimwork settings set KeyWordList WORD,WORD,...\"\n");
  }
  EXPECT_EQ(place.Run({"export", "--format", "html", "-q", "m.bas"}).error, "");
  EXPECT_EQ(place.Run({"export", "--format", "text", "m.bas"}).error, "");
  EXPECT_EQ(place.Run({"export", "--format", "html", "m.bas"}).out,
            "<pre>\r\nSub Main() \r\nIf Ready Then \r\nWork \r\nEnd If \r\nEnd Sub \r\n</pre>\r\n");
}

TEST_F(Export, ColoursTheStoredKeywords) {
  place.Run({"settings", "set", "KeyWordList", kKeywords});
  EXPECT_EQ(Output({"--format", "html", "m.bas"}), kMessyAsPage);
  EXPECT_EQ(Output({"--format", "html", "--set", "KeyWordList=Work", "m.bas"}),
            Output({"--format", "html", "--keywords", "Work", "m.bas"}));
}

TEST_F(Export, TakesKeywordsForOneRunOnly) {
  place.Run({"settings", "set", "KeyWordList", "Work"});
  EXPECT_EQ(Output({"--format", "html", "--keywords", kKeywords, "m.bas"}), kMessyAsPage);
  EXPECT_EQ(place.Run({"settings", "get", "KeyWordList"}).out, "Work\n");
}

TEST_F(Export, TakesTheBuiltInKeywords) {
  place.Write("b.bas", "Dim Ready\n");
  EXPECT_EQ(Output({"--format", "html", "--keywords", "builtin", "b.bas"}),
            "<pre>\r\n<font color=\"#000080\">Dim </font>Ready \r\n</pre>\r\n");
}

TEST_F(Export, TakesKeywordsFromAFile) {
  place.Write("words.txt", "\xEF\xBB\xBFSub, If\r\n Then\r\n\r\nEnd\r\n");
  EXPECT_EQ(Output({"--format", "html", "--keywords", "@words.txt", "m.bas"}), kMessyAsPage);
  EXPECT_EQ(ErrorOf({"--format", "html", "--keywords", "@none.txt", "m.bas"}),
            "brimwork: none.txt: stat: No such file or directory\n");
}

TEST_F(Export, NeedsAFormatAndAFile) {
  EXPECT_EQ(ErrorOf({"m.bas"}), "brimwork: say what to export: --format text, rtf or html\n");
  EXPECT_THAT(ErrorOf({"--format", "pdf", "m.bas"}), HasSubstr("there is no format \"pdf\""));
  EXPECT_THAT(ErrorOf({"--format", "text"}), HasSubstr("no files given"));
  EXPECT_THAT(ErrorOf({"--format", "text", "--encoding", "klingon", "m.bas"}),
              HasSubstr("unknown encoding"));
  EXPECT_THAT(ErrorOf({"--format", "text", "--set", "Nothing=1", "m.bas"}), HasSubstr("Nothing"));
}

TEST_F(Export, IsWhatItsCaptionsPointTo) {
  for (const char* caption : {"Text", "RTF", "Web Page", "Quick Export"}) {
    const ProgramResult result = place.Run({"run", caption, "m.bas"});
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_THAT(result.error, HasSubstr("run brimwork export --"));
  }
}

class ExportOverAFile : public Export {
 protected:
  ExportOverAFile() { place.Write("out.txt", "old"); }
};

TEST_F(ExportOverAFile, NeedsForce) {
  EXPECT_EQ(ErrorOf({"--format", "text", "-o", "out.txt", "m.bas"}),
            "brimwork: out.txt: the file is already there; --force replaces it\n");
  EXPECT_EQ(place.Read("out.txt"), "old");
}

TEST_F(ExportOverAFile, ReplacesItAndKeepsItsPermissions) {
  ASSERT_EQ(chmod((place / "out.txt").c_str(), 0640), 0);
  EXPECT_EQ(Output({"-q", "--format", "text", "--force", "-o", "out.txt", "m.bas"}), "");
  EXPECT_EQ(place.Read("out.txt"), kMessyAsText);
  struct stat status;
  ASSERT_EQ(stat((place / "out.txt").c_str(), &status), 0);
  EXPECT_EQ(status.st_mode & 07777, 0640u);
}

TEST_F(ExportOverAFile, FollowsItsLink) {
  fs::create_symlink("out.txt", place / "link.txt");
  EXPECT_EQ(Output({"-q", "--format", "text", "--force", "-o", "link.txt", "m.bas"}), "");
  EXPECT_TRUE(fs::is_symlink(place / "link.txt"));
  EXPECT_EQ(place.Read("out.txt"), kMessyAsText);
}

TEST_F(ExportOverAFile, NeverReplacesTheSource) {
  EXPECT_EQ(ErrorOf({"--format", "text", "--force", "-o", "m.bas", "m.bas"}),
            "brimwork: m.bas: this is the file that is exported; name another one to write\n");
  EXPECT_EQ(place.Read("m.bas"), kMessy);
}

TEST_F(ExportOverAFile, ReplacesNothingThatIsNoFile) {
  fs::create_directory(place / "m.txt");
  EXPECT_THAT(ErrorOf({"--format", "text", "--force", "-o", ".", "m.bas"}),
              HasSubstr("m.txt: this is a folder; name a file"));
  fs::create_symlink("gone.txt", place / "dangling.txt");
  EXPECT_THAT(ErrorOf({"--format", "text", "--force", "-o", "dangling.txt", "m.bas"}),
              HasSubstr("dangling.txt: stat: No such file or directory"));
  EXPECT_THAT(ErrorOf({"--format", "text", "--force", "-o", "/dev/null", "m.bas"}),
              HasSubstr("/dev/null: this is no regular file"));
}

}  // namespace export_test
}  // namespace brimwork
