// Paths in project files that only Windows has.
#include "memory/listed_path.h"

#include <gtest/gtest.h>

#include <filesystem>

#include "memory/utf8_path.h"
#include "support/temporary_folder.h"

namespace brimwork {
namespace windows_listed_path_test {

namespace fs = std::filesystem;

struct WindowsListedPath : testing::Test {
  ResolvedPath Resolved(std::string_view listed) {
    return ResolveListedPath(folder.Path(), listed);
  }
  fs::path Make(std::string_view name) {
    fs::create_directories((folder / name).parent_path());
    WriteBytes(folder / name, "");
    return (folder / name).make_preferred();
  }

  TemporaryFolder folder;
};

TEST_F(WindowsListedPath, WithADriveIsFoundAndLiesOutside) {
  const fs::path file = Make("Größe Ж.bas");
  const ResolvedPath resolved = Resolved(TextOf(file));
  EXPECT_EQ(resolved.path, file);
  EXPECT_TRUE(resolved.outside);
  EXPECT_EQ(Resolved(TextOf(folder / "none.bas")).path, fs::path());
}

TEST_F(WindowsListedPath, WithADriveButNoFolderIsNotLookedFor) {
  Make("b.bas");
  EXPECT_EQ(Resolved("c:b.bas").path, fs::path());
  EXPECT_TRUE(Resolved("c:b.bas").outside);
}

TEST_F(WindowsListedPath, IsSpelledAsTheDiskSpellsIt) {
  const fs::path file = Make("Sub Folder\\Größe Ж.bas");
  EXPECT_EQ(Resolved("SUB folder\\GRÖßE ж.BAS").path, file);
  EXPECT_EQ(Resolved("sub folder/größe Ж.bas").path, file);
}

TEST_F(WindowsListedPath, BackIntoTheFolderIsInsideWhateverItsLetterCase) {
  Make("Project\\b.bas");
  const ResolvedPath resolved = ResolveListedPath(folder / "Project", "..\\PROJECT\\B.BAS");
  EXPECT_EQ(resolved.path.filename(), "b.bas");
  EXPECT_FALSE(resolved.outside);
}

TEST_F(WindowsListedPath, WithWildcardsNamesNoFile) {
  Make("b.bas");
  EXPECT_EQ(Resolved("*.bas").path, fs::path());
  EXPECT_EQ(Resolved("?.bas").path, fs::path());
}

}  // namespace windows_listed_path_test
}  // namespace brimwork
