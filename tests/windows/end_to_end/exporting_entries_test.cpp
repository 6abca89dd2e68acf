// Every entry that exports code, clicked in the bench: the file holds what the same command writes
// in plain data.
#include <windows.h>

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <filesystem>
#include <set>
#include <string>

#include "core/modButtonClicked.h"
#include "memory/memory_environment.h"
#include "memory/rtf_reader.h"
#include "settings/setting_keys.h"
#include "settings/settings.h"
#include "support/text_colors.h"
#include "support/windows/user.h"
#include "support/windows/users_clipboard.h"
#include "support/windows/waiting.h"
#include "windows/end_to_end/bench_suite.h"
#include "windows/end_to_end/bench_windows.h"
#include "windows/end_to_end/entry_clicks.h"

namespace brimwork {
namespace exporting_entries_test {

namespace fs = std::filesystem;

constexpr const char* kComponent = "modStock";
constexpr const char* kText =
    "Option Explicit\r\n"
    "\r\n"
    "private sub Count(ByVal parts As Long)\r\n"
    "  If parts > 3 Then Debug.Print \"Größe & <Maß>\" 'how many, ½ counted\r\n"
    "End Sub";
constexpr const char* kKeywords = "Option,Explicit,Private,Sub,ByVal,As,Long,If,Then,End";
constexpr Selection kSelected{3, 9, 5, 4};
constexpr const char* kSaveDialog = "Save Exported Code";
constexpr const char* kQuickFile = "Exported Code.txt";
constexpr const char* kPath = "C:\\exported";  // in plain data

bool IsQuick(const CatalogueEntry& entry) { return entry.caption == "Quick Export"; }
bool IsRichText(const CatalogueEntry& entry) { return entry.caption == "RTF"; }

std::string Extension(const CatalogueEntry& entry) {
  if (IsRichText(entry)) return ".rtf";
  return entry.caption == "Web Page" ? ".htm" : ".txt";
}

std::string InPlainData(const CatalogueEntry& entry) {
  MemoryEnvironment memory;
  Environment parts = memory.Parts();
  SaveSetting(parts, setting::kKeyWordList, kKeywords);
  SaveSetting(parts, setting::kQuickExportPath, kPath);
  memory.dialogs.SaveTo(kPath);
  memory.Open(kComponent, ModuleText::FromText(kText))->SetSelection(kSelected);
  AddIn addIn(parts);
  ButtonClicked(addIn, entry.caption, entry.wholeModule);
  return memory.textFiles.BytesOf(IsQuick(entry) ? std::string(kPath) + "\\" + kQuickFile : kPath);
}

/// A file's content; of rich text the characters and their colours, which can be written in many
/// ways.
std::string Readable(const CatalogueEntry& entry, const std::string& bytes) {
  if (!IsRichText(entry)) return bytes;
  const RichText content = ReadRtf(bytes);
  return content.Text() + '\n' + ColorsOf(content) + '\n' + content.FormatAt(0).fontName;
}

std::set<fs::path> FilesIn(const fs::path& folder) {
  std::set<fs::path> files;
  for (const auto& entry : fs::directory_iterator(folder)) files.insert(entry.path());
  return files;
}

std::vector<int> ExportHandlers() {
  std::vector<int> handlers;
  for (const CatalogueEntry& entry : Catalogue()) {
    if (entry.submenu.starts_with("Export")) handlers.push_back(entry.handler);
  }
  return handlers;
}

class ExportingEntries : public BenchSuite, public ::testing::WithParamInterface<int> {
 protected:
  void SetUp() override {
    SetAddInSetting("KeyWordList", kKeywords);
    SetAddInSetting("QuickExportPath", folder_.Path().string());
    const bench::Client pane = ShowText(kComponent, kText, 1, 1);
    using win32::Variant;
    pane.Call(L"SetSelection", {Variant(kSelected.startLine), Variant(kSelected.startColumn),
                                Variant(kSelected.endLine), Variant(kSelected.endColumn)});
    PutOnClipboard(kUsersText);
  }

  void TearDown() override {
    EXPECT_TRUE(WaitUntilAlone(Bench()));
    EXPECT_EQ(TextOnClipboard(), kUsersText);
    EXPECT_EQ(TextOf(Bench().OpenModule(kComponent)), kText);
  }

  static void AnswerWith(const std::string& path) {
    const HWND dialog = WaitForDialog(Bench(), kSaveDialog);
    ASSERT_NE(dialog, nullptr);
    TypeText(path);
    PressKey(VK_RETURN);
    EXPECT_TRUE(Bench().WaitUntilGone(dialog));
  }

  /// What the dialog is answered with: it adds the extension.
  std::string Name() const { return (folder_ / "exported").string(); }
  std::string File() const {
    return (folder_ / (IsQuick(entry_) ? kQuickFile : "exported" + Extension(entry_))).string();
  }
  const CatalogueEntry& entry_ = EntryOfHandler(GetParam());
  TemporaryFolder folder_;
};

class ExportingEntry : public ExportingEntries {};

TEST_P(ExportingEntry, WritesWhatItWritesInPlainData) {
  const std::string expected = Readable(entry_, InPlainData(entry_));
  ASSERT_NE(expected, "");

  ClickEntry(Bench(), entry_);
  if (!IsQuick(entry_)) AnswerWith(Name());

  ASSERT_TRUE(WaitUntil([&] { return fs::exists(File()); }));
  EXPECT_TRUE(WaitUntilAlone(Bench()));
  EXPECT_EQ(Readable(entry_, ReadBytes(File())), expected);
}

INSTANTIATE_TEST_SUITE_P(All, ExportingEntry, ::testing::ValuesIn(ExportHandlers()), HandlerName);

/// Whether a box has the keyboard that the dialog waits for.
bool IsQuestionAbove(HWND dialog) {
  const HWND front = GetForegroundWindow();
  return front != dialog && GetWindow(front, GW_OWNER) == dialog && HasKeyboard(front);
}

class CancelledExport : public ExportingEntries {};

TEST_P(CancelledExport, WritesNothing) {
  const fs::path ownFolder = fs::path(LibraryPath()).parent_path();
  const auto before = FilesIn(ownFolder);

  ClickEntry(Bench(), entry_);
  const HWND dialog = WaitForDialog(Bench(), kSaveDialog);
  ASSERT_NE(dialog, nullptr);
  TypeText(Name());
  PressKey(VK_ESCAPE);

  EXPECT_TRUE(Bench().WaitUntilGone(dialog));
  EXPECT_TRUE(WaitUntilAlone(Bench()));
  EXPECT_THAT(FilesIn(folder_.Path()), ::testing::IsEmpty());
  EXPECT_EQ(FilesIn(ownFolder), before);
}

TEST_P(CancelledExport, LeavesAnOlderFileWhenTheUserSaysNo) {
  WriteBytes(File(), "older");

  ClickEntry(Bench(), entry_);
  const HWND dialog = WaitForDialog(Bench(), kSaveDialog);
  ASSERT_NE(dialog, nullptr);
  TypeText(Name());
  PressKey(VK_RETURN);
  ASSERT_TRUE(WaitUntil([&] { return IsQuestionAbove(dialog); }));
  PressKey('N');
  ASSERT_TRUE(WaitUntil([&] { return HasKeyboard(dialog); }));
  PressKey(VK_ESCAPE);

  EXPECT_TRUE(Bench().WaitUntilGone(dialog));
  EXPECT_EQ(ReadBytes(File()), "older");
}

/// Each format once, one of them through the pop-up menu.
INSTANTIATE_TEST_SUITE_P(Some, CancelledExport, ::testing::Values(36, 29, 38), HandlerName);

}  // namespace exporting_entries_test
}  // namespace brimwork
