// Folders that a search for source files may not look into.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <unistd.h>

#include <filesystem>

#include "memory/project_file.h"
#include "support/temporary_folder.h"

namespace brimwork {
namespace project_folders_test {

namespace fs = std::filesystem;
using testing::ElementsAre;

TEST(ProjectFolders, AreToldWhereTheyCannotBeSearched) {
  const TemporaryFolder folder;
  for (const char* name : {"locked", "open"}) fs::create_directory(folder / name);
  WriteBytes(folder / "locked/a.bas", "");
  WriteBytes(folder / "open/b.bas", "");
  fs::permissions(folder.Path(), fs::perms::all);
  fs::permissions(folder / "locked", fs::perms::none);
  // Root may look into any folder.
  const bool isRoot = geteuid() == 0;
  ASSERT_TRUE(!isRoot || seteuid(65534) == 0);
  std::vector<std::string> problems;
  const auto files = FindSourceFiles(folder.Path().string(), [&](const SourceError& error) {
    problems.emplace_back(error.what());
  });
  ASSERT_TRUE(!isRoot || seteuid(0) == 0);
  fs::permissions(folder / "locked", fs::perms::owner_all);
  EXPECT_THAT(files, ElementsAre((folder / "open/b.bas").string()));
  EXPECT_THAT(problems, ElementsAre((folder / "locked").string() +
                                    ": cannot list the folder: Permission denied"));
}

}  // namespace project_folders_test
}  // namespace brimwork
