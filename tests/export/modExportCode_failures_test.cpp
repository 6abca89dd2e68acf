// Exports over an environment whose calls fail: the user is told of an error of the command itself
// and of no writer's, gets everything back, and never finds half a file.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <set>

#include "environment/run_time_error.h"
#include "support/export_module.h"

namespace brimwork {
namespace modExportCode_failures_test {

using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;

constexpr const char* kFormats[] = {"Text", "Rtf", "Htm", "QuickExport"};

void ExpectUsersThingsBack(ExportModule& module, const std::string& title) {
  EXPECT_EQ(module.notingScreen.MousePointer(), mouse_pointer::kDefault) << title;
  EXPECT_EQ(module.notingScreen.LockedWindow(), 0u) << title;
  EXPECT_EQ(module.clipboard.GetText(), kUsersClipboard) << title;
  EXPECT_FALSE(module.form.IsVisible()) << title;
}

/// An export of the selection, or of the whole module, in which an operation fails the given time.
void ExpectTold(const char* operation, int time, bool selectedOnly) {
  for (const char* format : kFormats) {
    const std::string title = std::string(format) + ", " + operation;
    ExportModule module(FailingOnce(operation, time));
    ExportCode(module.tools, format, selectedOnly);
    EXPECT_THAT(module.dialogs.Messages(), ElementsAre(kExportError)) << title;
    EXPECT_EQ(module.textFiles.Count(), 0u) << title;
    EXPECT_THAT(module.errors, IsEmpty()) << title;
    ExpectUsersThingsBack(module, title);
  }
}

void ExpectSilent(const char* operation, std::initializer_list<const char*> formats) {
  for (const char* format : formats) {
    const std::string title = std::string(format) + ", " + operation;
    ExportModule module(FailingOnce(operation, 1));
    ExportCode(module.tools, format, true);
    EXPECT_THAT(module.dialogs.Messages(), IsEmpty()) << title;
    EXPECT_EQ(module.textFiles.Count(), 0u) << title;
    EXPECT_THAT(module.errors, SizeIs(1)) << title;
    ExpectUsersThingsBack(module, title);
  }
}

TEST(ExportFailure, OfReadingTheModuleIsTold) {
  ExpectTold("CodeModule.CountOfLines", 1, false);
  ExpectTold("CodeModule.Lines", 1, false);
}

TEST(ExportFailure, OfCopyingTheSelectionIsTold) {
  ExpectTold("Clipboard.GetText", 1, true);
  ExpectTold("Clipboard.Clear", 1, true);
  ExpectTold("CodePane.ContainingWindow", 1, true);
  ExpectTold("Window.SetFocus", 1, true);
  ExpectTold("Keyboard.SendKeys", 1, true);
  ExpectTold("Clipboard.GetText", 2, true);
}

TEST(ExportFailure, OfFillingTheEditorIsTold) {
  ExpectTold("RichTextBoxes.Create", 1, false);
  ExpectTold("RichTextBox.SetText", 1, true);
}

TEST(ExportFailure, OfReadingTheQuickExportsFolderIsTold) {
  ExportModule module(Failing("SettingsArea.GetSetting"));
  ExportCode(module.tools, "QuickExport", true);
  EXPECT_THAT(module.dialogs.Messages(), ElementsAre(kExportError));
  EXPECT_EQ(module.textFiles.Count(), 0u);
  ExpectUsersThingsBack(module, "");
}

TEST(ExportFailure, OfTheWorkingCopyIsTold) {
  ExportModule module(FailingOnce("RichTextBoxes.Create", 2));
  ExportCode(module.tools, "Rtf", false);
  EXPECT_THAT(module.dialogs.Messages(), ElementsAre(kExportError));
  ExpectUsersThingsBack(module, "");
}

TEST(ExportFailure, OfAMissingWindowIsTold) {
  ExportModule module({Fault::Kind::kAnswersNothing, [](int, std::string_view operation) {
                         return operation == "CodePane.ContainingWindow";
                       }});
  ExportCode(module.tools, "Text", true);
  EXPECT_THAT(module.dialogs.Messages(), ElementsAre(kExportError));
  ExpectUsersThingsBack(module, "");
}

TEST(ExportFailure, OfLoadingTheKeywordsIsSilent) {
  ExpectSilent("SettingsArea.GetSetting", {"Text", "Rtf", "Htm"});
}

TEST(ExportFailure, OfTheSaveDialogIsSilent) {
  ExpectSilent("Dialogs.GetSaveFileName", {"Text", "Rtf", "Htm"});
}

TEST(ExportFailure, OfAWriterIsSilent) {
  ExpectSilent("RichTextBox.SaveFile", {"Text", "Rtf", "QuickExport"});
  ExpectSilent("RichTextBox.SetWordWrap", {"Text", "Rtf", "Htm", "QuickExport"});
  ExpectSilent("TextFiles.OpenForOutput", {"Htm"});
  ExpectSilent("OutputFile.PrintLine", {"Htm"});
  ExpectSilent("OutputFile.Close", {"Htm"});
  ExpectSilent("MessageLoop.DoEvents", {"Rtf"});
}

TEST(ExportFailure, OfAFullDiskIsSilent) {
  for (const char* format : kFormats) {
    ExportModule module;
    module.textFiles.isDiskFull = true;
    ExportCode(module.tools, format, false);
    EXPECT_THAT(module.dialogs.Messages(), IsEmpty()) << format;
    ASSERT_THAT(module.errors, SizeIs(1)) << format;
    EXPECT_EQ(module.errors.front().Number(), error_number::kPathFileAccess) << format;
    ExpectUsersThingsBack(module, format);
  }
}

TEST(ExportFailure, OfAnOpenLiteralIsSilentForRichTextOnly) {
  for (const char* format : {"Text", "Rtf", "Htm"}) {
    ExportModule module;
    module.OpenModule("x = 1\r\ny = \"open\r\n");
    ExportCode(module.tools, format, false);
    const bool isRtf = std::string_view(format) == "Rtf";
    EXPECT_EQ(module.textFiles.Count(), isRtf ? 0u : 1u) << format;
    EXPECT_THAT(module.dialogs.Messages(), IsEmpty()) << format;
    EXPECT_EQ(module.errors.empty() ? 0 : module.errors.front().Line(), isRtf ? 2 : 0) << format;
    ExpectUsersThingsBack(module, format);
  }
}

TEST(ExportFailure, OfThePointerKeepsNoFileFromBeingWritten) {
  for (const char* format : kFormats) {
    ExportModule module(FailingOnce("Screen.SetMousePointer", 1));
    ExportCode(module.tools, format, true);
    EXPECT_EQ(module.textFiles.Count(), 1u) << format;
    EXPECT_THAT(module.dialogs.Messages(), IsEmpty()) << format;
    ExpectUsersThingsBack(module, format);
  }
}

TEST(ExportFailure, OfTheDrawingLockKeepsNoFileFromBeingWritten) {
  for (const int time : {1, 2, 3, 4}) {
    ExportModule module(FailingOnce("Screen.LockWindowUpdate", time));
    ExportCode(module.tools, "Rtf", false);
    EXPECT_EQ(module.textFiles.Count(), 1u) << time;
    EXPECT_THAT(module.dialogs.Messages(), IsEmpty()) << time;
    ExpectUsersThingsBack(module, std::to_string(time));
  }
}

TEST(ExportFailure, OfTheMessageItselfGoesUpWithEverythingBack) {
  ExportModule module({Fault::Kind::kRaises, [](int, std::string_view operation) {
                         return operation == "Keyboard.SendKeys" || operation == "Dialogs.MsgBox";
                       }});
  try {
    ExportCode(module.tools, "Text", true);
  } catch (const RunTimeError&) {
  }
  ExpectUsersThingsBack(module, "");
}

/// Every call of one export fails in turn.
class EveryCallOfAnExport
    : public testing::TestWithParam<std::tuple<const char*, bool, Fault::Kind>> {
 protected:
  static std::string Written(const ExportModule& module, std::string_view format) {
    return module.File(format == "QuickExport" ? kDesktopFile : kChosenPath);
  }
};

TEST_P(EveryCallOfAnExport, LeavesAWholeFileOrNoneAndTheUsersThings) {
  const auto [format, selectedOnly, kind] = GetParam();
  ExportModule whole;
  ExportCode(whole.tools, format, selectedOnly);
  const std::string expected = Written(whole, format);
  ASSERT_NE(expected, "(none)");
  const int calls = static_cast<int>(whole.faulty.Operations().size());
  for (int failing = 1; failing <= calls; ++failing) {
    ExportModule module({kind, [failing](int call, std::string_view) { return call == failing; }});
    ExportCode(module.tools, format, selectedOnly);
    const std::string title =
        "call " + std::to_string(failing) + ", " +
        std::string(module.faulty.Operations()[static_cast<std::size_t>(failing - 1)]);
    EXPECT_THAT((std::set<std::string>{expected, "(none)"}),
                testing::Contains(Written(module, format)))
        << title;
    EXPECT_THAT(module.dialogs.Messages(), SizeIs(testing::Le(1u))) << title;
    ExpectUsersThingsBack(module, title);
  }
}

INSTANTIATE_TEST_SUITE_P(Exports, EveryCallOfAnExport,
                         testing::Combine(testing::ValuesIn(kFormats), testing::Bool(),
                                          testing::Values(Fault::Kind::kRaises,
                                                          Fault::Kind::kRaisesBehind,
                                                          Fault::Kind::kAnswersNothing)));

}  // namespace modExportCode_failures_test
}  // namespace brimwork
