#include "export/rtf_export.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "environment/run_time_error.h"
#include "support/export_fixture.h"
#include "support/text_colors.h"

namespace brimwork {
namespace rtf_export_test {

using testing::HasSubstr;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

constexpr const char* kPath = "C:\\Out\\code.rtf";
constexpr const char* kMessage = "Exporting To RTF|Now Converting To RTF and Saving code.rtf";

struct RtfExport : testing::Test, ExportFixture {
  bool Export(const std::string& text, const std::string& words = "If,Then,End") {
    editor.SetText(text);
    KeywordList keywords(words);
    return ExportRtf(tools, editor, work, keywords);
  }

  /// What another program reads from the file that the text becomes.
  RichText File(const std::string& text) {
    dialogs.SaveTo(kPath);
    EXPECT_TRUE(Export(text));
    MemoryRichTextBox reader(3, textFiles);
    reader.SetTextRTF(textFiles.BytesOf(kPath));
    return reader.Content();
  }

  MemoryRichTextBox editor{1, textFiles};
  MemoryRichTextBox work{2, textFiles};
};

TEST_F(RtfExport, WritesTheCodeWithKeywordsAndCommentsInTheirColors) {
  const RichText file = File("if x then 'note\r\n  s = \"End\"\r\n\r\nend if");
  EXPECT_EQ(file.Text(), "If x Then 'note\r\n  s = \"End\"\r\n\r\nEnd If");
  EXPECT_EQ(ColorsOf(file),
            "nn...nnnn.ggggg.."
            "............."
            "..nnn.nn");
}

TEST_F(RtfExport, SetsTheWholeCodeInCourierNewOfTenPoints) {
  const RichText file = File("if x then 'note\r\ny\r\n");
  for (int i = 0; i < file.Size(); ++i) {
    EXPECT_EQ(file.FormatAt(i).fontName, "Courier New") << i;
    EXPECT_EQ(file.FormatAt(i).halfPoints, 20) << i;
  }
}

TEST_F(RtfExport, NamesFontSizeAndColorsInTheFile) {
  File("if x 'note");
  const std::string bytes = textFiles.BytesOf(kPath);
  EXPECT_THAT(bytes, StartsWith("{\\rtf1"));
  EXPECT_THAT(bytes, HasSubstr("Courier New;"));
  EXPECT_THAT(bytes, HasSubstr("\\fs20"));
  EXPECT_THAT(bytes, HasSubstr("\\red0\\green0\\blue0;"));
  EXPECT_THAT(bytes, HasSubstr("\\red0\\green0\\blue128;"));
  EXPECT_THAT(bytes, HasSubstr("\\red0\\green128\\blue0;"));
}

TEST_F(RtfExport, LeavesTheFormattedCodeInBothControls) {
  const RichText file = File("if x 'note\r\nend");
  EXPECT_EQ(editor.Text(), "If x 'note\r\nEnd");
  EXPECT_TRUE(editor.Content() == file);
  EXPECT_TRUE(work.Content() == file);
}

TEST_F(RtfExport, KeepsEveryLineAndLetter) {
  for (const char* text : {"", "x", "\r\n", "x\r\n", "\r\n\r\nx\r\n\r\n", "  x\t{y} \\z \r\n",
                           "\u00e4\u20ac \u4e2d\u6587 \U0001F600 '\u00df\r\n"}) {
    EXPECT_EQ(File(text).Text(), text);
    EXPECT_EQ(editor.Text(), text);
  }
}

TEST_F(RtfExport, BeginsAnewInControlsThatWereUsedBefore) {
  File("x 'green\r\nend");
  const std::string first = textFiles.BytesOf(kPath);
  File("'all of it is green, and longer than before");
  File("x 'green\r\nend");
  EXPECT_EQ(textFiles.BytesOf(kPath), first);
}

TEST_F(RtfExport, ReplacesAnOlderFile) {
  textFiles.Write(kPath, "older");
  EXPECT_EQ(File("x").Text(), "x");
}

TEST_F(RtfExport, AsksForARichTextFileWithTheEditorAsOwner) {
  File("x");
  ASSERT_THAT(dialogs.SaveRequests(), SizeIs(1));
  EXPECT_EQ(dialogs.SaveRequests().front().defaultExtension, "rtf");
  EXPECT_EQ(dialogs.SaveRequests().front().owner, editor.hWnd());
  EXPECT_EQ(dialogs.SaveRequests().front().title, "Save Exported Code");
  EXPECT_EQ(dialogs.SaveRequests().front().initialFolder, app.path);
}

TEST_F(RtfExport, ShowsHowFarItIsForAsLongAsItWorks) {
  File("a");
  std::erase(events, "pointer 11");
  EXPECT_THAT(events, testing::ElementsAre(kMessage, "show", "1/2", "2/2", "hide", "pointer 0"));
}

TEST_F(RtfExport, GivesTheWindowItsTurnOnceForEachStep) {
  File("ab = \"cd\"");
  EXPECT_EQ(messageLoop.Count(), 7);
}

TEST_F(RtfExport, SwitchesWordWrapOffInBothControls) {
  File("x");
  EXPECT_FALSE(editor.WrapsWords());
  EXPECT_FALSE(work.WrapsWords());
}

TEST_F(RtfExport, DoesNothingWhenTheUserCancels) {
  EXPECT_FALSE(Export("x"));
  EXPECT_THAT(events, IsEmpty());
  EXPECT_THAT(errors, IsEmpty());
  EXPECT_EQ(messageLoop.Count(), 0);
  EXPECT_EQ(textFiles.Count(), 0u);
}

TEST_F(RtfExport, EndsWithoutAFileForAQuoteWithoutAnotherBehindIt) {
  textFiles.Write(kPath, "older");
  dialogs.SaveTo(kPath);
  EXPECT_FALSE(Export("if x\r\ns = \"end\r\n'it"));
  EXPECT_EQ(textFiles.BytesOf(kPath), "older");
  EXPECT_EQ(textFiles.Count(), 1u);
  EXPECT_FALSE(form.IsVisible());
  EXPECT_EQ(notingScreen.MousePointer(), mouse_pointer::kDefault);
  EXPECT_THAT(dialogs.Messages(), IsEmpty());
  ASSERT_THAT(errors, SizeIs(1));
  EXPECT_EQ(errors.front().Line(), 2);
}

TEST_F(RtfExport, WritesNothingOntoAFullDisk) {
  textFiles.isDiskFull = true;
  dialogs.SaveTo(kPath);
  EXPECT_FALSE(Export("x"));
  EXPECT_EQ(textFiles.Count(), 0u);
  EXPECT_FALSE(form.IsVisible());
  ASSERT_THAT(errors, SizeIs(1));
  EXPECT_EQ(errors.front().Number(), error_number::kPathFileAccess);
}

class RtfExportFailure : public testing::TestWithParam<std::pair<const char*, int>> {};

TEST_P(RtfExportFailure, WritesNothingAndIsKeptFromTheUser) {
  const auto [operation, time] = GetParam();
  ExportFixture fixture(FailingOnce(operation, time));
  fixture.textFiles.Write(kPath, "older");
  fixture.dialogs.SaveTo(kPath);
  fixture.form.rtf().SetText("if x 'y");
  KeywordList keywords("If");
  EXPECT_FALSE(ExportRtf(fixture.tools, fixture.form.rtf(), fixture.form.rtfTemp(), keywords));
  EXPECT_EQ(fixture.textFiles.BytesOf(kPath), "older");
  EXPECT_FALSE(fixture.form.IsVisible());
  EXPECT_EQ(fixture.notingScreen.MousePointer(), mouse_pointer::kDefault);
  EXPECT_THAT(fixture.dialogs.Messages(), IsEmpty());
  EXPECT_THAT(fixture.errors, SizeIs(1));
}

// The first text that is set is that of the test itself.
INSTANTIATE_TEST_SUITE_P(
    EachCall, RtfExportFailure,
    testing::Values(
        std::pair("RichTextBox.hWnd", 1), std::pair("Dialogs.GetSaveFileName", 1),
        std::pair("RichTextBox.SetWordWrap", 1), std::pair("RichTextBox.SetWordWrap", 2),
        std::pair("RichTextBox.Text", 1), std::pair("RichTextBox.Text", 2),
        std::pair("RichTextBox.SetText", 2), std::pair("RichTextBox.SetSelStart", 1),
        std::pair("RichTextBox.SetSelLength", 1), std::pair("RichTextBox.SetSelColor", 1),
        std::pair("RichTextBox.SetSelFontName", 1), std::pair("RichTextBox.SetSelFontSize", 1),
        std::pair("MessageLoop.DoEvents", 1), std::pair("MessageLoop.DoEvents", 5),
        std::pair("RichTextBox.SetSelColor", 2), std::pair("RichTextBox.SetSelText", 1),
        std::pair("RichTextBox.SetSelColor", 3), std::pair("RichTextBox.SelRTF", 1),
        std::pair("RichTextBox.SetTextRTF", 1), std::pair("RichTextBox.SaveFile", 1)));

}  // namespace rtf_export_test
}  // namespace brimwork
