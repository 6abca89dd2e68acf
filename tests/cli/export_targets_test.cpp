#include "cli/export_targets.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>

#include "memory/source_error.h"
#include "support/temporary_folder.h"

namespace brimwork {
namespace export_targets_test {

namespace fs = std::filesystem;
using testing::StartsWith;

constexpr bool kMayReplace = true;
constexpr bool kMustBeNew = false;

class ExportTargets : public testing::Test {
 protected:
  std::string In(const std::string& name) { return (folder_ / name).string(); }

  std::string ErrorOf(const std::vector<std::string>& paths, bool mayReplace) {
    try {
      CheckedTargets(paths, {{In("source.bas"), {}}, {"-", {}}, {In("gone.bas"), {}}}, mayReplace);
    } catch (const SourceError& error) {
      return error.what();
    }
    return "no error";
  }

  TemporaryFolder folder_;
};

TEST_F(ExportTargets, ThatAreNewAreMade) {
  const auto targets = CheckedTargets({In("a.txt"), In("b.txt")}, {}, kMustBeNew);
  ASSERT_EQ(targets.size(), 2u);
  WriteTarget(targets[1], "bytes");
  EXPECT_EQ(ReadBytes(In("b.txt")), "bytes");
  EXPECT_FALSE(fs::exists(In("a.txt")));
}

TEST_F(ExportTargets, ThatAreThereNeedLeave) {
  WriteBytes(In("b.txt"), "old");
  EXPECT_EQ(ErrorOf({In("a.txt"), In("b.txt")}, kMustBeNew),
            In("b.txt") + ": the file is already there; --force replaces it");
  WriteBytes(In("c.txt"), "old");
  EXPECT_EQ(ErrorOf({In("a.txt"), In("b.txt"), In("c.txt")}, kMustBeNew),
            In("b.txt") + ": the file is already there, and so is another; --force replaces them");
  WriteBytes(In("d.txt"), "old");
  EXPECT_EQ(
      ErrorOf({In("b.txt"), In("c.txt"), In("d.txt")}, kMustBeNew),
      In("b.txt") + ": the file is already there, and so are 2 others; --force replaces them");
}

TEST_F(ExportTargets, ThatMayBeReplacedKeepTheirPermissions) {
  WriteBytes(In("a.txt"), "old");
  fs::permissions(In("a.txt"), fs::perms::owner_read | fs::perms::owner_write);
  WriteTarget(CheckedTargets({In("a.txt")}, {}, kMayReplace).front(), "new");
  EXPECT_EQ(ReadBytes(In("a.txt")), "new");
  EXPECT_EQ(fs::status(In("a.txt")).permissions(), fs::perms::owner_read | fs::perms::owner_write);
}

TEST_F(ExportTargets, ThatSomebodyMadeOrChangedInBetweenAreLeftAlone) {
  WriteBytes(In("a.txt"), "old");
  const auto targets = CheckedTargets({In("a.txt"), In("b.txt")}, {}, kMayReplace);
  WriteBytes(In("a.txt"), "theirs");
  WriteBytes(In("b.txt"), "theirs");
  for (const ExportTarget& target : targets) {
    EXPECT_THROW(WriteTarget(target, "ours"), SourceError);
    EXPECT_EQ(ReadBytes(target.path), "theirs");
  }
}

TEST_F(ExportTargets, AreNeverTheSources) {
  WriteBytes(In("source.bas"), "x");
  fs::create_symlink("source.bas", folder_ / "link.txt");
  fs::create_hard_link(In("source.bas"), In("name.txt"));
  for (const char* name : {"source.bas", "link.txt", "name.txt"}) {
    EXPECT_EQ(ErrorOf({In(name)}, kMayReplace),
              In(name) + ": this is the file that is exported; name another one to write");
  }
}

TEST_F(ExportTargets, AreFiles) {
  fs::create_directory(folder_ / "a.txt");
  EXPECT_EQ(ErrorOf({In("a.txt")}, kMayReplace), In("a.txt") + ": this is a folder; name a file");
  EXPECT_THAT(ErrorOf({"/dev/null"}, kMayReplace),
              StartsWith("/dev/null: this is no regular file"));
}

TEST_F(ExportTargets, NeedTheirFolder) {
  WriteBytes(In("file"), "x");
  RequireFolder(folder_.Path().string(), "make it");
  EXPECT_THROW(RequireFolder(In("none"), "make it"), SourceError);
  EXPECT_THROW(RequireFolder(In("file"), "make it"), SourceError);
  MakeFolder(In("none/deep/"));
  RequireFolder(In("none/deep"), "make it");
  EXPECT_THROW(MakeFolder(In("file/deep")), SourceError);
}

}  // namespace export_targets_test
}  // namespace brimwork
