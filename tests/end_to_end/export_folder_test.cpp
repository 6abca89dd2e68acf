// Projects, groups, folders and several files exported into one folder.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "end_to_end/workplace.h"

namespace brimwork {
namespace export_folder_test {

namespace fs = std::filesystem;
using testing::AllOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::Not;

class ExportFolder : public testing::Test {
 protected:
  ProgramResult Run(Words words) const {
    words.insert(words.begin(), "export");
    return place.Run(words);
  }

  /// The names in the folder out, after an export that is told of nothing.
  std::vector<std::string> Exported(Words words) const {
    words.insert(words.end(), {"-q", "-o", "out"});
    const ProgramResult result = Run(words);
    EXPECT_EQ(result.exitCode, 0);
    EXPECT_EQ(result.error, "");
    EXPECT_EQ(result.out, "");
    return NamesInOut();
  }

  std::vector<std::string> NamesInOut() const {
    std::vector<std::string> names;
    for (const std::string& name : place.Names()) {
      if (name.starts_with("out/")) names.push_back(name.substr(4));
    }
    return names;
  }

  std::string ErrorOf(const Words& words) const {
    const ProgramResult result = Run(words);
    EXPECT_EQ(result.exitCode, 2);
    EXPECT_EQ(result.out, "");
    EXPECT_EQ(LinesOf(result.error).size(), 1u) << result.error;
    return result.error;
  }

  Workplace place;
};

TEST_F(ExportFolder, GetsAFileForEachModuleOfAProject) {
  place.Write("Shop.vbp", "Module=M; src\\Main.bas\nForm=Form One.frm\nName=\"Shop\"\n");
  place.Write("src/Main.bas", "x = 1\n");
  place.Write("Form One.frm", "y = 2\n");
  EXPECT_THAT(Exported({"--format", "text", "Shop.vbp"}), ElementsAre("Form One.txt", "Main.txt"));
  EXPECT_EQ(place.Read("out/Main.txt"), "x = 1");
  EXPECT_EQ(place.Read("out/Form One.txt"), "y = 2");
}

TEST_F(ExportFolder, GetsThoseOfAGroupAFolderAndSeveralFiles) {
  place.Write("a/A.vbp", "Module=M; a.bas\n");
  place.Write("a/a.bas", "x = 1\n");
  place.Write("b/B.vbp", "Module=M; b.bas\n");
  place.Write("b/b.bas", "x = 1\n");
  place.Write("g.vbg", "VBGROUP 5.0\nProject=a\\A.vbp\nProject=b\\B.vbp\n");
  EXPECT_THAT(Exported({"--format", "text", "g.vbg"}), ElementsAre("a.txt", "b.txt"));
  place.Remove("out");
  EXPECT_THAT(Exported({"--format", "text", "a"}), ElementsAre("a.txt"));
  place.Remove("out");
  EXPECT_THAT(Exported({"--format", "text", "a/a.bas", "b/b.bas"}), ElementsAre("a.txt", "b.txt"));
}

TEST_F(ExportFolder, IsMadeWithTheFoldersAroundIt) {
  place.Write("src/a.bas", "x = 1\n");
  EXPECT_EQ(Run({"--format", "text", "-o", "new/deep", "src"}).exitCode, 0);
  EXPECT_EQ(place.Read("new/deep/a.txt"), "x = 1");
}

TEST_F(ExportFolder, KeepsWholeNamesWhereStemsAreEqual) {
  place.Write("src/Form1.frm", "x = 1\n");
  place.Write("src/FORM1.bas", "x = 2\n");
  place.Write("src/sub/Form1.frm", "x = 3\n");
  place.Write("src/other.bas", "x = 4\n");
  EXPECT_THAT(Exported({"--format", "text", "src"}),
              ElementsAre("FORM1.bas.txt", "Form1.frm-2.txt", "Form1.frm.txt", "other.txt"));
  EXPECT_EQ(place.Read("out/FORM1.bas.txt"), "x = 2");
  EXPECT_EQ(place.Read("out/Form1.frm.txt"), "x = 1");
  EXPECT_EQ(place.Read("out/Form1.frm-2.txt"), "x = 3");
}

TEST_F(ExportFolder, TellsAboutEachFileAndTheTotal) {
  place.Write("src/a.bas", "x = 1\n");
  place.Write("src/b.bas", "x = 1\ny = 2\n");
  EXPECT_EQ(Run({"--format", "text", "-o", "out", "src"}).error,
            "src/a.bas: exported to out/a.txt\nsrc/b.bas: exported to out/b.txt\n"
            "2 files exported to out\n");
  EXPECT_EQ(Run({"--format", "html", "--keywords", "If", "-v", "-o", "out", "src"}).error,
            "src/a.bas: exported to out/a.htm\nsrc/a.bas: 1 line, read as WINDOWS-1252\n"
            "src/b.bas: exported to out/b.htm\nsrc/b.bas: 2 lines, read as WINDOWS-1252\n"
            "2 files exported to out; the index page is out/index.htm\n");
}

TEST_F(ExportFolder, TellsOfAnEmptyKeywordListOnceForAll) {
  place.Write("src/a.bas", "x = 1\n");
  place.Write("src/b.bas", "x = 1\n");
  const ProgramResult result = Run({"--format", "html", "-o", "out", "src"});
  const auto lines = LinesOf(result.error);
  ASSERT_EQ(lines.size(), 4u) << result.error;
  EXPECT_THAT(lines[3], HasSubstr("the keyword list is empty"));
}

TEST_F(ExportFolder, IsNeededForMoreThanOneFile) {
  place.Write("src/a.bas", "x = 1\n");
  place.Write("p.vbp", "Module=M; src\\a.bas\n");
  place.Write("file", "");
  const std::string needed =
      "brimwork: more than one file needs a folder to write to: give --output FOLDER\n";
  EXPECT_EQ(ErrorOf({"--format", "text", "src"}), needed);
  EXPECT_EQ(ErrorOf({"--format", "text", "p.vbp"}), needed);
  EXPECT_EQ(ErrorOf({"--format", "text", "src/a.bas", "src/b.bas"}), needed);
  EXPECT_EQ(ErrorOf({"--format", "text", "-o", "-", "src"}), needed);
  EXPECT_EQ(ErrorOf({"--format", "text", "-o", "file", "src"}),
            "brimwork: file: this is no folder; more than one file needs a folder to write to\n");
}

TEST_F(ExportFolder, IsNotMadeForNothing) {
  fs::create_directory(place / "src");
  const ProgramResult result = Run({"--format", "html", "-o", "out", "src"});
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.error, "src: holds no Visual Basic source files\n");
  EXPECT_FALSE(fs::exists(place / "out"));
}

TEST_F(ExportFolder, GetsTheGoodFilesWhenOneIsBad) {
  place.Write("a.bas", "x = 1\n");
  place.Write("b.bas", "x = \x81\n");
  place.Write("p.vbp", "Module=A; a.bas\nModule=B; b.bas\nModule=C; gone.bas\n");
  const ProgramResult result = Run({"--format", "html", "--keywords", "If", "-o", "out", "p.vbp"});
  EXPECT_EQ(result.exitCode, 2);
  const auto lines = LinesOf(result.error);
  ASSERT_EQ(lines.size(), 4u) << result.error;
  EXPECT_EQ(lines[0], "brimwork: p.vbp:3: there is no file \"gone.bas\"");
  EXPECT_EQ(lines[1], "a.bas: exported to out/a.htm");
  EXPECT_THAT(lines[2], testing::StartsWith("brimwork: b.bas:1:5: "));
  EXPECT_EQ(lines[3], "1 file exported to out, 1 failed; the index page is out/index.htm");
  EXPECT_THAT(NamesInOut(), ElementsAre("a.htm", "index.htm"));
  EXPECT_THAT(place.Read("out/index.htm"), Not(HasSubstr("b.htm")));
}

TEST_F(ExportFolder, GetsTheSameFilesWithManyAtATime) {
  for (int i = 0; i < 60; ++i) {
    place.Write("src/m" + std::to_string(i) + ".bas", "x = " + std::to_string(i) + "\n");
  }
  EXPECT_EQ(Exported({"--format", "text", "src"}).size(), 60u);
  for (int i = 0; i < 60; ++i) {
    EXPECT_EQ(place.Read("out/m" + std::to_string(i) + ".txt"), "x = " + std::to_string(i));
  }
}

class ExportOverAFolder : public ExportFolder {
 protected:
  ExportOverAFolder() {
    place.Write("src/a.bas", "x = 1\n");
    place.Write("src/b.bas", "x = 2\n");
    place.Write("src/c.bas", "x = 3\n");
    place.Write("out/b.txt", "old");
  }
};

TEST_F(ExportOverAFolder, WritesNothingAtAllWithoutForce) {
  EXPECT_EQ(ErrorOf({"--format", "text", "-o", "out", "src"}),
            "brimwork: out/b.txt: the file is already there; --force replaces it\n");
  EXPECT_THAT(NamesInOut(), ElementsAre("b.txt"));
  EXPECT_EQ(place.Read("out/b.txt"), "old");
}

TEST_F(ExportOverAFolder, ReplacesWithForce) {
  place.Write("out/other.txt", "mine");
  EXPECT_THAT(Exported({"--format", "text", "--force", "src"}),
              ElementsAre("a.txt", "b.txt", "c.txt", "other.txt"));
  EXPECT_EQ(place.Read("out/b.txt"), "x = 2");
  EXPECT_EQ(place.Read("out/other.txt"), "mine");
}

TEST_F(ExportOverAFolder, CountsTheIndexPageAmongItsFiles) {
  place.Write("out/index.htm", "mine");
  EXPECT_EQ(ErrorOf({"--format", "html", "-o", "out", "src"}),
            "brimwork: out/index.htm: the file is already there; --force replaces it\n");
  EXPECT_EQ(Run({"--format", "html", "--force", "-o", "out", "src"}).exitCode, 0);
  EXPECT_THAT(place.Read("out/index.htm"), HasSubstr("a.htm"));
}

TEST_F(ExportOverAFolder, SaysHowManyFilesAreThere) {
  place.Write("out/a.txt", "old");
  place.Write("out/c.txt", "old");
  EXPECT_EQ(ErrorOf({"--format", "text", "-o", "out", "src"}),
            "brimwork: out/a.txt: the file is already there, and so are 2 others; --force replaces "
            "them\n");
}

class IndexPageOfAnExport : public ExportFolder {
 protected:
  std::string IndexOf(const Words& files) {
    Words words{"export", "-q", "--format", "html", "--force", "-o", "out"};
    words.insert(words.end(), files.begin(), files.end());
    EXPECT_EQ(place.Run(words).exitCode, 0);
    return place.Read("out/index.htm");
  }

  std::string TitleOf(const Words& files) {
    const std::string page = IndexOf(files);
    const auto start = page.find("<title>") + 7;
    return page.substr(start, page.find("</title>") - start);
  }
};

TEST_F(IndexPageOfAnExport, ListsTheModulesOfAProjectInItsOrder) {
  place.Write("Shop.vbp", "Module=M; src\\Z Main.bas\nForm=A.frm\nName=\"Shop & Co\"\n");
  place.Write("src/Z Main.bas", "Attribute VB_Name = \"Main\"\nx = 1\ny = 2\n");
  place.Write("A.frm",
              "VERSION 5.00\nBegin VB.Form frmA\nEnd\nAttribute VB_Name = \"frmA\"\nz = 1\n");
  const std::string page = IndexOf({"Shop.vbp"});
  EXPECT_THAT(
      page,
      AllOf(testing::StartsWith("<!DOCTYPE html>\n"), HasSubstr("<title>Shop &amp; Co</title>"),
            HasSubstr("<meta charset=\"utf-8\">"), HasSubstr("<p>2 modules, 3 lines</p>")));
  const auto main = page.find(
      "<tr><td><a href=\"Z%20Main.htm\">Main</a></td><td>Module</td>"
      "<td class=\"file\">src/Z Main.bas</td><td class=\"lines\">2</td></tr>\n");
  const auto form = page.find(
      "<tr><td><a href=\"A.htm\">frmA</a></td><td>Form</td><td class=\"file\">A.frm</td>"
      "<td class=\"lines\">1</td></tr>\n");
  ASSERT_NE(main, std::string::npos) << page;
  ASSERT_NE(form, std::string::npos) << page;
  EXPECT_LT(main, form);
}

TEST_F(IndexPageOfAnExport, BearsTheNameOfWhatWasNamed) {
  place.Write("shop/a.bas", "x = 1\n");
  place.Write("shop/b.bas", "x = 1\n");
  place.Write("shop/Unnamed.vbp", "Module=M; a.bas\n");
  place.Write("Group One.vbg", "VBGROUP 5.0\nProject=shop\\Unnamed.vbp\n");
  EXPECT_EQ(TitleOf({"shop"}), "shop");
  EXPECT_EQ(TitleOf({"shop/"}), "shop");
  EXPECT_EQ(TitleOf({"."}), place.Folder().filename().string());
  EXPECT_EQ(TitleOf({"shop/Unnamed.vbp"}), "Unnamed");
  EXPECT_EQ(TitleOf({"Group One.vbg"}), "Group One");
  EXPECT_EQ(TitleOf({"shop/a.bas", "shop/b.bas"}), "Exported code");
}

TEST_F(IndexPageOfAnExport, LeavesItsNameToNoModule) {
  place.Write("src/Index.bas", "x = 1\n");
  place.Write("src/a.bas", "x = 1\n");
  EXPECT_THAT(IndexOf({"src"}), HasSubstr("<a href=\"Index.bas.htm\">Index</a>"));
  EXPECT_THAT(NamesInOut(), ElementsAre("Index.bas.htm", "a.htm", "index.htm"));
}

TEST_F(IndexPageOfAnExport, IsThereForProjectsOfOneModuleButNotForANamedFile) {
  place.Write("a.bas", "x = 1\n");
  place.Write("p.vbp", "Module=A; a.bas\n");
  EXPECT_THAT(Exported({"--format", "html", "p.vbp"}), ElementsAre("a.htm", "index.htm"));
  place.Remove("out");
  fs::create_directory(place / "out");
  EXPECT_EQ(Run({"-q", "--format", "html", "-o", "out", "a.bas"}).exitCode, 0);
  EXPECT_THAT(NamesInOut(), ElementsAre("a.htm"));
}

TEST_F(IndexPageOfAnExport, BelongsToWebPagesOnly) {
  place.Write("src/a.bas", "x = 1\n");
  EXPECT_THAT(Exported({"--format", "text", "src"}), ElementsAre("a.txt"));
}

TEST_F(IndexPageOfAnExport, IsInUtf8WhateverTheSourcesAre) {
  place.Write("src/a.bas", "Attribute VB_Name = \"\xCF\xF3\xF1\xEA\"\nx = 1\n");
  place.Write("src/\xD0\x9F\xFF.bas", "x = 1\n");
  const std::string page = IndexOf({"--encoding", "cp1251", "src"});
  EXPECT_THAT(page, AllOf(HasSubstr("<a href=\"a.htm\">\xD0\x9F\xD1\x83\xD1\x81\xD0\xBA</a>"),
                          HasSubstr("<a href=\"%D0%9F%FF.htm\">\xD0\x9F\xEF\xBF\xBD</a>")));
}

}  // namespace export_folder_test
}  // namespace brimwork
