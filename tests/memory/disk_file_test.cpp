// Files that are read and replaced whole, as every system does it. Their names are not all ASCII.
#include "memory/disk_file.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <atomic>
#include <filesystem>
#include <fstream>
#include <thread>

#include "support/disk_file_fixture.h"

namespace brimwork {
namespace disk_file_portable_test {

namespace fs = std::filesystem;
using WholeFile = DiskFileFixture;
using testing::ElementsAre;
using testing::HasSubstr;

constexpr const char* kName = "Größe Ж€.bas";

TEST_F(WholeFile, IsReadToItsLastByte) {
  const std::string bytes("a\0b\r\n\x1A\xFF", 7);
  EXPECT_EQ(ReadWholeFile(Write(kName, bytes)).bytes, bytes);
  EXPECT_EQ(ReadWholeFile(Write("empty.bas", "")).bytes, "");
}

TEST_F(WholeFile, IsNoFolder) {
  fs::create_directory(folder_ / "Größe");
  EXPECT_EQ(ErrorOf([&] { ReadWholeFile(In("Größe")); }),
            In("Größe") + ": this is a folder; name a file");
}

TEST_F(WholeFile, IsNamedWhereItIsMissing) {
  EXPECT_THAT(ErrorOf([&] { ReadWholeFile(In(kName)); }), HasSubstr(In(kName) + ": "));
}

TEST_F(WholeFile, IsRefusedWhenItGrowsWhileItIsRead) {
  const std::string path = Write(kName, std::string(20'000'000, 'x'));
  std::atomic<bool> stop = false;
  std::atomic<bool> started = false;
  std::thread writer([&] {
    std::ofstream file(folder_ / kName, std::ios::binary | std::ios::app);
    while (!stop) {
      file << 'x' << std::flush;
      started = true;
    }
  });
  while (!started) std::this_thread::yield();
  // On a busy machine a whole reading may pass before the writer's next turn.
  std::string error = kNoError;
  for (int i = 0; i < 1000 && error == kNoError; ++i) {
    error = ErrorOf([&] { ReadWholeFile(path); });
  }
  stop = true;
  writer.join();
  EXPECT_EQ(error, path +
                       ": the file changed while it was being read; try again when nothing "
                       "writes to it");
}

TEST_F(WholeFile, IsReplacedByWhatIsComposed) {
  const std::string path = Write(kName, "old and longer");
  WriteWholeFile(path, ReadWholeFile(path).snapshot, [](const ByteSink& sink) {
    sink("new ");
    sink("bytes");
  });
  EXPECT_EQ(Read(kName), "new bytes");
  EXPECT_THAT(Names(), ElementsAre(kName));
}

TEST_F(WholeFile, IsAsItWasUntilTheLastByteIsComposed) {
  const std::string path = Write(kName, "old");
  WriteWholeFile(path, ReadWholeFile(path).snapshot, [&](const ByteSink& sink) {
    sink("new");
    EXPECT_EQ(Read(kName), "old");
  });
  EXPECT_EQ(Read(kName), "new");
}

TEST_F(WholeFile, MayStandInTheWorkingFolder) {
  Write(kName, "old");
  const fs::path before = fs::current_path();
  fs::current_path(folder_.Path());
  WriteWholeFile(kName, ReadWholeFile(kName).snapshot, Writing("new"));
  fs::current_path(before);
  EXPECT_EQ(Read(kName), "new");
}

TEST_F(WholeFile, StaysOneFileUnderSeveralNames) {
  const std::string path = Write(kName, "old and longer");
  fs::create_hard_link(folder_ / kName, folder_ / "b.bas");
  for (const std::string bytes : {"new", "much longer than it was before"}) {
    WriteWholeFile(path, ReadWholeFile(path).snapshot, Writing(bytes));
    EXPECT_EQ(Read("b.bas"), bytes);
    EXPECT_TRUE(fs::equivalent(folder_ / kName, folder_ / "b.bas"));
    EXPECT_EQ(EntriesInFolder(), 2);
  }
}

TEST_F(WholeFile, IsRefusedWhenItWasChangedSinceItWasRead) {
  const std::string path = Write(kName, "old");
  const FileSnapshot snapshot = ReadWholeFile(path).snapshot;
  Write(kName, "theirs");
  EXPECT_EQ(ErrorOf([&] { WriteWholeFile(path, snapshot, Writing("new")); }),
            path +
                ": the file was changed by someone else since it was read; it was left as it is "
                "now, run again");
  EXPECT_EQ(Read(kName), "theirs");
}

TEST_F(WholeFile, IsRefusedWhenItIsGoneByNow) {
  const std::string path = Write(kName, "old");
  const FileSnapshot snapshot = ReadWholeFile(path).snapshot;
  fs::remove(folder_ / kName);
  EXPECT_THAT(ErrorOf([&] { WriteWholeFile(path, snapshot, Writing("new")); }),
              HasSubstr(path + ": "));
  EXPECT_EQ(EntriesInFolder(), 0);
}

TEST_F(WholeFile, IsRefusedWhenAnotherOneReplacedItWithTheSameSizeAndTime) {
  const std::string path = Write(kName, "old");
  const FileSnapshot snapshot = ReadWholeFile(path).snapshot;
  const auto time = fs::last_write_time(folder_ / kName);
  Write("b.bas", "odd");
  fs::last_write_time(folder_ / "b.bas", time);
  fs::rename(folder_ / "b.bas", folder_ / kName);
  EXPECT_THAT(ErrorOf([&] { WriteWholeFile(path, snapshot, Writing("new")); }),
              HasSubstr("changed by someone else"));
  EXPECT_EQ(Read(kName), "odd");
}

TEST_F(WholeFile, IsRefusedWhenItChangesWhileItIsComposed) {
  const std::string path = Write(kName, "old");
  const FileSnapshot snapshot = ReadWholeFile(path).snapshot;
  EXPECT_THAT(ErrorOf([&] {
                WriteWholeFile(path, snapshot, [&](const ByteSink& sink) {
                  sink("new");
                  Write(kName, "theirs");
                });
              }),
              HasSubstr("changed by someone else"));
  EXPECT_EQ(Read(kName), "theirs");
  EXPECT_EQ(EntriesInFolder(), 1);
}

TEST_F(WholeFile, StaysAsItWasWhenItsBytesCannotBeComposed) {
  const std::string path = Write(kName, "old");
  EXPECT_EQ(ErrorOf([&] {
              WriteWholeFile(path, ReadWholeFile(path).snapshot, [](const ByteSink& sink) {
                sink("new");
                throw SourceError("a.bas", 3, 4, "no such character");
              });
            }),
            "a.bas:3:4: no such character");
  EXPECT_EQ(Read(kName), "old");
  EXPECT_EQ(EntriesInFolder(), 1);
}

}  // namespace disk_file_portable_test
}  // namespace brimwork
