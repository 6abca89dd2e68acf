// Commands on every procedure of a module, and the progress window that they show.
#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <algorithm>

#include "core/modButtonClicked.h"
#include "settings/setting_keys.h"
#include "support/opened_module.h"

namespace brimwork {
namespace module_commands_test {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::HasSubstr;
using testing::SizeIs;
using testing::StartsWith;

constexpr const char* kModuleCaptions[] = {"Code Clean Up",          "Indent All Procedures",
                                           "Comment All Procedures", "Add Line Numbers",
                                           "Remove Line Numbers",    "Insert Error Handling"};

const std::string S = "'" + std::string(89, '=');

/// What the progress window showed while it was visible: "title|message|percentage", each change
/// once.
TextLines ShownDuring(OpenedModule& opened, std::string_view caption) {
  TextLines shown;
  opened.addIn.progressWindow.OnRepaint = [&](const frmInfo& window) {
    if (!window.Visible()) return;
    shown.push_back(window.Caption.Get() + '|' + window.lblInfo.Caption.Get() + '|' +
                    window.picProgress.Tag.Get());
  };
  opened.ClickAll(caption);
  opened.addIn.progressWindow.OnRepaint = nullptr;
  return shown;
}

TEST(ModuleCommands, ShowTheirMessageAndThenHowFarTheyAreForEachProcedure) {
  OpenedModule opened({"Dim x", "Sub A()", "End Sub", "Sub B()", "End Sub"});
  EXPECT_THAT(ShownDuring(opened, "Indent All Procedures"),
              ElementsAre("Processing...|Processing Request...Please Wait|0",
                          "Indenting All Procedures|Now indenting all procedures|0",
                          "Indenting All Procedures|Now indenting all procedures|25",
                          "Indenting All Procedures|Now indenting all procedures|25",
                          "Indenting All Procedures|Now indenting all procedures|75"));
  EXPECT_FALSE(opened.addIn.progressWindow.Visible());
}

TEST(ModuleCommands, EachHasATitleAndAMessageOfItsOwn) {
  const std::pair<const char*, const char*> expected[] = {
      {"Comment All Procedures", "Comment All Procedures|Now adding comments to all procedures|"},
      {"Add Line Numbers",
       "Add Line Numbers To All Procedures|Now adding line numbers to all procedures|"},
      {"Remove Line Numbers",
       "Remove Line Numbers From All Procedures|Now removing line numbers from all procedures|"},
      {"Insert Error Handling",
       "Add Default Error Handling To All Procedures|Now adding default error handling to all "
       "procedures|"}};
  for (const auto& [caption, shown] : expected) {
    OpenedModule opened({"Sub A()", "End Sub"});
    EXPECT_THAT(ShownDuring(opened, caption)[1], StartsWith(shown));
  }
}

TEST(ModuleCommands, OnAModuleWithoutProceduresShowAndHideTheProgressWindowAndChangeNothing) {
  for (const TextLines& lines :
       {TextLines{"Option Explicit", "", "' note"}, TextLines{"' note"}, TextLines{}}) {
    for (const char* caption : kModuleCaptions) {
      OpenedModule opened(lines);
      EXPECT_THAT(ShownDuring(opened, caption),
                  ElementsAre("Processing...|Processing Request...Please Wait|0"))
          << caption;
      EXPECT_FALSE(opened.addIn.progressWindow.Visible());
      EXPECT_THAT(opened.Lines(), ElementsAreArray(lines)) << caption;
    }
  }
}

TEST(ModuleCommands, WithoutACodeSourceTellTheUserOnceAndChangeNothing) {
  for (const char* caption : kModuleCaptions) {
    OpenedModule opened({"Sub A()", "x = 1", "End Sub"});
    opened.Close();
    opened.ClickAll(caption);
    EXPECT_THAT(opened.environment.dialogs.Messages(), SizeIs(1)) << caption;
    EXPECT_THAT(opened.Lines(), ElementsAre("Sub A()", "x = 1", "End Sub")) << caption;
    EXPECT_FALSE(opened.addIn.progressWindow.Visible()) << caption;
  }
}

const TextLines kTwo{"Option Explicit", "Sub A()",   "x = 1", "End Sub", "",
                     "Function B()",    "If y Then", "z = 1", "End If",  "End Function"};

TEST(ModuleCommands, IndentEveryProcedureFromItsOwnStart) {
  EXPECT_THAT(AfterClickAll("Indent All Procedures", kTwo),
              ElementsAre("Option Explicit", "Sub A()", "    x = 1", "End Sub", "", "Function B()",
                          "    If y Then", "        z = 1", "    End If", "End Function"));
}

TEST(ModuleCommands, NumberEveryProcedureWithItsModuleLines) {
  const TextLines numbered = AfterClickAll("Add Line Numbers", kTwo);
  EXPECT_THAT(numbered, ElementsAre("Option Explicit", "Sub A()", "3:         x = 1", "End Sub", "",
                                    "Function B()", "7:         If y Then", "8:             z = 1",
                                    "9:         End If", "End Function"));
  EXPECT_THAT(AfterClickAll("Add Line Numbers", numbered), ElementsAreArray(numbered));
  EXPECT_THAT(AfterClickAll("Remove Line Numbers", numbered),
              ElementsAreArray(AfterClickAll("Indent All Procedures", kTwo)));
}

TEST(ModuleCommands, HandleErrorsInEveryProcedureOnce) {
  EXPECT_THAT(
      AfterClickAll("Insert Error Handling",
                    {"Sub A()", "End Sub", "Function B()", "x = 1", "End Function"}),
      ElementsAre("Sub A()", "On Error GoTo ErrorTrap", "", "Exit Sub", "",
                  "ErrorTrap:", "TEST HANDLE", "End Sub", "Function B()", "On Error GoTo ErrorTrap",
                  "x = 1", "", "Exit Function", "", "ErrorTrap:", "TEST HANDLE", "End Function"));
}

TEST(ModuleCommands, TransformEachOfSeveralProceduresOfOneName) {
  EXPECT_THAT(AfterClickAll("Insert Error Handling", {"Sub A()", "End Sub", "Sub a()", "End Sub",
                                                      "Property Get A()", "End Property"}),
              ElementsAre("Sub A()", "On Error GoTo ErrorTrap", "", "Exit Sub", "", "ErrorTrap:",
                          "TEST HANDLE", "End Sub", "Sub a()", "On Error GoTo ErrorTrap", "",
                          "Exit Sub", "", "ErrorTrap:", "TEST HANDLE", "End Sub",
                          "Property Get A()", "On Error GoTo ErrorTrap", "", "Exit Property", "",
                          "ErrorTrap:", "TEST HANDLE", "End Property"));
}

TEST(ModuleCommands, GoOnWithTheNextProcedureBehindANegativeIndent) {
  EXPECT_THAT(AfterClickAll("Indent All Procedures", {"Sub A()", "Loop", "Loop", "x = 1", "End Sub",
                                                      "Sub B()", "y = 1", "End Sub"}),
              ElementsAre("Sub A()", "Loop", "Loop", "x = 1", "End Sub", "Sub B()", "    y = 1",
                          "End Sub"));
}

TEST(ModuleCommands, LeaveTheCaretOnItsSourceLine) {
  OpenedModule opened(kTwo);
  opened.PutCaret(8, 3);
  opened.ClickAll("Insert Error Handling");
  EXPECT_EQ(opened.Lines()[static_cast<std::size_t>(opened.CaretLine() - 1)], "z = 1");
  EXPECT_EQ(opened.Pane().GetSelection().startColumn, 3);
}

TEST(ModuleCommands, LeaveLinesBehindTheLastProcedureAlone) {
  EXPECT_THAT(AfterClickAll("Add Line Numbers", {"Sub A()", "End Sub", "  ' rest", "  x = 1"}),
              ElementsAre("Sub A()", "End Sub", "  ' rest", "  x = 1"));
}

TEST(ModuleCommands, ACleanUpEndsOnTheUsersOwnLineAlthoughItsStepsMoveTheCaret) {
  OpenedModule opened({"Option Explicit", "", "Sub A()", "first = 1", "End Sub", "", "Sub B()",
                       "    mine = 1", "End Sub"});
  opened.PutCaret(8);
  opened.ClickAll("Code Clean Up");
  EXPECT_THAT(opened.Lines()[static_cast<std::size_t>(opened.CaretLine() - 1)],
              HasSubstr("mine = 1"));
}

TEST(ModuleCommands, ACleanUpHidesTheProgressWindowAndRestoresThePointer) {
  OpenedModule opened(kTwo);
  opened.ClickAll("Code Clean Up");
  EXPECT_FALSE(opened.addIn.progressWindow.Visible());
  EXPECT_EQ(opened.environment.screen.MousePointer(), mouse_pointer::kDefault);
  EXPECT_EQ(opened.environment.screen.LockedWindow(), 0u);
}

TEST(ModuleCommands, ACleanUpRunsOnceHoweverManyProceduresThereAre) {
  OpenedModule opened(kTwo);
  opened.Set(setting::kCleanUpCodeOptions, "Error");
  opened.ClickAll("Code Clean Up");
  const TextLines lines = opened.Lines();
  EXPECT_EQ(std::count(lines.begin(), lines.end(), "ErrorTrap:"), 2);
}

}  // namespace module_commands_test
}  // namespace brimwork
