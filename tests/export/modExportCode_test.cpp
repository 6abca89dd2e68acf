#include "export/modExportCode.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "support/export_module.h"

namespace brimwork {
namespace modExportCode_test {

using testing::Contains;
using testing::Each;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::Not;
using testing::SizeIs;
using testing::StartsWith;

constexpr const char* kCode = "  if x Then 'y\r\nEnd If";

// Tags of the web page.
const std::string K = "<font color=\"#000080\">";
const std::string C = "<font color=\"#008000\">";
const std::string E = "</font>";

struct ExportCommand : testing::Test, ExportModule {
  void Export(std::string_view format, bool selectedOnly = false) {
    ExportCode(tools, format, selectedOnly);
  }

  /// What became of the module's text.
  std::string TextFileOf(const std::string& text) {
    OpenModule(text);
    Export("Text");
    return File();
  }

  /// The calls that make up the copying, in their order.
  Events CopyingCalls() {
    Events calls;
    for (const std::string_view call : faulty.Operations()) {
      const bool isPart = call.starts_with("Clipboard.") || call.starts_with("Keyboard.") ||
                          call == "Window.SetFocus";
      if (isPart) calls.emplace_back(call);
    }
    return calls;
  }

  /// The locks taken and released, the window shown and hidden, in their order.
  Events LockEvents() {
    Events found;
    for (const std::string& event : events) {
      const bool isPart = event.starts_with("lock") || event == "show" || event == "hide";
      if (isPart) found.push_back(event);
    }
    return found;
  }
};

TEST_F(ExportCommand, WritesTheModuleAsText) {
  Export("Text");
  EXPECT_EQ(File(), kCode);
  ASSERT_THAT(dialogs.SaveRequests(), SizeIs(1));
  EXPECT_EQ(dialogs.SaveRequests().front().defaultExtension, "txt");
}

TEST_F(ExportCommand, WritesTheModuleAsRichText) {
  Export("Rtf");
  MemoryRichTextBox reader(1, textFiles);
  reader.SetTextRTF(File());
  EXPECT_EQ(reader.Text(), "  If x Then 'y\r\nEnd If");
  ASSERT_THAT(dialogs.SaveRequests(), SizeIs(1));
  EXPECT_EQ(dialogs.SaveRequests().front().defaultExtension, "rtf");
}

TEST_F(ExportCommand, WritesTheModuleAsAWebPage) {
  Export("Htm");
  EXPECT_EQ(File(), "<pre>\r\n" + K + "  " + E + "if x " + K + "Then " + E + C + "'y " + E +
                        "\r\n" + K + "End If \r\n</pre>\r\n");
  ASSERT_THAT(dialogs.SaveRequests(), SizeIs(1));
  EXPECT_EQ(dialogs.SaveRequests().front().defaultExtension, "htm");
}

TEST_F(ExportCommand, QuickExportWritesTextOntoTheDesktopWithoutAsking) {
  Export("QuickExport");
  EXPECT_EQ(File(kDesktopFile), kCode);
  EXPECT_THAT(dialogs.SaveRequests(), IsEmpty());
  EXPECT_THAT(dialogs.Messages(), IsEmpty());
}

TEST_F(ExportCommand, ASecondQuickExportTakesThePlaceOfTheFirst) {
  Export("QuickExport");
  OpenModule("x = 1\r\n");
  Export("QuickExport");
  EXPECT_EQ(File(kDesktopFile), "x = 1");
  EXPECT_THAT(dialogs.SaveRequests(), IsEmpty());
}

TEST_F(ExportCommand, QuickExportGoesIntoTheFolderOfTheSettings) {
  SaveSetting(environment, setting::kQuickExportPath, "D:\\Out");
  Export("QuickExport");
  EXPECT_EQ(File("D:\\Out\\Exported Code.txt"), kCode);
}

TEST_F(ExportCommand, QuickExportTakesItsFolderAsItStands) {
  SaveSetting(environment, setting::kQuickExportPath, "D:\\Out\\");
  Export("QuickExport");
  EXPECT_EQ(File("D:\\Out\\\\Exported Code.txt"), kCode);
  textFiles.Take("D:\\Out\\\\Exported Code.txt");
  SaveSetting(environment, setting::kQuickExportPath, "");
  Export("QuickExport");
  EXPECT_EQ(File("\\Exported Code.txt"), kCode);
}

TEST_F(ExportCommand, AnyOtherFormatExportsNothing) {
  for (const char* format : {"", "text", "RTF", "Web Page", "Quick Export", "Html", "Text "}) {
    events.clear();
    Export(format);
    EXPECT_EQ(textFiles.Count(), 0u) << format;
    EXPECT_THAT(events, ElementsAre("pointer 11", "pointer 0")) << format;
  }
  EXPECT_THAT(dialogs.SaveRequests(), IsEmpty());
  EXPECT_THAT(dialogs.Messages(), IsEmpty());
  EXPECT_THAT(errors, IsEmpty());
}

TEST_F(ExportCommand, PutsTheCodeIntoTheEditorForAnyFormat) {
  Export("another");
  EXPECT_EQ(form.rtf().Text(), kCode);
}

TEST_F(ExportCommand, WritesAModuleOfDeclarationsOnly) {
  EXPECT_EQ(TextFileOf("Option Explicit\r\nDim x\r\n"), "Option Explicit\r\nDim x");
}

TEST_F(ExportCommand, WritesAnEmptyModuleAsAnEmptyFile) { EXPECT_EQ(TextFileOf(""), ""); }

TEST_F(ExportCommand, KeepsEmptyLinesAtTheEnd) {
  EXPECT_EQ(TextFileOf("x\r\n\r\n\r\n"), "x\r\n\r\n");
}

TEST_F(ExportCommand, WritesTheSelectionAlone) {
  Export("Text", true);
  EXPECT_EQ(File(), "if x Then");
}

TEST_F(ExportCommand, WritesTheSelectionInEveryFormat) {
  Export("QuickExport", true);
  EXPECT_EQ(textFiles.Take(kDesktopFile), "if x Then");
  Export("Htm", true);
  EXPECT_EQ(textFiles.Take(kChosenPath), "<pre>\r\nif x " + K + "Then \r\n</pre>\r\n");
  dialogs.SaveTo(kChosenPath);
  Export("Rtf", true);
  EXPECT_THAT(File(), StartsWith("{\\rtf1"));
  EXPECT_EQ(form.rtf().Text(), "If x Then");
}

TEST_F(ExportCommand, WritesASelectionOverSeveralLines) {
  pane->SetSelection({1, 11, 2, 4});
  Export("Text", true);
  EXPECT_EQ(File(), "n 'y\r\nEnd");
}

TEST_F(ExportCommand, WritesAnEmptySelectionAsAnEmptyDocument) {
  pane->SetSelection({1, 3, 1, 3});
  Export("Text", true);
  EXPECT_EQ(textFiles.Take(kChosenPath), "");
  EXPECT_EQ(clipboard.GetText(), kUsersClipboard);
  dialogs.SaveTo(kChosenPath);
  Export("Htm", true);
  EXPECT_EQ(File(), "<pre>\r\n" + K + " \r\n</pre>\r\n");
}

TEST_F(ExportCommand, GivesTheUsersClipboardBack) {
  Export("Text", true);
  EXPECT_EQ(clipboard.GetText(), kUsersClipboard);
}

TEST_F(ExportCommand, LeavesAnEmptyClipboardEmpty) {
  clipboard.Clear();
  Export("Text", true);
  EXPECT_EQ(clipboard.GetText(), "");
  EXPECT_EQ(File(), "if x Then");
}

TEST_F(ExportCommand, CopiesAsTheUserWould) {
  Export("Text", true);
  EXPECT_THAT(CopyingCalls(), ElementsAre("Clipboard.GetText", "Clipboard.Clear", "Window.SetFocus",
                                          "Keyboard.SendKeys", "Clipboard.GetText",
                                          "Clipboard.Clear", "Clipboard.SetText"));
}

TEST_F(ExportCommand, CopiesFromThePaneThoughAnotherWindowHasTheFocus) {
  keyboard.SetFocus(nullptr);
  Export("Text", true);
  EXPECT_EQ(File(), "if x Then");
}

TEST_F(ExportCommand, OfAWholeModuleLeavesClipboardAndSelectionAlone) {
  Export("Text");
  EXPECT_THAT(CopyingCalls(), IsEmpty());
  EXPECT_EQ(pane->GetSelection(), (Selection{1, 3, 1, 12}));
}

TEST_F(ExportCommand, ShowsTheHourglassForAsLongAsItWorks) {
  for (const char* format : {"Text", "Rtf", "Htm", "QuickExport"}) {
    events.clear();
    dialogs.SaveTo(kChosenPath);
    Export(format);
    EXPECT_EQ(events.front(), "pointer 11") << format;
    EXPECT_EQ(events.back(), "pointer 0") << format;
    EXPECT_FALSE(form.IsVisible()) << format;
  }
}

TEST_F(ExportCommand, FreezesBothControlsWhileItFormatsRichText) {
  Export("Rtf");
  const std::string editor = std::to_string(form.rtf().hWnd());
  const std::string work = std::to_string(form.rtfTemp().hWnd());
  EXPECT_NE(editor, work);
  EXPECT_THAT(LockEvents(),
              ElementsAre("lock " + editor, "lock " + work, "show", "hide", "lock 0", "lock 0"));
}

TEST_F(ExportCommand, FreezesNothingForOtherFormats) {
  for (const char* format : {"Text", "Htm", "QuickExport"}) {
    Export(format);
    dialogs.SaveTo(kChosenPath);
  }
  EXPECT_THAT(events, Each(Not(StartsWith("lock"))));
}

TEST_F(ExportCommand, UsesTheEditorAsOwnerOfTheDialog) {
  Export("Rtf");
  EXPECT_EQ(dialogs.SaveRequests().front().owner, form.rtf().hWnd());
}

TEST_F(ExportCommand, DoesNothingMoreWhenTheUserCancels) {
  Export("Text");
  textFiles.Take(kChosenPath);
  events.clear();
  for (const char* format : {"Text", "Rtf", "Htm"}) Export(format, true);
  EXPECT_THAT(dialogs.SaveRequests(), SizeIs(4));
  EXPECT_EQ(textFiles.Count(), 0u);
  EXPECT_THAT(dialogs.Messages(), IsEmpty());
  EXPECT_THAT(errors, IsEmpty());
  EXPECT_THAT(events, Not(Contains("show")));
  EXPECT_EQ(notingScreen.MousePointer(), mouse_pointer::kDefault);
  EXPECT_EQ(notingScreen.LockedWindow(), 0u);
  EXPECT_EQ(clipboard.GetText(), kUsersClipboard);
}

TEST_F(ExportCommand, TellsTheUserOfAMissingCodeSource) {
  vbe.SetActivePane(nullptr);
  for (const bool selectedOnly : {false, true}) Export("QuickExport", selectedOnly);
  const ShownMessage expected{
      "Please pick a valid code source to work with\r\n"
      "You need to set the focus on a valid code source to execute this command",
      64, "Need Valid Code Source"};
  EXPECT_THAT(dialogs.Messages(), ElementsAre(expected, expected));
  EXPECT_THAT(events, IsEmpty());
  EXPECT_EQ(textFiles.Count(), 0u);
  EXPECT_EQ(clipboard.GetText(), kUsersClipboard);
}

/// Notes which settings are read.
class NotingSettings : public MemorySettingsArea {
 public:
  std::string GetSetting(std::string_view application, std::string_view section,
                         std::string_view key, std::string_view defaultValue) override {
    read.push_back(std::string(application) + '/' + std::string(section) + '/' + std::string(key) +
                   '=' + std::string(defaultValue));
    return MemorySettingsArea::GetSetting(application, section, key, defaultValue);
  }

  Events read;
};

/// The settings that an export of the format reads.
Events ReadFor(std::string_view format) {
  ExportModule module;
  NotingSettings settings;
  Environment environment = module.Parts({.settingsArea = &settings});
  const ExportTools tools{environment, module.form, {}};
  ExportCode(tools, format, false);
  return settings.read;
}

TEST(ExportSettings, TheKeywordsAreReadForEveryConversion) {
  for (const char* format : {"Text", "Rtf", "Htm"}) {
    EXPECT_THAT(ReadFor(format), ElementsAre("Brimwork/Settings/KeyWordList=")) << format;
  }
}

TEST(ExportSettings, QuickExportReadsItsFolderAndNoKeywords) {
  EXPECT_THAT(ReadFor("QuickExport"), ElementsAre("Brimwork/Settings/QuickExportPath=C:\\Desktop"));
}

TEST_F(ExportCommand, KnowsNoKeywordsUntilTheUserStoresSome) {
  MemorySettingsArea empty;
  Environment fresh = Parts({.settingsArea = &empty});
  KeywordList keywords = LoadKeywordList(fresh);
  EXPECT_FALSE(keywords.Holds("If"));
  EXPECT_TRUE(keywords.Holds(""));
}

TEST_F(ExportCommand, ReadsTheKeywordsAnewEachTime) {
  Export("Htm", true);
  SaveSetting(environment, setting::kKeyWordList, "x");
  textFiles.Take(kChosenPath);
  dialogs.SaveTo(kChosenPath);
  Export("Htm", true);
  EXPECT_EQ(File(), "<pre>\r\nif " + K + "x " + E + "Then \r\n</pre>\r\n");
}

TEST_F(ExportCommand, AConversionReturnsWhatItsWriterReturns) {
  form.rtf().SetText("x");
  EXPECT_TRUE(ExportToFormat(tools, form.rtf(), ExportKind::kText, nullptr));
  EXPECT_FALSE(ExportToFormat(tools, form.rtf(), ExportKind::kText, nullptr));
  dialogs.SaveTo(kChosenPath);
  EXPECT_TRUE(ExportToFormat(tools, form.rtf(), ExportKind::kRtf, &form.rtfTemp()));
  EXPECT_FALSE(ExportToFormat(tools, form.rtf(), ExportKind::kRtf, &form.rtfTemp()));
  dialogs.SaveTo(kChosenPath);
  EXPECT_TRUE(ExportToFormat(tools, form.rtf(), ExportKind::kHtml, nullptr));
  EXPECT_FALSE(ExportToFormat(tools, form.rtf(), ExportKind::kHtml, nullptr));
}

TEST_F(ExportCommand, AnyOtherKindIsFalse) {
  EXPECT_FALSE(ExportToFormat(tools, form.rtf(), static_cast<ExportKind>(3), nullptr));
  EXPECT_FALSE(ExportToFormat(tools, form.rtf(), static_cast<ExportKind>(-1), nullptr));
  EXPECT_EQ(textFiles.Count(), 0u);
}

TEST_F(ExportCommand, AQuickExportReturnsWhetherItWrote) {
  EXPECT_TRUE(QuickExportToFile(tools, form.rtf(), "C:\\a.txt"));
  textFiles.isDiskFull = true;
  EXPECT_FALSE(QuickExportToFile(tools, form.rtf(), "C:\\a.txt"));
  EXPECT_EQ(notingScreen.MousePointer(), mouse_pointer::kDefault);
}

}  // namespace modExportCode_test
}  // namespace brimwork
