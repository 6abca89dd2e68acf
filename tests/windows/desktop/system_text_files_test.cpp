#include "windows/desktop/system_text_files.h"

#include <gtest/gtest.h>

#include "environment/resume_next.h"
#include "support/temporary_folder.h"
#include "win32/wide_text.h"

namespace brimwork::windows {
namespace system_text_files_test {

class SystemTextFilesTest : public testing::Test {
 protected:
  std::string PathOf(std::string_view name) {
    const std::u8string path = (folder / name).u8string();
    return std::string(path.begin(), path.end());
  }

  /// The bytes of a line in a code page.
  std::string Written(UINT codePage, std::string_view line) {
    const auto file = SystemTextFiles(codePage).OpenForOutput(PathOf("a.htm"),
                                                              UnencodableText::kCharacterReference);
    file->PrintLine(line);
    file->Close();
    return ReadBytes(folder / "a.htm");
  }

  /// The number of the error that opening a file raises, 0 for none.
  int ErrorOfOpening(std::string_view name) {
    const auto error =
        ResumeNext([&] { SystemTextFiles().OpenForOutput(PathOf(name), UnencodableText::kFails); });
    return error ? error->Number() : 0;
  }

  std::ptrdiff_t FileCount() {
    return std::distance(std::filesystem::directory_iterator(folder.Path()), {});
  }

  TemporaryFolder folder;
};

TEST_F(SystemTextFilesTest, WritesLinesInTheCodePage) {
  EXPECT_EQ(Written(1252, "café €"), "caf\xE9 \x80\r\n");
  EXPECT_EQ(Written(1251, "Жук"), "\xC6\xF3\xEA\r\n");
  EXPECT_EQ(Written(932, "日本 ｶﾅ \\"), "\x93\xFA\x96\x7B \xB6\xC5 \\\r\n");
  EXPECT_EQ(Written(CP_UTF8, "日本 😀"), "日本 😀\r\n");
  EXPECT_EQ(Written(1252, ""), "\r\n");
}

TEST_F(SystemTextFilesTest, ReplacesCharactersThatTheCodePageHasNotByReferences) {
  EXPECT_EQ(Written(1252, "a Ж b 日c"), "a &#1046; b &#26085;c\r\n");
  EXPECT_EQ(Written(932, "日 😀"), "\x93\xFA &#128512;\r\n");
}

TEST_F(SystemTextFilesTest, WritesNoCharacterAsOneThatLooksAlike) {
  EXPECT_EQ(Written(1252, "ā ≤ ∞ Ａ"), "&#257; &#8804; &#8734; &#65313;\r\n");
  EXPECT_EQ(Written(1251, "é"), "&#233;\r\n");
}

TEST_F(SystemTextFilesTest, WritesInTheCodePageOfTheSystemWhereNothingIsSaid) {
  const auto file =
      SystemTextFiles().OpenForOutput(PathOf("a.txt"), UnencodableText::kCharacterReference);
  file->PrintLine("x = 1");
  file->Close();
  EXPECT_EQ(ReadBytes(folder / "a.txt"), "x = 1\r\n");
}

TEST_F(SystemTextFilesTest, RaisesErrorFiveForSuchACharacterWhereThatIsAskedFor) {
  WriteBytes(folder / "a.txt", "old");
  auto file = SystemTextFiles(1252).OpenForOutput(PathOf("a.txt"), UnencodableText::kFails);
  file->PrintLine("x = 1");
  const auto error = ResumeNext([&] { file->PrintLine("Ж"); });
  ASSERT_TRUE(error);
  EXPECT_EQ(error->Number(), error_number::kInvalidProcedureCall);
  EXPECT_STREQ(error->what(), "the character \"Ж\" (U+0416) does not exist in code page 1252");
  file.reset();
  EXPECT_EQ(ReadBytes(folder / "a.txt"), "old");
  EXPECT_EQ(FileCount(), 1);
}

TEST_F(SystemTextFilesTest, AFileAppearsWholeWhenItIsClosed) {
  WriteBytes(folder / "ä日.txt", "old and longer than what comes");
  const auto file = SystemTextFiles().OpenForOutput(PathOf("ä日.txt"), UnencodableText::kFails);
  file->PrintLine("new");
  EXPECT_EQ(ReadBytes(folder / "ä日.txt"), "old and longer than what comes");
  file->Close();
  EXPECT_EQ(ReadBytes(folder / "ä日.txt"), "new\r\n");
  EXPECT_EQ(FileCount(), 1);
}

TEST_F(SystemTextFilesTest, AFileThatIsNotClosedLeavesNothingBehind) {
  auto file = SystemTextFiles().OpenForOutput(PathOf("a.txt"), UnencodableText::kFails);
  file->PrintLine(std::string(1024 * 1024, 'x'));
  file.reset();
  EXPECT_EQ(FileCount(), 0);
}

TEST_F(SystemTextFilesTest, HoldsMuchText) {
  const auto file = SystemTextFiles().OpenForOutput(PathOf("a.txt"), UnencodableText::kFails);
  std::string expected;
  for (int i = 0; i < 50000; ++i) {
    const std::string line = "line " + std::to_string(i);
    file->PrintLine(line);
    expected += line + "\r\n";
  }
  file->Close();
  EXPECT_EQ(ReadBytes(folder / "a.txt"), expected);
}

TEST_F(SystemTextFilesTest, RaisesErrorSeventyFiveWhereNoFileCanBe) {
  EXPECT_EQ(ErrorOfOpening("no folder\\a.txt"), error_number::kPathFileAccess);
  std::filesystem::create_directory(folder / "a.txt");
  EXPECT_EQ(ErrorOfOpening("a.txt"), error_number::kPathFileAccess);
  EXPECT_EQ(ErrorOfOpening("a?b.txt"), error_number::kPathFileAccess);
}

TEST_F(SystemTextFilesTest, LeavesAReadOnlyFileAsItIs) {
  WriteBytes(folder / "a.txt", "kept");
  const std::wstring path = (folder / "a.txt").wstring();
  SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_READONLY);
  EXPECT_EQ(ErrorOfOpening("a.txt"), error_number::kPathFileAccess);
  EXPECT_EQ(ReadBytes(folder / "a.txt"), "kept");
  SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_NORMAL);
  EXPECT_EQ(FileCount(), 1);
}

TEST_F(SystemTextFilesTest, RaisesErrorSeventyFiveWhenAnotherProgramHoldsTheFile) {
  WriteBytes(folder / "a.txt", "held");
  const HANDLE held = CreateFileW((folder / "a.txt").wstring().c_str(), GENERIC_READ, 0, nullptr,
                                  OPEN_EXISTING, 0, nullptr);
  auto file = SystemTextFiles().OpenForOutput(PathOf("a.txt"), UnencodableText::kFails);
  file->PrintLine("new");
  const auto error = ResumeNext([&] { file->Close(); });
  CloseHandle(held);
  ASSERT_TRUE(error);
  EXPECT_EQ(error->Number(), error_number::kPathFileAccess);
  file.reset();
  EXPECT_EQ(ReadBytes(folder / "a.txt"), "held");
  EXPECT_EQ(FileCount(), 1);
}

TEST_F(SystemTextFilesTest, AHiddenFileStaysHidden) {
  WriteBytes(folder / "a.txt", "old");
  const std::wstring path = (folder / "a.txt").wstring();
  SetFileAttributesW(path.c_str(), FILE_ATTRIBUTE_HIDDEN);
  const auto file = SystemTextFiles().OpenForOutput(PathOf("a.txt"), UnencodableText::kFails);
  file->Close();
  EXPECT_NE(GetFileAttributesW(path.c_str()) & FILE_ATTRIBUTE_HIDDEN, 0u);
  EXPECT_EQ(GetFileAttributesW(path.c_str()) & FILE_ATTRIBUTE_TEMPORARY, 0u);
}

}  // namespace system_text_files_test
}  // namespace brimwork::windows
