// What --write leaves of a file besides its bytes: permissions, names, times and links.
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <unistd.h>

#include <filesystem>

#include "end_to_end/sources.h"
#include "end_to_end/workplace.h"

namespace brimwork {
namespace write_in_place_test {

namespace fs = std::filesystem;
using testing::ElementsAre;
using testing::HasSubstr;

struct stat StatusOf(const fs::path& path) {
  struct stat status {};
  if (lstat(path.c_str(), &status) != 0) throw std::runtime_error("no " + path.string());
  return status;
}

class WriteInPlace : public testing::Test {
 protected:
  ProgramResult WriteIndented(const std::string& name = "a.bas") const {
    return place.Run({"indent", "--write", name});
  }

  Workplace place;
};

TEST_F(WriteInPlace, KeepsThePermissions) {
  for (const mode_t mode : {0600u, 0640u, 0664u, 0755u}) {
    place.Write("a.bas", kMessy);
    ASSERT_EQ(chmod((place / "a.bas").c_str(), mode), 0);
    WriteIndented();
    EXPECT_EQ(StatusOf(place / "a.bas").st_mode & 07777u, mode);
    EXPECT_EQ(place.Read("a.bas"), kIndented);
  }
}

TEST_F(WriteInPlace, KeepsTheOwner) {
  if (geteuid() != 0) GTEST_SKIP() << "only root may give a file to another user";
  place.Write("a.bas", kMessy);
  ASSERT_EQ(chown((place / "a.bas").c_str(), 1234, 2345), 0);
  WriteIndented();
  EXPECT_EQ(StatusOf(place / "a.bas").st_uid, 1234u);
  EXPECT_EQ(StatusOf(place / "a.bas").st_gid, 2345u);
}

TEST_F(WriteInPlace, DoesNotTouchAFileThatStaysAsItIs) {
  place.Write("a.bas", kIndented);
  fs::last_write_time(place / "a.bas", fs::file_time_type::clock::now() - std::chrono::hours(48));
  const struct stat before = StatusOf(place / "a.bas");
  EXPECT_EQ(WriteIndented().exitCode, 0);
  const struct stat after = StatusOf(place / "a.bas");
  EXPECT_EQ(after.st_ino, before.st_ino);
  EXPECT_EQ(after.st_mtim.tv_sec, before.st_mtim.tv_sec);
  EXPECT_EQ(after.st_mtim.tv_nsec, before.st_mtim.tv_nsec);
  EXPECT_EQ(after.st_ctim.tv_nsec, before.st_ctim.tv_nsec);
}

TEST_F(WriteInPlace, LeavesNoOtherFileBehind) {
  place.Write("a.bas", kMessy);
  WriteIndented();
  EXPECT_THAT(place.Names(), ElementsAre("a.bas"));
}

TEST_F(WriteInPlace, WritesThroughALink) {
  place.Write("real/a.bas", kMessy);
  fs::create_symlink("real/a.bas", place / "link.bas");
  fs::create_symlink("link.bas", place / "again.bas");
  EXPECT_EQ(WriteIndented("again.bas").exitCode, 0);
  EXPECT_TRUE(fs::is_symlink(place / "again.bas"));
  EXPECT_TRUE(fs::is_symlink(place / "link.bas"));
  EXPECT_FALSE(fs::is_symlink(place / "real/a.bas"));
  EXPECT_EQ(place.Read("real/a.bas"), kIndented);
}

TEST_F(WriteInPlace, WorksOnceOnAFileNamedTwice) {
  place.Write("a.bas", "Sub A()\nEnd Sub\n");
  fs::create_symlink("a.bas", place / "link.bas");
  place.Run({"header", "--set", "Header='H", "--write", "a.bas", "./a.bas", "link.bas"});
  EXPECT_EQ(place.Read("a.bas"), "'H\nSub A()\nEnd Sub\n");
}

TEST_F(WriteInPlace, KeepsHardLinksTogether) {
  place.Write("a.bas", kMessy);
  fs::create_hard_link(place / "a.bas", place / "b.bas");
  EXPECT_EQ(WriteIndented().exitCode, 0);
  EXPECT_EQ(place.Read("b.bas"), kIndented);
  EXPECT_EQ(fs::hard_link_count(place / "a.bas"), 2u);
  EXPECT_THAT(place.Names(), ElementsAre("a.bas", "b.bas"));
}

TEST_F(WriteInPlace, RefusesAReadOnlyFileWhoeverRunsIt) {
  place.Write("a.bas", kMessy);
  ASSERT_EQ(chmod((place / "a.bas").c_str(), 0444), 0);
  const ProgramResult result = WriteIndented();
  EXPECT_EQ(result.exitCode, 2);
  EXPECT_EQ(result.error, "brimwork: a.bas: the file is read-only; it was left as it is\n");
  EXPECT_EQ(place.Read("a.bas"), kMessy);
  EXPECT_EQ(StatusOf(place / "a.bas").st_mode & 07777u, 0444u);
}

TEST_F(WriteInPlace, LetsAReadOnlyFileThatStaysAsItIsPass) {
  place.Write("a.bas", kIndented);
  ASSERT_EQ(chmod((place / "a.bas").c_str(), 0444), 0);
  const ProgramResult result = WriteIndented();
  EXPECT_EQ(result.exitCode, 0);
  EXPECT_EQ(result.error, "");
}

TEST_F(WriteInPlace, PrintsAReadOnlyFile) {
  place.Write("a.bas", kMessy);
  ASSERT_EQ(chmod((place / "a.bas").c_str(), 0444), 0);
  EXPECT_EQ(place.Run({"indent", "a.bas"}).out, kIndented);
}

}  // namespace write_in_place_test
}  // namespace brimwork
