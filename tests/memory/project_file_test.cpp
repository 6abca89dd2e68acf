#include "memory/project_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "memory/listed_path.h"
#include "memory/utf8_path.h"
#include "support/temporary_folder.h"

namespace brimwork {
namespace project_file_test {

namespace fs = std::filesystem;
using testing::AnyOf;
using testing::ElementsAre;
using testing::HasSubstr;
using testing::IsEmpty;

/// Where the disk minds no letter case, a path stays as it was listed.
MATCHER_P(IsFile, path, "") {
  std::error_code ignored;
  return fs::equivalent(PathOf(arg), PathOf(path), ignored);
}

class ProjectFile : public testing::Test {
 protected:
  std::string Write(const std::string& name, const std::string& bytes = "") {
    const fs::path path = folder_ / name;
    fs::create_directories(path.parent_path());
    WriteBytes(path, bytes);
    return In(name);
  }
  std::string In(const std::string& name) { return TextOf((folder_ / name).make_preferred()); }

  /// The only file that a project in the folder "p" lists.
  ListedFile Listed(const std::string& line) {
    const Project project = ReadProject(Write("p/a.vbp", line + "\r\n"));
    if (project.modules.size() != 1u) throw std::logic_error(line);
    return project.modules[0];
  }

  TemporaryFolder folder_;
};

TEST_F(ProjectFile, NamesItsModulesInTheirOrder) {
  Write("modMain.bas");
  Write("clsA.cls");
  Write("frmA.frm");
  Write("ctlA.ctl");
  Write("pagA.pag");
  Write("dobA.dob");
  Write("dsrA.Dsr");
  const Project project = ReadProject(Write("a.vbp",
                                            "Type=Exe\r\n"
                                            "Reference=*\\G{00020430}#2.0#0#stdole2.tlb#x\r\n"
                                            "Object={831FDD16}#2.0#0; MSCOMCTL.OCX\r\n"
                                            "Form=frmA.frm\r\n"
                                            "Module=modMain; modMain.bas\r\n"
                                            "Class=clsA; clsA.cls\n"
                                            "UserControl=ctlA.ctl\r\n"
                                            "PropertyPage=pagA.pag\r\n"
                                            "UserDocument=dobA.dob\r\n"
                                            "Designer=dsrA.Dsr\r\n"
                                            "Startup=\"Sub Main\"\r\n"
                                            "Name=\"Warehouse\"\r\n"
                                            "MajorVer=1\r\n"));
  EXPECT_EQ(project.name, "Warehouse");
  EXPECT_EQ(project.path, In("a.vbp"));
  std::vector<std::string> paths;
  for (const ListedFile& module : project.modules) paths.push_back(module.path);
  EXPECT_THAT(paths, ElementsAre(In("frmA.frm"), In("modMain.bas"), In("clsA.cls"), In("ctlA.ctl"),
                                 In("pagA.pag"), In("dobA.dob"), In("dsrA.Dsr")));
  EXPECT_EQ(project.modules[1].listedAs, "modMain.bas");
  EXPECT_EQ(project.modules[1].line, 5);
  EXPECT_FALSE(project.modules[1].outside);
}

TEST_F(ProjectFile, IsNamedAsItsFileWhereItGivesNoName) {
  EXPECT_EQ(ReadProject(Write("Lager.vbp", "Type=Exe\r\n")).name, "Lager");
  EXPECT_EQ(ReadProject(Write("Empty.vbp", "")).name, "Empty");
}

TEST_F(ProjectFile, LeavesTheSectionsOfOtherToolsAlone) {
  const Project project =
      ReadProject(Write("a.vbp", "Name=\"A\"\r\n\r\n[Other]\r\nModule=x; x.bas\r\nName=\"B\"\r\n"));
  EXPECT_EQ(project.name, "A");
  EXPECT_THAT(project.modules, IsEmpty());
}

TEST_F(ProjectFile, FindsPathsWithBackslashesSpacesAndAnyLetterCase) {
  Write("p/Sub Folder/Mod Größe.BAS");
  EXPECT_THAT(Listed("Module=m; sub folder\\MOD GR\xD6\xDF"
                     "E.bas")
                  .path,
              IsFile(In("p/Sub Folder/Mod Größe.BAS")));
  EXPECT_EQ(Listed("Module = m ;  \"Sub Folder\\Mod Gr\xF6\xDF"
                   "e.BAS\"")
                .path,
            In("p/Sub Folder/Mod Größe.BAS"));
  EXPECT_EQ(Listed("Form=\"SUB FOLDER/.\\x\\..\\mod gr\xF6\xDF"
                   "e.bas\"")
                .path,
            In("p/Sub Folder/Mod Größe.BAS"));
}

TEST_F(ProjectFile, MarksFilesThatAreMissing) {
  const ListedFile missing = Listed("Module=m; sub\\none.bas");
  EXPECT_EQ(missing.path, "");
  EXPECT_EQ(missing.listedAs, "sub\\none.bas");
  EXPECT_FALSE(missing.outside);
  EXPECT_EQ(missing.line, 1);
  EXPECT_EQ(Listed("Module=m;").path, "");
}

TEST_F(ProjectFile, MarksFilesOutsideItsFolder) {
  Write("shared/b.bas");
  Write("p/b.bas");
  Write("pq/b.bas");
  EXPECT_THAT(Listed("Module=m; ..\\Shared\\b.bas").path, IsFile(In("shared/b.bas")));
  EXPECT_TRUE(Listed("Module=m; ..\\Shared\\b.bas").outside);
  EXPECT_TRUE(Listed("Module=m; ..\\pq\\b.bas").outside);
  EXPECT_TRUE(Listed("Module=m; ..\\none\\b.bas").outside);
  EXPECT_TRUE(Listed("Module=m; sub\\..\\..\\shared\\b.bas").outside);
  EXPECT_FALSE(Listed("Module=m; none\\..\\b.bas").outside);
  EXPECT_EQ(Listed("Module=m; none\\..\\b.bas").path, In("p/b.bas"));
  EXPECT_FALSE(Listed("Module=m; ..\\P\\b.bas").outside);
  EXPECT_THAT(Listed("Module=m; ..\\P\\b.bas").path, IsFile(In("p/b.bas")));
}

TEST_F(ProjectFile, FindsFilesFromTheWorkingFolder) {
  Write("p/modA.bas");
  Write("b.bas");
  Write("p/a.vbp", "Module=m; MODA.BAS\r\nModule=n; ..\\B.bas\r\nModule=n; ..\\p\\modA.bas\r\n");
  const fs::path before = fs::current_path();
  fs::current_path(folder_ / "p");
  const Project project = ReadProject("a.vbp");
  const std::string name = ProjectNameFor("modA.bas");
  fs::current_path(before);
  EXPECT_EQ(project.modules[0].path, "modA.bas");
  EXPECT_FALSE(project.modules[0].outside);
  EXPECT_THAT(project.modules[1].path, AnyOf("../b.bas", "..\\b.bas"));
  EXPECT_TRUE(project.modules[1].outside);
  EXPECT_FALSE(project.modules[2].outside);
  EXPECT_EQ(name, "a");
}

TEST_F(ProjectFile, CanBeInAnotherEncoding) {
  Write("p/表.bas");
  const std::string project = Write("p/a.vbp", "Module=m; \x95\x5C.bas\r\n");
  EXPECT_EQ(ReadProject(project, "CP932").modules[0].path, In("p/表.bas"));
  const std::string utf8 = Write("p/b.vbp", "\xEF\xBB\xBFModule=m; \xE8\xA1\xA8.bas\r\n");
  EXPECT_EQ(ReadProject(utf8).modules[0].path, In("p/表.bas"));
}

TEST_F(ProjectFile, FindsNamesOfAnyAlphabet) {
  const std::string module = Write("Заказ/€ модуль.bas");
  const std::string project =
      Write("Заказ/Größe 表.vbp", "\xEF\xBB\xBFModule=m; € модуль.bas\r\n");
  EXPECT_EQ(ReadProject(project).modules[0].path, module);
  EXPECT_EQ(ReadProject(project).name, "Größe 表");
  EXPECT_EQ(ProjectNameFor(module), "Größe 表");
  EXPECT_THAT(FindSourceFiles(In("Заказ"), [](const SourceError&) {}), ElementsAre(module));
}

TEST_F(ProjectFile, TellsWhatItCannotRead) {
  const std::string damaged = Write("a.vbp", "Type=Exe\r\nModule=m; \x81.bas\r\n");
  try {
    ReadProject(damaged);
    FAIL();
  } catch (const SourceError& error) {
    EXPECT_THAT(error.what(), HasSubstr("a.vbp:2:11: the byte 0x81 is no text"));
  }
  EXPECT_THROW(ReadProject(In("none.vbp")), SourceError);
  EXPECT_THROW(ReadProjectGroup(folder_.Path().string()), SourceError);
}

TEST_F(ProjectFile, NamesTheProjectsOfAGroup) {
  Write("One/One.vbp");
  Write("two.vbp");
  const auto projects = ReadProjectGroup(Write("all.vbg",
                                               "VBGROUP 5.0\r\n"
                                               "StartupProject=one\\one.VBP\r\n"
                                               "Project=Two.vbp\r\n"
                                               "Project=..\\three.vbp\r\n"));
  ASSERT_EQ(projects.size(), 3u);
  EXPECT_THAT(projects[0].path, IsFile(In("One/One.vbp")));
  EXPECT_THAT(projects[1].path, IsFile(In("two.vbp")));
  EXPECT_EQ(projects[2].path, "");
  EXPECT_TRUE(projects[2].outside);
  EXPECT_EQ(projects[2].listedAs, "..\\three.vbp");
  EXPECT_EQ(projects[2].line, 4);
}

TEST(SourceFileName, HasAnExtensionOfVisualBasicInAnyCase) {
  for (const char* name : {"a.bas", "a.CLS", "x/a.Frm", "a.ctl", "a.pag", "a.dob", "a.b.dsr"})
    EXPECT_TRUE(IsSourceFileName(name)) << name;
  for (const char* name : {"a.vbp", "a.frx", "bas", "a.bas.txt", "a.bas~", "", ".bas"})
    EXPECT_FALSE(IsSourceFileName(name)) << name;
}

TEST_F(ProjectFile, SearchesFoldersForSourceFiles) {
  Write("b.BAS");
  Write("a.frm");
  Write("a.frx");
  Write("sub/deep/c.cls");
  Write(".git/d.bas");
  Write("other/e.bas");
  std::vector<std::string> problems;
  const auto files = FindSourceFiles(folder_.Path().string(), [&](const SourceError& error) {
    problems.emplace_back(error.what());
  });
  EXPECT_THAT(files,
              ElementsAre(In("a.frm"), In("b.BAS"), In("other/e.bas"), In("sub/deep/c.cls")));
  EXPECT_THAT(problems, IsEmpty());
}

TEST_F(ProjectFile, SearchesNoFolderThatIsNotThere) {
  EXPECT_THROW(FindSourceFiles(In("none"), [](const SourceError&) {}), SourceError);
}

TEST_F(ProjectFile, TellsWhichProjectASourceFileBelongsTo) {
  const std::string source = Write("modA.bas");
  Write("b.vbp", "Name=\"Second\"\r\nModule=modA; MODA.bas\r\n");
  Write("c.VBP", "Name=\"Third\"\r\nModule=modA; modA.bas\r\n");
  EXPECT_EQ(ProjectNameFor(source), "Second");
  Write("a.vbp", "Name=\"First\"\r\nModule=modB; modB.bas\r\n");
  Write("aa.vbp", "Name=\"Damaged\"\r\nModule=\x81; modA.bas\r\n");
  EXPECT_EQ(ProjectNameFor(source), "Second");
  EXPECT_EQ(ProjectNameFor(Write("modC.bas")), "");
  EXPECT_EQ(ProjectNameFor(In("none/modA.bas")), "");
}

TEST_F(ProjectFile, DoesNotOwnAFileOfTheSameNameElsewhere) {
  Write("sub/modA.bas");
  Write("a.vbp", "Module=modA; sub\\modA.bas\r\n");
  EXPECT_EQ(ProjectNameFor(Write("modA.bas")), "");
}

}  // namespace project_file_test
}  // namespace brimwork
