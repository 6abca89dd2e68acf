// Files that are written where there is no room for them.
#include <gtest/gtest.h>
#include <sys/mount.h>

#include <cerrno>
#include <cstring>
#include <filesystem>
#include <string>

#include "support/posix/disk_file_fixture.h"
#include "support/posix/size_limit.h"

namespace brimwork {
namespace disk_full_test {

namespace fs = std::filesystem;
using DiskFull = PosixFileFixture;

TEST_F(DiskFull, LeavesTheFileAsItWasWhenThereIsNoRoom) {
  const std::string path = Write("a.bas", "old");
  std::string error;
  {
    const SizeLimit limit(100'000);
    error = ErrorOf([&] {
      WriteWholeFile(path, ReadWholeFile(path).snapshot, Writing(std::string(200'000, 'x')));
    });
  }
  EXPECT_EQ(error, path + ": write: File too large");
  EXPECT_EQ(ReadBytes(path), "old");
  EXPECT_EQ(EntriesInFolder(), 1);
}

/// A disk of 1 MB of the test's own.
class SmallDisk {
 public:
  explicit SmallDisk(const std::string& folder) : folder_(folder) {
    isMounted_ = mount("tmpfs", folder.c_str(), "tmpfs", 0, "size=1m") == 0;
  }
  ~SmallDisk() {
    if (isMounted_) umount2(folder_.c_str(), MNT_DETACH);
  }
  bool IsMounted() const { return isMounted_; }

 private:
  std::string folder_;
  bool isMounted_;
};

TEST_F(DiskFull, LeavesTheFileAsItWasOnAFullDisk) {
  fs::create_directory(folder_ / "disk");
  const SmallDisk disk(In("disk"));
  if (!disk.IsMounted()) GTEST_SKIP() << "this user may not mount: " << std::strerror(errno);
  const std::string old(300'000, 'o');
  const std::string path = Write("disk/a.bas", old);
  EXPECT_EQ(ErrorOf([&] {
              WriteWholeFile(path, ReadWholeFile(path).snapshot,
                             Writing(std::string(900'000, 'n')));
            }),
            path + ": write: No space left on device");
  EXPECT_EQ(ReadBytes(path), old);
}

TEST_F(DiskFull, LeavesAFileWithSeveralNamesAsItWasOnAFullDisk) {
  fs::create_directory(folder_ / "disk");
  const SmallDisk disk(In("disk"));
  if (!disk.IsMounted()) GTEST_SKIP() << "this user may not mount: " << std::strerror(errno);
  const std::string old(100'000, 'o');
  const std::string path = Write("disk/a.bas", old);
  fs::create_hard_link(path, folder_ / "disk/b.bas");
  // New bytes and the copy of the old ones have room, the file itself has not.
  EXPECT_EQ(ErrorOf([&] {
              WriteWholeFile(path, ReadWholeFile(path).snapshot,
                             Writing(std::string(600'000, 'n')));
            }),
            path + ": fallocate: No space left on device");
  EXPECT_EQ(ReadBytes(In("disk/b.bas")), old);
  EXPECT_EQ(std::distance(fs::directory_iterator(folder_ / "disk"), {}), 2);
}

}  // namespace disk_full_test
}  // namespace brimwork
