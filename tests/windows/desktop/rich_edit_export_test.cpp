// Whole exports through the system's rich text controls and through those of plain data: other
// programs read the same from both.
#include <gtest/gtest.h>

#include "export/html_export.h"
#include "export/rtf_export.h"
#include "export/text_export.h"
#include "memory/rtf_reader.h"
#include "settings/setting_defaults.h"
#include "support/export_fixture.h"
#include "support/module_generator.h"
#include "support/temporary_folder.h"
#include "support/text_colors.h"
#include "windows/desktop/rich_edit_box.h"
#include "windows/desktop/system_text_files.h"

namespace brimwork::windows {
namespace rich_edit_export_test {

constexpr const char* kBuiltIn = "C:\\out";

class RichEditExport : public ExportFixture {
 public:
  /// What is in the file that an export in the system's code page makes of text.
  std::string ExportTextOf(const std::string& text, UINT codePage) {
    std::string path = Utf8Of(folder / "out.txt");
    RichEditBoxes controls(codePage);
    const auto editor = controls.Create();
    editor->SetText(text);
    return ExportText(tools, *editor, path) ? ReadBytes(folder / "out.txt") : "(none)";
  }

  RichText ExportRtfOf(const std::string& text) {
    RichEditBoxes controls;
    dialogs.SaveTo(Utf8Of(folder / "out.rtf"));
    return RunExport(controls, text) ? ReadRtf(ReadBytes(folder / "out.rtf")) : RichText();
  }
  RichText ExpectedRtfOf(const std::string& text) {
    dialogs.SaveTo(kBuiltIn);
    return RunExport(richTextBoxes, text) ? ReadRtf(textFiles.BytesOf(kBuiltIn)) : RichText();
  }

  /// A page, by the control and the files of the system; or by those of plain data.
  std::string ExportHtmlOf(const std::string& text, UINT codePage) {
    SystemTextFiles files(codePage);
    const Environment own = faulty.Parts();
    const Environment mixed = {own.vbe,
                               own.screen,
                               own.clipboard,
                               own.keyboard,
                               own.dialogs,
                               own.messageLoop,
                               own.registry,
                               own.settingsArea,
                               own.shellFolders,
                               own.clock,
                               own.app,
                               own.nativeWindows,
                               own.dialogWindows,
                               own.windowTimers,
                               own.messageBoxes,
                               own.formScreen,
                               own.richTextBoxes,
                               files,
                               own.wordProcessors,
                               own.shell,
                               own.helpViewer,
                               own.formHost};
    Environment shown = mixed;
    RichEditBoxes controls;
    const auto editor = controls.Create();
    editor->SetText(text);
    dialogs.SaveTo(Utf8Of(folder / "out.htm"));
    KeywordList keywords{std::string(kBuiltInKeyWordList)};
    const bool isWritten = ExportHtml({shown, form, {}}, *editor, keywords);
    return isWritten ? ReadBytes(folder / "out.htm") : "(none)";
  }
  std::string ExpectedHtmlOf(const std::string& text, const std::string& codePage) {
    TextCodec codec(codePage);
    textFiles.SetCodec(codec);
    const auto editor = richTextBoxes.Create();
    editor->SetText(text);
    dialogs.SaveTo(kBuiltIn);
    KeywordList keywords{std::string(kBuiltInKeyWordList)};
    return ExportHtml(tools, *editor, keywords) ? textFiles.BytesOf(kBuiltIn) : "(no file)";
  }

 private:
  static std::string Utf8Of(const std::filesystem::path& path) {
    const std::u8string text = path.u8string();
    return std::string(text.begin(), text.end());
  }

  bool RunExport(RichTextBoxes& controls, const std::string& text) {
    const auto editor = controls.Create();
    const auto work = controls.Create();
    editor->SetText(text);
    KeywordList keywords{std::string(kBuiltInKeyWordList)};
    return ExportRtf(tools, *editor, *work, keywords);
  }

  TemporaryFolder folder;
};

void ExpectSameRichText(const std::string& text) {
  RichEditExport exported;
  const RichText saved = exported.ExportRtfOf(text);
  const RichText expected = exported.ExpectedRtfOf(text);
  ASSERT_TRUE(exported.errors.empty());
  ASSERT_FALSE(expected.Text().empty());
  EXPECT_EQ(saved.Text(), expected.Text());
  EXPECT_EQ(ColorsOf(saved), ColorsOf(expected));
  EXPECT_EQ(saved.FormatAt(0).fontName, "Courier New");
  EXPECT_EQ(saved.FormatAt(0).halfPoints, 20);
}

TEST(RichEditExport, GivesTheRichTextOfPlainDataForGeneratedModules) {
  for (unsigned seed = 1; seed <= 3; ++seed) {
    ExpectSameRichText(
        GenerateModule({.seed = seed, .lines = 150, .messy = true, .continuations = true}).text);
  }
}

constexpr const char* kManyScripts =
    "if x then 'Größe, комментарий, 日本語, ｶﾅ, 😀\r\n"
    "\ts = \"двадцать\": end if\r\n\r\n"
    "next 'naïve ā ≤ ﬁ\r\n";

TEST(RichEditExport, LosesNoCharacterOfAnyScript) { ExpectSameRichText(kManyScripts); }

TEST(RichEditExport, WritesPlainTextInEachCodePage) {
  RichEditExport exported;
  EXPECT_EQ(exported.ExportTextOf("x = \"日本\" 'ｶﾅ\r\n", 932),
            "x = \"\x93\xFA\x96\x7B\" '\xB6\xC5\r\n");
  EXPECT_EQ(exported.ExportTextOf("'Жук\n", 1251), "'\xC6\xF3\xEA\r\n");
  EXPECT_EQ(exported.ExportTextOf("'Жук\n", 1252), "(none)");
}

TEST(RichEditExport, WritesThePageOfPlainDataInEachCodePage) {
  constexpr std::pair<UINT, const char*> kCodePages[] = {
      {932, "CP932"}, {1251, "WINDOWS-1251"}, {1252, "WINDOWS-1252"}};
  const std::string module = GenerateModule({.lines = 100, .messy = true}).text + kManyScripts;
  for (const auto& [number, name] : kCodePages) {
    RichEditExport exported;
    EXPECT_EQ(exported.ExportHtmlOf(module, number), exported.ExpectedHtmlOf(module, name)) << name;
  }
}

}  // namespace rich_edit_export_test
}  // namespace brimwork::windows
