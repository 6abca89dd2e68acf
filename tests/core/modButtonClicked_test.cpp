#include "core/modButtonClicked.h"

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include "core/code_commands.h"
#include "support/opened_module.h"

namespace brimwork {
namespace modButtonClicked_test {

using testing::ElementsAre;
using testing::ElementsAreArray;
using testing::IsEmpty;
using testing::SizeIs;

const std::string S = "'" + std::string(89, '=');

TEST(ButtonClicked, ACaptionWithoutACommandDoesNothingAndLeavesTheSelectionWhereItWas) {
  for (const bool wholeModule : {false, true}) {
    for (const char* caption : {"Added By Hand", "comment procedure", "Comment Procedure ", ""}) {
      OpenedModule opened({"Sub A()", "x = 1", "End Sub"});
      opened.Pane().SetSelection({2, 2, 3, 4});
      ButtonClicked(opened.addIn, caption, wholeModule);
      EXPECT_THAT(opened.Lines(), ElementsAre("Sub A()", "x = 1", "End Sub"));
      EXPECT_EQ(opened.Pane().GetSelection(), (Selection{2, 2, 3, 4}));
      EXPECT_THAT(opened.environment.dialogs.Messages(), IsEmpty());
    }
  }
}

TEST(ButtonClicked, EachFlagHasCaptionsOfItsOwn) {
  const TextLines lines{"Sub A()", "x = 1", "End Sub"};
  for (const char* caption : {"Indent All Procedures", "Comment All Procedures", "Code Clean Up"}) {
    EXPECT_THAT(AfterClickAt(1, caption, lines), ElementsAreArray(lines)) << caption;
    EXPECT_FALSE(HasCommand(caption, false));
    EXPECT_TRUE(HasCommand(caption, true));
  }
  for (const char* caption :
       {"Comment Procedure", "Standard Header", "Adapted Header", "Insert Time Stamp"}) {
    EXPECT_THAT(AfterClickAll(caption, lines), ElementsAreArray(lines)) << caption;
    EXPECT_TRUE(HasCommand(caption, false));
    EXPECT_FALSE(HasCommand(caption, true));
  }
  for (const char* caption : {"Insert Error Handling", "Add Line Numbers", "Remove Line Numbers"}) {
    EXPECT_TRUE(HasCommand(caption, false));
    EXPECT_TRUE(HasCommand(caption, true));
  }
}

TEST(ButtonClicked, ActsOnTheProcedureAtTheCaretOnly) {
  const TextLines two{"Sub A()", "x = 1", "End Sub", "", "Sub B()", "y = 1", "End Sub"};
  EXPECT_THAT(
      AfterClickAt(4, "Add Line Numbers", two),
      ElementsAre("Sub A()", "x = 1", "End Sub", "", "Sub B()", "6:         y = 1", "End Sub"));
  EXPECT_THAT(AfterClickAt(2, "Comment Procedure", two),
              ElementsAre(S, "Sub A()", "x = 1", "End Sub 'A()", S, "Sub B()", "y = 1", "End Sub"));
}

// The kind word of the exit statement.

TEST(ButtonClicked, HasACommandForEveryEntry) {
  for (const CatalogueEntry& entry : Catalogue()) {
    EXPECT_TRUE(HasCommand(entry.caption, entry.wholeModule)) << entry.handler;
  }
}

TEST(ButtonClicked, ADeclarationThatHoldsNeitherSubNorFunctionIsTakenForAProperty) {
  EXPECT_EQ(AfterClickAt(1, "Insert Error Handling", {"Property Get A()", "End Property"})[3],
            "Exit Property");
  EXPECT_EQ(AfterClickAt(1, "Insert Error Handling", {"sub a()", "end sub"})[3], "Exit Property");
}

TEST(ButtonClicked, ADeclarationThatHoldsSubAnywhereIsTakenForASub) {
  EXPECT_EQ(AfterClickAt(1, "Insert Error Handling", {"Function SubTotal()", "End Function"})[3],
            "Exit Sub");
}

TEST(ButtonClicked, TheKindWordIsLookedForAsSubThenFunctionThenProperty) {
  EXPECT_EQ(KindWordOf("Private Sub Function_1()"), "Sub");
  EXPECT_EQ(KindWordOf("Property Get FunctionName()"), "Function");
  EXPECT_EQ(KindWordOf("Property Get A()"), "Property");
  EXPECT_EQ(KindWordOf(""), "Property");
}

// Line numbers.

TEST(ButtonClicked, AddLineNumbersRenumbersAndIndentsAProcedureThatHasNumbers) {
  EXPECT_THAT(
      AfterClickAt(1, "Add Line Numbers",
                   {"Sub A()", "7:     If x Then", "8:     y = 1", "99:    End If", "End Sub"}),
      ElementsAre("Sub A()", "2:         If x Then", "3:             y = 1", "4:         End If",
                  "End Sub"));
}

TEST(ButtonClicked, RemoveLineNumbersIndentsTheProcedureAgain) {
  EXPECT_THAT(
      AfterClickAt(1, "Remove Line Numbers",
                   {"Sub A()", "2:     If x Then", "       y = 1", "4:     End If", "End Sub"}),
      ElementsAre("Sub A()", "    If x Then", "        y = 1", "    End If", "End Sub"));
}

// The caret.

TEST(ButtonClicked, TheCaretStaysOnItsSourceLineWhenLinesAreAddedAboveIt) {
  OpenedModule opened({"Sub A()", "x = 1", "y = 1", "End Sub"});
  opened.ClickAt(3, "Insert Error Handling");
  EXPECT_EQ(opened.CaretLine(), 4);
  EXPECT_EQ(opened.Lines()[3], "y = 1");
}

TEST(ButtonClicked, TheCaretStaysOnItsLineNumberWhenTheLinesTextIsGone) {
  OpenedModule opened({"Sub A()", "99:    y = 1", "End Sub"});
  opened.ClickAt(2, "Remove Line Numbers");
  EXPECT_EQ(opened.CaretLine(), 2);
  OpenedModule commented({"Sub A()", "End Sub 'old"});
  commented.ClickAt(2, "Comment Procedure");
  EXPECT_EQ(commented.CaretLine(), 2);
}

TEST(ButtonClicked, OfSeveralEqualLinesTheCaretGoesToTheNearest) {
  OpenedModule opened({"Sub A()", "x = 1", "End Sub", "Sub B()", "x = 1", "End Sub"});
  opened.ClickAt(5, "Standard Header");
  EXPECT_EQ(opened.Lines()[9], "x = 1");
  EXPECT_EQ(opened.CaretLine(), 10);
}

// The record of an earlier command.

TEST(ButtonClicked, InTheDeclarationsACommandActsOnTheRangeOfTheProcedureBefore) {
  OpenedModule opened({"Option Explicit", "Sub A()", "x = 1", "End Sub"});
  opened.ClickAt(3, "Remove Line Numbers");
  opened.ClickAt(1, "Add Line Numbers");
  EXPECT_THAT(opened.Lines(),
              ElementsAre("Option Explicit", "Sub A()", "3:         x = 1", "End Sub"));
}

TEST(ButtonClicked, InTheDeclarationsNothingHappensWhenNoProcedureWasActedOnBefore) {
  const TextLines lines{"Option Explicit", "Sub A()", "x = 1", "End Sub"};
  for (const char* caption :
       {"Add Line Numbers", "Remove Line Numbers", "Comment Procedure", "Insert Error Handling"}) {
    EXPECT_THAT(AfterClickAt(1, caption, lines), ElementsAreArray(lines)) << caption;
  }
}

TEST(ButtonClicked, TheRangeOfAnotherModuleIsNotActedOn) {
  OpenedModule opened({"Sub A()", "x = 1", "End Sub"});
  opened.ClickAt(2, "Remove Line Numbers");
  opened.Open("Module2", {"Option Explicit", "x = 1", "y = 1", "Sub B()", "End Sub"});
  opened.ClickAt(1, "Add Line Numbers");
  EXPECT_THAT(opened.Lines(),
              ElementsAre("Option Explicit", "x = 1", "y = 1", "Sub B()", "End Sub"));
}

// Failures.

TEST(ButtonClicked, ANegativeIndentEndsTheIndentingAndTheNextStepFollows) {
  OpenedModule opened({"Sub A()", "  x = 1", "Loop", "Loop", "  y = 1", "End Sub"});
  std::vector<int> skipped;
  opened.addIn.onSkippedError = [&](const RunTimeError& error) { skipped.push_back(error.Line()); };
  opened.ClickAt(1, "Add Line Numbers");
  EXPECT_THAT(opened.Lines(), ElementsAre("Sub A()", "2:         x = 1", "3:     Loop",
                                          "4:     Loop", "5:     y = 1", "End Sub"));
  EXPECT_THAT(skipped, ElementsAre(4));
}

TEST(ButtonClicked, WithoutACodeSourceTheUserIsToldOnceAndNothingChanges) {
  for (const char* caption : {"Comment Procedure", "Insert Error Handling", "Standard Header",
                              "Adapted Header", "Add Line Numbers", "Remove Line Numbers"}) {
    OpenedModule opened({"Sub A()", "x = 1", "End Sub"});
    opened.Close();
    ButtonClicked(opened.addIn, caption, false);
    EXPECT_THAT(opened.environment.dialogs.Messages(), SizeIs(1)) << caption;
    EXPECT_THAT(opened.Lines(), ElementsAre("Sub A()", "x = 1", "End Sub")) << caption;
  }
}

// Redrawing.

/// Notes every window that was frozen, 0 when the freeze ended.
class FreezeNotingScreen : public MemoryScreen {
 public:
  void LockWindowUpdate(WindowHandle window) override {
    frozen.push_back(window);
    MemoryScreen::LockWindowUpdate(window);
  }
  std::vector<WindowHandle> frozen;
};

TEST(ButtonClicked, TheMainWindowIsFrozenWhileOneProcedureIsCommentedOrNumbered) {
  for (const char* caption : {"Comment Procedure", "Add Line Numbers", "Remove Line Numbers"}) {
    MemoryEnvironment memory;
    memory.Open("Module1", ModuleText::FromText("Sub A()\r\nx = 1\r\nEnd Sub\r\n"));
    FreezeNotingScreen screen;
    screen.AddWindow(MemoryVbe::kMainWindowCaption, 5);
    AddIn addIn(memory.Parts({.screen = &screen}));
    ButtonClicked(addIn, caption, false);
    EXPECT_THAT(screen.frozen, ElementsAre(5u, 0u)) << caption;
  }
}

}  // namespace modButtonClicked_test
}  // namespace brimwork
