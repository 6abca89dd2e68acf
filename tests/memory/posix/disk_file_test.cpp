#include "memory/disk_file.h"

#include <fcntl.h>
#include <gmock/gmock.h>
#include <gtest/gtest.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

#include <csignal>
#include <cstring>
#include <filesystem>
#include <functional>
#include <thread>

#include "memory/source_error.h"
#include "support/posix/disk_file_fixture.h"
#include "support/posix/refused_calls.h"
#include "support/temporary_folder.h"

namespace brimwork {
namespace disk_file_test {

namespace fs = std::filesystem;
using DiskFile = PosixFileFixture;
using testing::HasSubstr;

TEST_F(DiskFile, SaysWhyAFileCannotBeRead) {
  EXPECT_EQ(ErrorOf([&] { ReadWholeFile(In("none.bas")); }),
            In("none.bas") + ": stat: No such file or directory");
  EXPECT_EQ(ErrorOf([&] { ReadWholeFile(folder_.Path().string()); }),
            folder_.Path().string() + ": this is a folder; name a file");
  EXPECT_EQ(ErrorOf([&] { ReadWholeFile("/dev/null"); }),
            "/dev/null: this is no regular file; only regular files can be read");
  ASSERT_EQ(mkfifo(In("pipe.bas").c_str(), 0600), 0);
  EXPECT_THAT(ErrorOf([&] { ReadWholeFile(In("pipe.bas")); }), HasSubstr("no regular file"));
}

TEST_F(DiskFile, SaysThatAFileMayNotBeRead) {
  const std::string path = Write("a.bas", "a");
  chmod(path.c_str(), 0);
  AsNobody([&] {
    EXPECT_EQ(ErrorOf([&] { ReadWholeFile(path); }), path + ": open: Permission denied");
  });
}

TEST_F(DiskFile, ReplacesAFileAndKeepsItsPermissions) {
  const std::string path = Write("a.bas", "old");
  chmod(path.c_str(), 0640);
  WriteWholeFile(path, ReadWholeFile(path).snapshot, [](const ByteSink& sink) {
    sink("new ");
    sink("bytes");
  });
  EXPECT_EQ(ReadBytes(path), "new bytes");
  EXPECT_EQ(ModeOf(path), 0640u);
  EXPECT_EQ(EntriesInFolder(), 1);
}

TEST_F(DiskFile, KeepsTheOwnerOfAFile) {
  if (geteuid() != 0) GTEST_SKIP() << "only root may own files as somebody else";
  const std::string path = Write("a.bas", "old");
  ASSERT_EQ(chown(path.c_str(), 1234, 4321), 0);
  chmod(path.c_str(), 04755);
  WriteWholeFile(path, ReadWholeFile(path).snapshot, Writing("new"));
  struct stat status;
  ASSERT_EQ(stat(path.c_str(), &status), 0);
  EXPECT_EQ(status.st_uid, 1234u);
  EXPECT_EQ(status.st_gid, 4321u);
  EXPECT_EQ(ModeOf(path), 04755u);
}

TEST_F(DiskFile, ReplacesAFileOfSomebodyElseInAFolderOfOnesOwn) {
  if (geteuid() != 0) GTEST_SKIP() << "only root may own files as somebody else";
  const std::string path = Write("a.bas", "old");
  chmod(path.c_str(), 0666);
  AsNobody([&] { WriteWholeFile(path, ReadWholeFile(path).snapshot, Writing("new")); });
  EXPECT_EQ(ReadBytes(path), "new");
  EXPECT_EQ(ModeOf(path), 0666u);
}

TEST_F(DiskFile, WritesThroughLinks) {
  const std::string path = Write("a.bas", "old");
  fs::create_directory(folder_ / "sub");
  fs::create_symlink("../a.bas", folder_ / "sub/link.bas");
  fs::create_symlink("sub/link.bas", folder_ / "link.bas");
  WriteWholeFile(In("link.bas"), ReadWholeFile(In("link.bas")).snapshot, Writing("new"));
  EXPECT_EQ(ReadBytes(path), "new");
  EXPECT_TRUE(fs::is_symlink(folder_ / "link.bas"));
  EXPECT_TRUE(fs::is_symlink(folder_ / "sub/link.bas"));
}

TEST_F(DiskFile, RefusesAReadOnlyFile) {
  const std::string path = Write("a.bas", "old");
  const FileSnapshot snapshot = ReadWholeFile(path).snapshot;
  chmod(path.c_str(), 0444);
  const std::string expected = path + ": the file is read-only; it was left as it is";
  EXPECT_EQ(ErrorOf([&] { WriteWholeFile(path, snapshot, Writing("new")); }), expected);
  chmod(path.c_str(), 0644);
  if (geteuid() == 0) {
    AsNobody([&] {
      EXPECT_EQ(ErrorOf([&] { WriteWholeFile(path, snapshot, Writing("new")); }), expected);
    });
  }
  EXPECT_EQ(ReadBytes(path), "old");
}

TEST_F(DiskFile, SaysThatAFolderTakesNoNewFile) {
  const std::string path = Write("a.bas", "old");
  chmod(path.c_str(), 0666);
  chmod(folder_.Path().c_str(), 0555);
  AsNobody([&] {
    EXPECT_EQ(ErrorOf([&] { WriteWholeFile(path, ReadWholeFile(path).snapshot, Writing("new")); }),
              folder_.Path().string() +
                  ": cannot make a temporary file in this folder: Permission denied");
  });
  fs::permissions(folder_.Path(), fs::perms::all);
  EXPECT_EQ(ReadBytes(path), "old");
}

TEST_F(DiskFile, UsesANamedTemporaryFileWhereTheFileSystemKnowsNoOther) {
  const std::string path = Write("a.bas", "old");
  const int result = InProcessWithout({RefusedCall::kOpenNameless}, [&] {
    const std::string error =
        ErrorOf([&] { WriteWholeFile(path, ReadWholeFile(path).snapshot, Writing("new")); });
    return error == "no error" ? 0 : 1;
  });
  if (result == kNothingRefused) GTEST_SKIP() << "this kernel filters no system calls";
  EXPECT_EQ(result, 0);
  EXPECT_EQ(ReadBytes(path), "new");
  EXPECT_EQ(EntriesInFolder(), 1);
}

TEST_F(DiskFile, RemovesANamedTemporaryFileWhenItFails) {
  const std::string path = Write("a.bas", "old");
  const int result = InProcessWithout({RefusedCall::kOpenNameless}, [&] {
    const std::string error = ErrorOf([&] {
      WriteWholeFile(path, ReadWholeFile(path).snapshot, [&](const ByteSink&) {
        if (EntriesInFolder() != 2) _exit(97);
        throw SourceError(path, "stop");
      });
    });
    return error == path + ": stop" ? 0 : 1;
  });
  if (result == kNothingRefused) GTEST_SKIP() << "this kernel filters no system calls";
  EXPECT_EQ(result, 0);
  EXPECT_EQ(ReadBytes(path), "old");
  EXPECT_EQ(EntriesInFolder(), 1);
}

TEST_F(DiskFile, LeavesNothingBehindWhenTheProcessIsKilledWhileItWrites) {
  const std::string path = Write("a.bas", "old");
  const pid_t child = fork();
  if (child == 0) {
    WriteWholeFile(path, ReadWholeFile(path).snapshot, [](const ByteSink& sink) {
      sink("new");
      raise(SIGKILL);
    });
    _exit(0);
  }
  int status = 0;
  waitpid(child, &status, 0);
  EXPECT_TRUE(WIFSIGNALED(status));
  EXPECT_EQ(ReadBytes(path), "old");
  EXPECT_EQ(EntriesInFolder(), 1);
}

TEST(WriteAll, SaysWhyADescriptorTakesNoMore) {
  const int full = open("/dev/full", O_WRONLY);
  ASSERT_GE(full, 0);
  EXPECT_EQ(ErrorOf([&] { WriteAll(full, "bytes", "standard output"); }),
            "standard output: write: No space left on device");
  EXPECT_EQ(ErrorOf([&] { WriteAll(full, "", "standard output"); }), "no error");
  close(full);
  EXPECT_EQ(ErrorOf([&] { WriteAll(-1, "bytes", "standard output"); }),
            "standard output: write: Bad file descriptor");
}

TEST(WriteAll, WaitsForAReaderThatIsSlow) {
  int ends[2];
  ASSERT_EQ(pipe2(ends, O_NONBLOCK), 0);
  const std::string bytes(1'000'000, 'x');
  std::string read;
  std::thread reader([&] {
    char buffer[10'000];
    while (read.size() < bytes.size()) {
      const ssize_t count = ::read(ends[0], buffer, sizeof buffer);
      if (count > 0) read.append(buffer, static_cast<std::size_t>(count));
    }
  });
  WriteAll(ends[1], bytes, "pipe");
  reader.join();
  EXPECT_EQ(read, bytes);
  close(ends[0]);
  close(ends[1]);
}

}  // namespace disk_file_test
}  // namespace brimwork
