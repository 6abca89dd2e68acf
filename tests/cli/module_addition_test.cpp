#include "cli/module_addition.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "memory/source_error.h"
#include "support/temporary_folder.h"

namespace brimwork {
namespace module_addition_test {

namespace fs = std::filesystem;
using testing::HasSubstr;

constexpr const char* kProject = "Type=Exe\r\nModule=A; a.bas\r\nName=\"\xE4\"\r\n";
constexpr const char* kWithModule =
    "Type=Exe\r\nModule=A; a.bas\r\nModule=modX; modX.bas\r\nName=\"\xE4\"\r\n";
constexpr const char* kFile = "Attribute VB_Name = \"modX\"\r\nOption Explicit\r\n' all of it\r\n";

struct AddedModule : testing::Test {
  AddedModule() { WriteBytes(folder / "p.vbp", kProject); }

  ModuleAddition Add(const std::string& project = "p.vbp") const {
    return AddModuleToProject((folder / project).string(), "modX",
                              "Option Explicit\r\n' all of it");
  }

  std::string ErrorOf(const std::string& project = "p.vbp") const {
    try {
      Add(project);
    } catch (const SourceError& error) {
      return std::string(error.what()).substr(folder.Path().string().size() + 1);
    }
    return "no error";
  }

  std::string Read(const char* name) const { return ReadBytes(folder / name); }
  bool HasModuleFile() const { return fs::exists(folder / "modX.bas"); }

  TemporaryFolder folder;
};

TEST_F(AddedModule, IsAFileBesideTheProjectAndALineInIt) {
  EXPECT_EQ(Add(), ModuleAddition::kAdded);
  EXPECT_EQ(Read("p.vbp"), kWithModule);
  EXPECT_EQ(Read("modX.bas"), kFile);
}

TEST_F(AddedModule, IsAddedOnce) {
  Add();
  EXPECT_EQ(Add(), ModuleAddition::kWasThere);
  EXPECT_EQ(Read("p.vbp"), kWithModule);
}

TEST_F(AddedModule, IsThereUnderAnyFileNameAndInAnyLetterCase) {
  for (const char* line :
       {"Module=MODx; other.bas", "Class=modX; modX.cls", "module = modX;gone"}) {
    const std::string project = std::string("Type=Exe\n") + line + "\n";
    WriteBytes(folder / "p.vbp", project);
    EXPECT_EQ(Add(), ModuleAddition::kWasThere) << line;
    EXPECT_EQ(Read("p.vbp"), project);
    EXPECT_FALSE(HasModuleFile());
  }
}

TEST_F(AddedModule, IsThereAsAFormOfThatName) {
  WriteBytes(folder / "p.vbp", "Type=Exe\nForm=F.frm\nForm=gone.frm\n");
  WriteBytes(folder / "F.frm",
             "VERSION 5.00\nBegin VB.Form ModX\nEnd\nAttribute VB_Name = \"ModX\"\n");
  EXPECT_EQ(Add(), ModuleAddition::kWasThere);
  WriteBytes(folder / "F.frm", "VERSION 5.00\nBegin VB.Form F\nEnd\nAttribute VB_Name = \"F\"\n");
  EXPECT_EQ(Add(), ModuleAddition::kAdded);
}

TEST_F(AddedModule, UsesAFileThatHoldsTheSameBytes) {
  WriteBytes(folder / "modX.bas", kFile);
  EXPECT_EQ(Add(), ModuleAddition::kAdded);
  EXPECT_EQ(Read("p.vbp"), kWithModule);
  EXPECT_EQ(Read("modX.bas"), kFile);
}

TEST_F(AddedModule, LeavesAnotherFileOfItsName) {
  for (const char* name : {"modX.bas", "MODX.BAS"}) {
    WriteBytes(folder / name, "' the user's");
    EXPECT_EQ(ErrorOf(), std::string(name) +
                             ": there is another file of this name already; rename it or move it "
                             "away, then run again");
    EXPECT_EQ(Read(name), "' the user's");
    EXPECT_EQ(Read("p.vbp"), kProject);
    fs::remove(folder / name);
  }
}

TEST_F(AddedModule, IsTakenAwayAgainWhenTheProjectIsReadOnly) {
  fs::permissions(folder / "p.vbp", fs::perms::owner_read);
  EXPECT_EQ(ErrorOf(), "p.vbp: the file is read-only; it was left as it is");
  EXPECT_EQ(Read("p.vbp"), kProject);
  EXPECT_FALSE(HasModuleFile());
}

TEST_F(AddedModule, LeavesAFileThatWasThereWhenTheProjectIsReadOnly) {
  WriteBytes(folder / "modX.bas", kFile);
  fs::permissions(folder / "p.vbp", fs::perms::owner_read);
  ErrorOf();
  EXPECT_EQ(Read("modX.bas"), kFile);
}

TEST_F(AddedModule, NeedsAProject) {
  WriteBytes(folder / "g.vbg", "VBGROUP 5.0\nProject=p.vbp\n");
  WriteBytes(folder / "a.bas", "x = 1\n");
  WriteBytes(folder / "text.vbp", "hello\n");
  fs::create_directory(folder / "folder.vbp");
  EXPECT_EQ(ErrorOf("g.vbg"), "g.vbg: this is a project group; name one of its projects (.vbp)");
  EXPECT_EQ(ErrorOf("a.bas"), "a.bas: this is no project; name a .vbp file");
  EXPECT_EQ(ErrorOf("text.vbp"),
            "text.vbp: this is no project: no line of it names a type, a reference or a file");
  EXPECT_EQ(ErrorOf("folder.vbp"), "folder.vbp: this is a folder; name a file");
  EXPECT_THAT(ErrorOf("gone.vbp"), HasSubstr("No such file"));
  EXPECT_FALSE(HasModuleFile());
}

TEST_F(AddedModule, IsAddedToAProjectInAnyLetterCaseOfItsExtension) {
  fs::rename(folder / "p.vbp", folder / "P.VBP");
  EXPECT_EQ(Add("P.VBP"), ModuleAddition::kAdded);
}

TEST_F(AddedModule, IsWrittenThroughALink) {
  fs::create_directory(folder / "real");
  fs::rename(folder / "p.vbp", folder / "real/p.vbp");
  fs::create_symlink("real/p.vbp", folder / "p.vbp");
  EXPECT_EQ(Add(), ModuleAddition::kAdded);
  EXPECT_TRUE(fs::is_symlink(folder / "p.vbp"));
  EXPECT_EQ(Read("real/p.vbp"), kWithModule);
  EXPECT_TRUE(HasModuleFile());
}

TEST_F(AddedModule, DoesNotFollowALinkThatLeadsNowhere) {
  fs::create_symlink("nowhere", folder / "modX.bas");
  EXPECT_EQ(ErrorOf(), "modX.bas: stat: No such file or directory");
  EXPECT_FALSE(fs::exists(folder / "nowhere"));
  EXPECT_EQ(Read("p.vbp"), kProject);
}

}  // namespace module_addition_test
}  // namespace brimwork
