#include "export/text_export.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "environment/run_time_error.h"
#include "support/export_fixture.h"

namespace brimwork {
namespace text_export_test {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr const char* kPath = "C:\\Out\\code.txt";
constexpr const char* kMessage = "Exporting To Text|Now Converting To Text and Saving code.txt";

struct TextExport : testing::Test, ExportFixture {
  bool Export(const std::string& text, std::string& path) {
    form.rtf().SetText(text);
    return ExportText(tools, form.rtf(), path);
  }

  /// The file that the text becomes.
  std::string File(const std::string& text) {
    std::string path = kPath;
    EXPECT_TRUE(Export(text, path));
    return textFiles.BytesOf(kPath);
  }
};

TEST_F(TextExport, WritesTheTextAsItStands) {
  EXPECT_EQ(File("If x Then\r\n  s = \"a<b\"\t \r\n\r\n'end\r\n"),
            "If x Then\r\n  s = \"a<b\"\t \r\n\r\n'end\r\n");
}

TEST_F(TextExport, AddsNoLineEnd) { EXPECT_EQ(File("x"), "x"); }

TEST_F(TextExport, WritesNoTextAsAnEmptyFile) {
  EXPECT_EQ(File(""), "");
  EXPECT_TRUE(textFiles.Exists(kPath));
}

TEST_F(TextExport, WritesInTheCodePage) { EXPECT_EQ(File("\u00e4\u20ac\r\n"), "\xE4\x80\r\n"); }

TEST_F(TextExport, ReplacesAnOlderFileWithoutAsking) {
  textFiles.Write(kPath, "something older and longer");
  EXPECT_EQ(File("x"), "x");
  EXPECT_THAT(dialogs.SaveRequests(), IsEmpty());
  EXPECT_THAT(dialogs.Messages(), IsEmpty());
}

TEST_F(TextExport, AsksForAPathWhereItIsGivenNoneAndStoresIt) {
  dialogs.SaveTo("D:\\chosen.txt");
  std::string path;
  EXPECT_TRUE(Export("x", path));
  EXPECT_EQ(path, "D:\\chosen.txt");
  EXPECT_EQ(textFiles.BytesOf("D:\\chosen.txt"), "x");
  ASSERT_THAT(dialogs.SaveRequests(), SizeIs(1));
  EXPECT_EQ(dialogs.SaveRequests().front().defaultExtension, "txt");
  EXPECT_EQ(dialogs.SaveRequests().front().owner, form.rtf().hWnd());
  EXPECT_EQ(dialogs.SaveRequests().front().title, "Save Exported Code");
  EXPECT_EQ(dialogs.SaveRequests().front().initialFolder, app.path);
}

TEST_F(TextExport, DoesNothingWhenTheUserCancels) {
  std::string path;
  EXPECT_FALSE(Export("x", path));
  EXPECT_EQ(path, "");
  EXPECT_THAT(events, IsEmpty());
  EXPECT_THAT(errors, IsEmpty());
  EXPECT_EQ(textFiles.Count(), 0u);
}

TEST_F(TextExport, TellsTheUserForAMomentThatItIsDone) {
  File("x");
  EXPECT_THAT(events, testing::UnorderedElementsAre("pointer 11", "show", kMessage, "100/100",
                                                    "hide", "pointer 0"));
  EXPECT_EQ(events.front(), "pointer 11");
  EXPECT_THAT(Events(events.end() - 3, events.end()), ElementsAre("100/100", "hide", "pointer 0"));
}

TEST_F(TextExport, HasWrittenTheFileWhenTheWindowIsShown) {
  textFiles.isDiskFull = true;
  std::string path = kPath;
  EXPECT_FALSE(Export("x", path));
  EXPECT_THAT(events, ElementsAre("pointer 11", "pointer 0"));
  ASSERT_THAT(errors, SizeIs(1));
  EXPECT_EQ(errors.front().Number(), error_number::kPathFileAccess);
  EXPECT_THAT(dialogs.Messages(), IsEmpty());
}

TEST_F(TextExport, SwitchesWordWrapOff) {
  File("x");
  EXPECT_THAT(faulty.Operations(), Contains("RichTextBox.SetWordWrap"));
}

TEST(TextExportFailure, WritesNothingAndIsKeptFromTheUser) {
  for (const char* operation :
       {"RichTextBox.SetWordWrap", "RichTextBox.SaveFile", "RichTextBox.hWnd", "App.Path",
        "App.Instance", "Dialogs.GetSaveFileName"}) {
    ExportFixture fixture(Failing(operation));
    fixture.dialogs.SaveTo(kPath);
    std::string path;
    EXPECT_FALSE(ExportText(fixture.tools, fixture.form.rtf(), path)) << operation;
    EXPECT_EQ(fixture.textFiles.Count(), 0u) << operation;
    EXPECT_FALSE(fixture.form.IsVisible()) << operation;
    EXPECT_EQ(fixture.notingScreen.MousePointer(), mouse_pointer::kDefault) << operation;
    EXPECT_THAT(fixture.dialogs.Messages(), IsEmpty()) << operation;
    EXPECT_THAT(fixture.errors, SizeIs(1)) << operation;
  }
}

TEST_F(TextExport, FailsWhereTheCodePageHasNotACharacter) {
  std::string path = kPath;
  EXPECT_FALSE(Export("\u4e2d", path));
  EXPECT_EQ(textFiles.Count(), 0u);
  EXPECT_THAT(errors, SizeIs(1));
}

}  // namespace text_export_test
}  // namespace brimwork
