#include "export/html_export.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "environment/run_time_error.h"
#include "support/export_fixture.h"

namespace brimwork {
namespace html_export_test {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr const char* kPath = "C:\\Out\\page.htm";

const std::string K = "<font color=\"#000080\">";
const std::string C = "<font color=\"#008000\">";
const std::string E = "</font>";

struct HtmlExport : testing::Test, ExportFixture {
  using ExportFixture::ExportFixture;

  bool Export(const std::string& text, const std::string& words = "") {
    form.rtf().SetText(text);
    KeywordList keywords(words);
    return ExportHtml(tools, form.rtf(), keywords);
  }

  /// The file that the text becomes.
  std::string Page(const std::string& text, const std::string& words = "") {
    dialogs.SaveTo(kPath);
    EXPECT_TRUE(Export(text, words));
    return textFiles.BytesOf(kPath);
  }
};

TEST_F(HtmlExport, WritesEachLineBetweenThePreTags) {
  EXPECT_EQ(Page("If x Then\r\n'note", "If,Then"), "<pre>\r\n" + K + "If " + E + "x " + K +
                                                       "Then \r\n" + E + C + "'note " + E +
                                                       "\r\n</pre>\r\n");
}

TEST_F(HtmlExport, WritesAnEmptyControlAsOneEmptyLine) {
  EXPECT_EQ(Page(""), "<pre>\r\n" + K + " \r\n</pre>\r\n");
}

TEST_F(HtmlExport, WritesTheEmptyLineBehindALastLineEnd) {
  EXPECT_EQ(Page("x"), "<pre>\r\nx \r\n</pre>\r\n");
  EXPECT_EQ(Page("x\r\n"), "<pre>\r\nx \r\n" + K + " \r\n</pre>\r\n");
}

TEST_F(HtmlExport, WritesEveryEmptyLine) {
  EXPECT_EQ(Page("\r\n\r\nx\r\n\r\n\r\ny", ""), "<pre>\r\n" + K + " \r\n \r\n" + E + "x \r\n" + K +
                                                    " \r\n \r\n" + E + "y \r\n</pre>\r\n");
}

TEST_F(HtmlExport, WritesLinesOfOneCharacterOnce) {
  EXPECT_EQ(Page("a\r\nb\r\n\r\nc"),
            "<pre>\r\na \r\nb \r\n" + K + " \r\n" + E + "c \r\n</pre>\r\n");
}

TEST_F(HtmlExport, GoesFromLineToLineBehindOtherLetters) {
  EXPECT_EQ(Page("\u00e4\u00f6\u00fc\r\n\r\n\u20ac\r\nx"),
            "<pre>\r\n\xE4\xF6\xFC \r\n" + K + " \r\n" + E + "\x80 \r\nx \r\n</pre>\r\n");
}

TEST_F(HtmlExport, WritesWhatTheCodePageHasNotAsReferences) {
  EXPECT_EQ(Page("\u4e2d\u6587 = \U0001F600\r\nx"),
            "<pre>\r\n&#20013;&#25991; = &#128512; \r\nx \r\n</pre>\r\n");
}

TEST_F(HtmlExport, CarriesLiteralsAndKeywordSpansFromLineToLine) {
  EXPECT_EQ(Page("If\r\nx = \"a\r\nIf\r\n\" If\r\ny", "If"),
            "<pre>\r\n" + K + "If \r\n" + E + "x = &quot;a \r\nIf \r\n" + "&quot; " + K +
                "If \r\n" + E + "y \r\n</pre>\r\n");
}

TEST_F(HtmlExport, CarriesNothingFromOnePageToTheNext) {
  Page("If \"open", "If");
  EXPECT_EQ(Page("If", "If"), "<pre>\r\n" + K + "If \r\n</pre>\r\n");
}

TEST_F(HtmlExport, AsksForAWebPageWithTheControlAsOwner) {
  Page("x");
  ASSERT_THAT(dialogs.SaveRequests(), SizeIs(1));
  EXPECT_EQ(dialogs.SaveRequests().front().defaultExtension, "htm");
  EXPECT_EQ(dialogs.SaveRequests().front().owner, form.rtf().hWnd());
  EXPECT_EQ(dialogs.SaveRequests().front().title, "Save Exported Code");
  EXPECT_EQ(dialogs.SaveRequests().front().initialFolder, app.path);
}

TEST_F(HtmlExport, ShowsHowFarItIsAfterEveryLine) {
  Page("a\r\nb\r\nc");
  EXPECT_THAT(events, ElementsAre("pointer 11",
                                  "Exporting to HTM|Now Converting To HTML and Saving page.htm",
                                  "show", "1/3", "2/3", "3/3", "hide", "pointer 0"));
}

TEST_F(HtmlExport, NamesTheWholePathThatHasNoFolder) {
  dialogs.SaveTo("page.htm");
  ASSERT_TRUE(Export("x"));
  EXPECT_EQ(events[1], "Exporting to HTM|Now Converting To HTML and Saving page.htm");
}

TEST_F(HtmlExport, SwitchesWordWrapOff) {
  Page("x");
  const auto operations = faulty.Operations();
  EXPECT_THAT(operations, testing::Contains("RichTextBox.SetWordWrap"));
}

TEST_F(HtmlExport, LeavesTheTextOfTheControl) {
  Page("If x\r\ny", "If");
  EXPECT_EQ(form.rtf().Text(), "If x\r\ny");
}

TEST_F(HtmlExport, ReplacesAnOlderFile) {
  textFiles.Write(kPath, "an older page, longer than the new one");
  EXPECT_EQ(Page("x"), "<pre>\r\nx \r\n</pre>\r\n");
}

TEST_F(HtmlExport, DoesNothingWhenTheUserCancels) {
  EXPECT_FALSE(Export("x"));
  EXPECT_THAT(events, IsEmpty());
  EXPECT_THAT(errors, IsEmpty());
  EXPECT_EQ(textFiles.Count(), 0u);
}

/// An export in which a call fails.
class HtmlExportFailure : public testing::TestWithParam<std::pair<const char*, int>> {};

TEST_P(HtmlExportFailure, WritesNothingAndIsKeptFromTheUser) {
  const auto [operation, time] = GetParam();
  ExportFixture fixture(FailingOnce(operation, time));
  fixture.textFiles.Write(kPath, "an older page");
  fixture.dialogs.SaveTo(kPath);
  fixture.form.rtf().SetText("a\r\nb");
  KeywordList keywords("");
  EXPECT_FALSE(ExportHtml(fixture.tools, fixture.form.rtf(), keywords));
  EXPECT_EQ(fixture.textFiles.BytesOf(kPath), "an older page");
  EXPECT_FALSE(fixture.form.IsVisible());
  EXPECT_EQ(fixture.notingScreen.MousePointer(), mouse_pointer::kDefault);
  EXPECT_THAT(fixture.dialogs.Messages(), IsEmpty());
  EXPECT_THAT(fixture.errors, SizeIs(1));
}

INSTANTIATE_TEST_SUITE_P(
    EachCall, HtmlExportFailure,
    testing::Values(std::pair("RichTextBox.SetWordWrap", 1), std::pair("RichTextBox.hWnd", 1),
                    std::pair("App.Path", 1), std::pair("App.Instance", 1),
                    std::pair("Dialogs.GetSaveFileName", 1),
                    std::pair("TextFiles.OpenForOutput", 1), std::pair("RichTextBox.LineCount", 1),
                    std::pair("RichTextBox.SetSelStart", 1),
                    std::pair("RichTextBox.SetSelStart", 2), std::pair("RichTextBox.LineLength", 2),
                    std::pair("RichTextBox.ReadLine", 1), std::pair("RichTextBox.ReadLine", 2),
                    std::pair("OutputFile.PrintLine", 1), std::pair("OutputFile.PrintLine", 2),
                    std::pair("OutputFile.PrintLine", 4), std::pair("OutputFile.Close", 1)));

TEST_F(HtmlExport, WritesNothingOntoAFullDisk) {
  textFiles.isDiskFull = true;
  dialogs.SaveTo(kPath);
  EXPECT_FALSE(Export("x"));
  EXPECT_EQ(textFiles.Count(), 0u);
  EXPECT_FALSE(form.IsVisible());
  EXPECT_EQ(notingScreen.MousePointer(), mouse_pointer::kDefault);
  ASSERT_THAT(errors, SizeIs(1));
  EXPECT_EQ(errors.front().Number(), error_number::kPathFileAccess);
}

TEST_F(HtmlExport, FailsQuietlyWithoutAnyoneToTell) {
  textFiles.isDiskFull = true;
  dialogs.SaveTo(kPath);
  form.rtf().SetText("x");
  KeywordList keywords("");
  const ExportTools deaf{environment, form, {}};
  EXPECT_FALSE(ExportHtml(deaf, form.rtf(), keywords));
}

TEST(HtmlExportPointer, OfTheUserIsPutBackEvenWhenThatFailsAtFirst) {
  ExportFixture fixture(FailingOnce("Screen.SetMousePointer", 2));
  fixture.dialogs.SaveTo(kPath);
  KeywordList keywords("");
  EXPECT_TRUE(ExportHtml(fixture.tools, fixture.form.rtf(), keywords));
  EXPECT_EQ(fixture.notingScreen.MousePointer(), mouse_pointer::kDefault);
}

}  // namespace html_export_test
}  // namespace brimwork
