// Names and links as disks of POSIX systems have them.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "memory/project_file.h"
#include "support/temporary_folder.h"

namespace brimwork {
namespace project_file_names_test {

namespace fs = std::filesystem;
using testing::ElementsAre;

struct ProjectFileNames : testing::Test {
  std::string Write(const std::string& name, const std::string& bytes = "") {
    WriteBytes(folder / name, bytes);
    return In(name);
  }
  std::string In(const std::string& name) { return (folder / name).string(); }
  ListedFile Listed(const std::string& line) {
    return ReadProject(Write("a.vbp", line + "\r\n")).modules.at(0);
  }

  TemporaryFolder folder;
};

TEST_F(ProjectFileNames, AreTakenInTheVeryCaseAndElseTheFirst) {
  Write("MODA.bas");
  Write("modA.bas");
  Write("ModA.bas");
  EXPECT_EQ(Listed("Module=m; modA.bas").path, In("modA.bas"));
  EXPECT_EQ(Listed("Module=m; moda.bas").path, In("MODA.bas"));
}

TEST_F(ProjectFileNames, ThatAreAbsoluteLieOutside) {
  const std::string inside = Write("b.bas");
  EXPECT_TRUE(Listed("Module=m; C:\\code\\b.bas").outside);
  EXPECT_EQ(Listed("Module=m; C:\\code\\b.bas").path, "");
  EXPECT_TRUE(Listed("Module=m; c:b.bas").outside);
  EXPECT_TRUE(Listed("Module=m; \\\\server\\share\\b.bas").outside);
  EXPECT_TRUE(Listed("Module=m; " + inside).outside);
  EXPECT_EQ(Listed("Module=m; " + inside).path, inside);
}

TEST_F(ProjectFileNames, OfLinksToFilesAreFoundAndOfLinksToFoldersAreNot) {
  Write("a.bas");
  fs::create_directories(folder / "other");
  Write("other/e.bas");
  fs::create_directory_symlink(folder / "other", folder / "link");
  fs::create_symlink(folder / "a.bas", folder / "z.bas");
  const auto files = FindSourceFiles(folder.Path().string(), [](const SourceError&) {});
  EXPECT_THAT(files, ElementsAre(In("a.bas"), In("other/e.bas"), In("z.bas")));
}

}  // namespace project_file_names_test
}  // namespace brimwork
