#include "cli/inputs.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "support/temporary_folder.h"

namespace brimwork {
namespace inputs_test {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;

class CollectInputsTest : public testing::Test {
 protected:
  std::string Make(const std::string& name, const std::string& bytes = "") const {
    const fs::path path = folder / name;
    fs::create_directories(path.parent_path());
    WriteBytes(path, bytes);
    return path.string();
  }

  std::string Path(const std::string& name) const { return (folder / name).string(); }

  static std::vector<std::string> PathsOf(const Inputs& inputs) {
    std::vector<std::string> paths;
    for (const InputFile& file : inputs.files) paths.push_back(file.path);
    return paths;
  }

  TemporaryFolder folder;
};

TEST_F(CollectInputsTest, TakesNamedFilesInTheirOrderWhateverTheyAreCalled) {
  const std::string b = Make("b.txt");
  const std::string a = Make("a.bas");
  const Inputs inputs = CollectInputs({b, a}, "");
  EXPECT_THAT(PathsOf(inputs), ElementsAre(b, a));
  EXPECT_FALSE(inputs.namesOneFile);
  EXPECT_TRUE(CollectInputs({a}, "").namesOneFile);
}

TEST_F(CollectInputsTest, TakesAFileOnceHoweverItIsNamed) {
  const std::string a = Make("sub/a.bas");
  fs::create_symlink(a, folder / "link.bas");
  const Inputs inputs = CollectInputs({a, Path("link.bas"), Path("sub/../sub/a.bas")}, "");
  EXPECT_THAT(PathsOf(inputs), ElementsAre(a));
}

TEST_F(CollectInputsTest, LeavesAMissingFileToWhoReadsIt) {
  const Inputs inputs = CollectInputs({Path("gone.bas")}, "");
  EXPECT_THAT(PathsOf(inputs), ElementsAre(Path("gone.bas")));
  EXPECT_TRUE(inputs.errors.empty());
}

TEST_F(CollectInputsTest, SearchesAFolder) {
  const std::string a = Make("src/a.bas");
  Make("src/readme.md");
  const std::string deep = Make("src/deep/b.CLS");
  const Inputs inputs = CollectInputs({Path("src")}, "");
  EXPECT_THAT(PathsOf(inputs), ElementsAre(a, deep));
  EXPECT_FALSE(inputs.namesOneFile);
}

TEST_F(CollectInputsTest, NotesAFolderWithoutSources) {
  fs::create_directory(folder / "empty");
  const Inputs inputs = CollectInputs({Path("empty")}, "");
  EXPECT_TRUE(inputs.files.empty());
  EXPECT_TRUE(inputs.errors.empty());
  EXPECT_THAT(inputs.notes, ElementsAre(HasSubstr("no Visual Basic source files")));
}

TEST_F(CollectInputsTest, NamesOneFileForStandardInput) {
  const Inputs inputs = CollectInputs({"-"}, "");
  EXPECT_THAT(PathsOf(inputs), ElementsAre("-"));
  EXPECT_TRUE(inputs.namesOneFile);
}

TEST_F(CollectInputsTest, IsNoNamedFileThatAProjectNames) {
  const std::string a = Make("a.bas");
  const std::string project = Make("p.vbp", "Module=A; a.bas\n");
  const Inputs inputs = CollectInputs({project}, "");
  EXPECT_THAT(PathsOf(inputs), ElementsAre(a));
  EXPECT_FALSE(inputs.namesOneFile);
}

TEST_F(CollectInputsTest, TellsWhereAProjectNamesAMissingFile) {
  const std::string a = Make("a.bas");
  const std::string project = Make("p.VBP", "Type=Exe\nModule=X; x.bas\nModule=A; a.bas\n");
  const Inputs inputs = CollectInputs({project}, "");
  EXPECT_THAT(PathsOf(inputs), ElementsAre(a));
  EXPECT_THAT(inputs.errors, ElementsAre(project + ":2: there is no file \"x.bas\""));
}

TEST_F(CollectInputsTest, NotesAFileOutsideTheProjectsFolder) {
  Make("a.bas");
  const std::string project = Make("p/p.vbp", "Module=A; ..\\a.bas\n");
  const Inputs inputs = CollectInputs({project}, "");
  EXPECT_TRUE(inputs.files.empty());
  EXPECT_TRUE(inputs.errors.empty());
  EXPECT_THAT(inputs.notes, ElementsAre(HasSubstr(project + ":1: ")));
}

TEST_F(CollectInputsTest, GoesOnBehindAProjectThatCannotBeRead) {
  const std::string a = Make("a.bas");
  const Inputs inputs = CollectInputs({Path("gone.vbp"), Path("gone.vbg"), a}, "");
  EXPECT_THAT(PathsOf(inputs), ElementsAre(a));
  EXPECT_THAT(inputs.errors, ElementsAre(HasSubstr("gone.vbp: "), HasSubstr("gone.vbg: ")));
}

TEST_F(CollectInputsTest, TakesTheProjectsOfAGroup) {
  const std::string a = Make("one/a.bas");
  const std::string b = Make("two/b.bas");
  Make("one/one.vbp", "Module=A; a.bas\nName=\"One\"\n");
  Make("two/two.vbp", "Module=B; b.bas\nName=\"Two\"\n");
  const std::string group = Make("g.vbg", "StartupProject=two\\two.vbp\nProject=one\\one.vbp\n");
  const Inputs inputs = CollectInputs({group}, "");
  EXPECT_THAT(PathsOf(inputs), ElementsAre(b, a));
  EXPECT_EQ(inputs.files[0].projectName(), "Two");
  EXPECT_EQ(inputs.files[1].projectName(), "One");
}

TEST_F(CollectInputsTest, FindsTheProjectBesideANamedFile) {
  const std::string a = Make("a.bas");
  Make("p.vbp", "Module=A; A.BAS\nName=\"Desk\"\n");
  EXPECT_EQ(CollectInputs({a}, "").files.at(0).projectName(), "Desk");
  EXPECT_EQ(CollectInputs({"-"}, a).files.at(0).projectName(), "Desk");
}

TEST_F(CollectInputsTest, CallsAProjectThatNobodyNamedAsTheEditorDoes) {
  EXPECT_EQ(CollectInputs({Make("a.bas")}, "").files.at(0).projectName(), "Project1");
  EXPECT_EQ(CollectInputs({"-"}, "").files.at(0).projectName(), "Project1");
}

}  // namespace inputs_test
}  // namespace brimwork
