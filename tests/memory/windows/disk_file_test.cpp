// What is so of files on Windows only: attributes, and handles that are in the way.
#include "memory/disk_file.h"

#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "memory/utf8_path.h"
#include "memory/windows/windows_file.h"
#include "support/disk_file_fixture.h"

namespace brimwork {
namespace windows_disk_file_test {

using testing::ElementsAre;
using windows::OpenFile;

constexpr const char* kName = "Größe Ж€.bas";
constexpr const char* kInTheWay =
    ": another program has the file open; close it there and try again";
constexpr DWORD kSharesNothing = 0;

struct WindowsDiskFile : DiskFileFixture {
  /// As another program that lets others do with the file what shared says.
  OpenFile OpenElsewhere(const std::string& name, DWORD access, DWORD shared) {
    return OpenFile(CreateFileW((folder_ / name).c_str(), access, shared, nullptr, OPEN_EXISTING,
                                FILE_ATTRIBUTE_NORMAL, nullptr));
  }
  void SetAttributes(const std::string& name, DWORD attributes) {
    SetFileAttributesW((folder_ / name).c_str(), attributes);
  }
  DWORD Attributes(const std::string& name) { return GetFileAttributesW((folder_ / name).c_str()); }
};

TEST_F(WindowsDiskFile, ThatAnotherProgramKeepsToItselfIsNotRead) {
  const std::string path = Write(kName, "old");
  const OpenFile other = OpenElsewhere(kName, GENERIC_READ | GENERIC_WRITE, kSharesNothing);
  ASSERT_TRUE(other.IsOpen());
  EXPECT_EQ(ErrorOf([&] { ReadWholeFile(path); }), path + kInTheWay);
}

TEST_F(WindowsDiskFile, ThatAnotherProgramHasOpenIsReadAllTheSame) {
  const std::string path = Write(kName, "old");
  const OpenFile other =
      OpenElsewhere(kName, GENERIC_READ | GENERIC_WRITE, FILE_SHARE_READ | FILE_SHARE_WRITE);
  ASSERT_TRUE(other.IsOpen());
  EXPECT_EQ(ReadWholeFile(path).bytes, "old");
}

TEST_F(WindowsDiskFile, ThatAnotherProgramHasOpenIsNotReplaced) {
  const std::string path = Write(kName, "old");
  const FileSnapshot snapshot = ReadWholeFile(path).snapshot;
  {
    const OpenFile other = OpenElsewhere(kName, GENERIC_READ, FILE_SHARE_READ);
    ASSERT_TRUE(other.IsOpen());
    EXPECT_NE(ErrorOf([&] { WriteWholeFile(path, snapshot, Writing("new")); }), kNoError);
    EXPECT_EQ(Read(kName), "old");
    EXPECT_THAT(Names(), ElementsAre(kName));
  }
  WriteWholeFile(path, snapshot, Writing("new"));
  EXPECT_EQ(Read(kName), "new");
}

TEST_F(WindowsDiskFile, ThatIsReadOnlyIsNotReplaced) {
  const std::string path = Write(kName, "old");
  const FileSnapshot snapshot = ReadWholeFile(path).snapshot;
  SetAttributes(kName, FILE_ATTRIBUTE_READONLY);
  EXPECT_EQ(ErrorOf([&] { WriteWholeFile(path, snapshot, Writing("new")); }),
            path + ": the file is read-only; it was left as it is");
  EXPECT_EQ(Read(kName), "old");
  EXPECT_THAT(Names(), ElementsAre(kName));
  SetAttributes(kName, FILE_ATTRIBUTE_NORMAL);
}

TEST_F(WindowsDiskFile, KeepsItsAttributes) {
  const std::string path = Write(kName, "old");
  SetAttributes(kName, FILE_ATTRIBUTE_HIDDEN);
  const DWORD before = Attributes(kName);
  WriteWholeFile(path, ReadWholeFile(path).snapshot, Writing("new"));
  EXPECT_EQ(Read(kName), "new");
  EXPECT_EQ(Attributes(kName) & FILE_ATTRIBUTE_HIDDEN, before & FILE_ATTRIBUTE_HIDDEN);
}

TEST_F(WindowsDiskFile, IsFoundInAnyLetterCaseAndWithEitherSeparator) {
  Write(kName, "old");
  std::string path = In("GRÖßE ж€.BAS");
  EXPECT_EQ(ReadWholeFile(path).bytes, "old");
  std::replace(path.begin(), path.end(), '\\', '/');
  WriteWholeFile(path, ReadWholeFile(path).snapshot, Writing("new"));
  EXPECT_EQ(Read(kName), "new");
  EXPECT_THAT(Names(), ElementsAre(kName));
}

TEST_F(WindowsDiskFile, IsNoDevice) {
  EXPECT_EQ(ErrorOf([] { ReadWholeFile("NUL"); }),
            "NUL: this is no regular file; only regular files can be read");
}

TEST(FolderOf, IsWhatStandsInFrontOfTheLastSeparator) {
  EXPECT_EQ(windows::FolderOf("C:\\a\\b.bas"), "C:\\a");
  EXPECT_EQ(windows::FolderOf("C:/a/b.bas"), "C:/a");
  EXPECT_EQ(windows::FolderOf("b.bas"), ".");
  EXPECT_EQ(windows::FolderOf("C:b.bas"), "C:.");
  EXPECT_EQ(windows::FolderOf("C:\\b.bas"), "C:");  // a separator is put behind it again
}

}  // namespace windows_disk_file_test
}  // namespace brimwork
