// The export entries of the menus: the same captions for the selection and for the whole module.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>
#include <string>
#include <string_view>
#include <vector>

#include "core/modButtonClicked.h"
#include "settings/setting_keys.h"
#include "support/every_command.h"
#include "support/opened_module.h"

namespace brimwork {
namespace export_commands_test {

using testing::Contains;
using testing::ElementsAre;
using testing::IsEmpty;
using testing::SizeIs;
using testing::StartsWith;

constexpr const char* kCaptions[] = {"Text", "RTF", "Web Page", "Quick Export"};
constexpr const char* kUsersClipboard = "what the user copied";
constexpr const char* kChosenPath = "C:\\chosen";
constexpr const char* kDesktopFile = "C:\\Desktop\\Exported Code.txt";

const TextLines kCode = {"Dim x", "Sub A()", "x = 1", "End Sub"};

struct ExportCommands : testing::Test {
  ExportCommands() {
    opened.environment.shellFolders.SetPath(0, "C:\\Desktop");
    opened.environment.clipboard.SetText(kUsersClipboard);
    opened.Set(setting::kKeyWordList, "Sub,End");
  }

  /// The file that a click makes, its code page's bytes.
  std::string FileAfter(std::string_view caption, bool wholeModule) {
    const bool isQuick = caption == "Quick Export";
    if (!isQuick) opened.environment.dialogs.SaveTo(kChosenPath);
    ButtonClicked(opened.addIn, caption, wholeModule);
    EXPECT_EQ(opened.environment.textFiles.Count(), 1u) << caption;
    return opened.environment.textFiles.Take(isQuick ? kDesktopFile : kChosenPath);
  }

  std::string WholeFile(std::string_view caption) { return FileAfter(caption, true); }

  /// The file of the selection "Sub A()".
  std::string SelectedFile(std::string_view caption) {
    opened.Pane().SetSelection({2, 1, 2, 8});
    return FileAfter(caption, false);
  }

  /// "title|message" of the progress window while it is visible, each one once.
  TextLines ShownBy(std::string_view caption, bool wholeModule) {
    TextLines shown;
    opened.environment.dialogs.SaveTo(kChosenPath);
    opened.addIn.progressWindow.OnRepaint = [&](const frmInfo& window) {
      const std::string line = window.Caption.Get() + '|' + window.lblInfo.Caption.Get();
      if (window.Visible() && (shown.empty() || shown.back() != line)) shown.push_back(line);
    };
    ButtonClicked(opened.addIn, caption, wholeModule);
    opened.addIn.progressWindow.OnRepaint = nullptr;
    return shown;
  }

  OpenedModule opened{kCode};
};

TEST_F(ExportCommands, OfTheWholeModuleWriteAllOfIt) {
  EXPECT_EQ(WholeFile("Text"), "Dim x\r\nSub A()\r\nx = 1\r\nEnd Sub");
  EXPECT_EQ(WholeFile("Quick Export"), "Dim x\r\nSub A()\r\nx = 1\r\nEnd Sub");
  EXPECT_EQ(WholeFile("Web Page"),
            "<pre>\r\nDim x \r\n<font color=\"#000080\">Sub </font>A() \r\nx = 1 \r\n"
            "<font color=\"#000080\">End Sub \r\n</pre>\r\n");
  EXPECT_THAT(WholeFile("RTF"), StartsWith("{\\rtf1"));
}

TEST_F(ExportCommands, OfTheSelectionWriteThatAlone) {
  EXPECT_EQ(SelectedFile("Text"), "Sub A()");
  EXPECT_EQ(SelectedFile("Quick Export"), "Sub A()");
  EXPECT_EQ(SelectedFile("Web Page"),
            "<pre>\r\n<font color=\"#000080\">Sub </font>A() \r\n</pre>\r\n");
  EXPECT_THAT(SelectedFile("RTF"), StartsWith("{\\rtf1"));
}

TEST_F(ExportCommands, AskWithTheFilterOfTheirFormat) {
  for (const bool wholeModule : {true, false}) {
    for (const char* caption : kCaptions) FileAfter(caption, wholeModule);
  }
  std::vector<std::string> extensions;
  for (const auto& request : opened.environment.dialogs.SaveRequests()) {
    extensions.push_back(request.defaultExtension);
  }
  EXPECT_THAT(extensions, ElementsAre("txt", "rtf", "htm", "txt", "rtf", "htm"));
}

TEST_F(ExportCommands, LeaveTheModuleTheCaretAndTheClipboard) {
  for (const bool wholeModule : {true, false}) {
    for (const char* caption : kCaptions) {
      opened.PutCaret(3);
      FileAfter(caption, wholeModule);
      EXPECT_EQ(opened.Lines(), kCode) << caption;
      EXPECT_EQ(opened.CaretLine(), 3) << caption;
      EXPECT_EQ(opened.environment.clipboard.GetText(), kUsersClipboard) << caption;
    }
  }
}

TEST_F(ExportCommands, HideTheProgressWindowInTheEnd) {
  for (const bool wholeModule : {true, false}) {
    for (const char* caption : kCaptions) {
      FileAfter(caption, wholeModule);
      EXPECT_FALSE(opened.addIn.progressWindow.Visible()) << caption;
      EXPECT_EQ(opened.environment.screen.MousePointer(), mouse_pointer::kDefault) << caption;
      EXPECT_EQ(opened.environment.screen.LockedWindow(), 0u) << caption;
    }
  }
}

TEST_F(ExportCommands, OfTheWholeModuleShowTheProgressWindowFromTheBeginning) {
  EXPECT_THAT(ShownBy("Web Page", true),
              ElementsAre("Processing...|Processing Request...Please Wait",
                          "Exporting to HTM|Now Converting To HTML and Saving chosen"));
}

TEST_F(ExportCommands, OfTheSelectionShowItWhileTheyWrite) {
  EXPECT_THAT(ShownBy("RTF", false),
              ElementsAre("Exporting To RTF|Now Converting To RTF and Saving chosen"));
  EXPECT_THAT(ShownBy("Quick Export", false),
              Contains("Exporting To Text|Now Converting To Text and Saving Exported Code.txt"));
}

TEST_F(ExportCommands, EndQuietlyWhenTheUserCancels) {
  for (const bool wholeModule : {true, false}) {
    for (const char* caption : {"Text", "RTF", "Web Page"}) {
      ButtonClicked(opened.addIn, caption, wholeModule);
      EXPECT_EQ(opened.environment.textFiles.Count(), 0u) << caption;
      EXPECT_FALSE(opened.addIn.progressWindow.Visible()) << caption;
    }
  }
  EXPECT_THAT(opened.environment.dialogs.Messages(), IsEmpty());
}

TEST_F(ExportCommands, WorkOnModulesWithoutProcedures) {
  for (const TextLines& lines :
       {TextLines{"Option Explicit", "Dim x"}, TextLines{}, TextLines{""}}) {
    opened.Open("Module2", lines);
    for (const char* caption : kCaptions) {
      const std::string file = WholeFile(caption);
      EXPECT_FALSE(opened.addIn.progressWindow.Visible()) << caption;
      EXPECT_THAT(opened.environment.dialogs.Messages(), IsEmpty()) << caption;
      if (std::string_view(caption) == "Text") {
        EXPECT_EQ(file, lines.size() > 1 ? "Option Explicit\r\nDim x" : "");
      }
    }
  }
}

TEST_F(ExportCommands, WorkOnTheModuleThatIsInFront) {
  opened.Open("Module2", {"y = 2"});
  EXPECT_EQ(WholeFile("Text"), "y = 2");
}

TEST_F(ExportCommands, ActOnceHoweverManyProceduresThereAre) {
  opened.Open("Module2", {"Sub A()", "End Sub", "Sub B()", "End Sub", "Sub C()", "End Sub"});
  WholeFile("Text");
  EXPECT_THAT(opened.environment.dialogs.SaveRequests(), SizeIs(1));
}

TEST_F(ExportCommands, TellTheUserOfAMissingCodeSource) {
  opened.Close();
  for (const bool wholeModule : {true, false}) {
    ButtonClicked(opened.addIn, "Quick Export", wholeModule);
  }
  ASSERT_THAT(opened.environment.dialogs.Messages(), SizeIs(2));
  for (const ShownMessage& message : opened.environment.dialogs.Messages()) {
    EXPECT_EQ(message.title, "Need Valid Code Source");
  }
  EXPECT_EQ(opened.environment.textFiles.Count(), 0u);
  EXPECT_FALSE(opened.addIn.progressWindow.Visible());
}

TEST_F(ExportCommands, ReportTheErrorsThatTheyKeepFromTheUser) {
  opened.environment.textFiles.isDiskFull = true;
  std::vector<int> numbers;
  opened.addIn.onSkippedError = [&](const RunTimeError& error) {
    numbers.push_back(error.Number());
  };
  for (const bool wholeModule : {true, false}) {
    ButtonClicked(opened.addIn, "Quick Export", wholeModule);
  }
  EXPECT_THAT(numbers, ElementsAre(error_number::kPathFileAccess, error_number::kPathFileAccess));
  EXPECT_THAT(opened.environment.dialogs.Messages(), IsEmpty());
  EXPECT_FALSE(opened.addIn.progressWindow.Visible());
}

TEST_F(ExportCommands, ReportTheLineOfALiteralWithoutEnd) {
  opened.Open("Module2", {"Sub A()", "s = \"open", "End Sub"});
  int line = 0;
  opened.addIn.onSkippedError = [&](const RunTimeError& error) { line = error.Line(); };
  opened.environment.dialogs.SaveTo(kChosenPath);
  ButtonClicked(opened.addIn, "RTF", true);
  EXPECT_EQ(line, 2);
  EXPECT_EQ(opened.environment.textFiles.Count(), 0u);
}

TEST(ExportEntries, ClickTheirCommandAndGiveThePointerBack) {
  for (const DispatchedCommand& command : EveryCommand()) {
    const bool isExport = std::find(std::begin(kCaptions), std::end(kCaptions), command.caption) !=
                          std::end(kCaptions);
    if (!isExport) continue;
    OpenedModule opened(kCode);
    opened.PutCaret(1);
    opened.environment.dialogs.SaveTo(kChosenPath);
    brimwork::Run(opened.addIn, command);
    EXPECT_EQ(opened.environment.textFiles.Count(), 1u) << command.Title();
    EXPECT_EQ(opened.environment.screen.MousePointer(), mouse_pointer::kDefault);
  }
}

TEST_F(ExportCommands, OfAnotherSpellingDoNothing) {
  for (const char* caption : {"text", "Rtf", "Htm", "QuickExport", "Web page"}) {
    for (const bool wholeModule : {true, false}) {
      ButtonClicked(opened.addIn, caption, wholeModule);
      EXPECT_EQ(opened.environment.textFiles.Count(), 0u) << caption;
    }
  }
}

}  // namespace export_commands_test
}  // namespace brimwork
