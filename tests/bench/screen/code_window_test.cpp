// Code windows: the user's text and the module's.
#include "bench/screen/code_window.h"

#include <gmock/gmock.h>

#include "bench/screen/screen_fixture.h"
#include "memory/usual_commands.h"

namespace brimwork::bench {
namespace code_window_test {

struct CodeWindows : ScreenFixture {
  CodeWindows() : pane(OpenModule()), edit(EditIn(pane.ContainingWindow())) {}

  std::string ModuleText() {
    windows->TakeInput();
    return module->Code()->Text().Joined();
  }
  void Select(std::size_t start, std::size_t end) { SelectUnits(edit, {start, end}); }

  MemoryCodePane& pane;
  HWND edit;
};

TEST_F(CodeWindows, ShowTheModulesText) {
  EXPECT_EQ(Shown(edit), "Sub One()\r\n    x = 1\r\nEnd Sub\r\nSub Two()\r\nEnd Sub");
  EXPECT_EQ(module->Code()->Revision(), 0U) << "showing edits nothing";
}

TEST_F(CodeWindows, BringWhatIsTypedIntoTheModule) {
  Select(0, 0);
  Type(edit, "ab");
  EXPECT_EQ(ModuleText().substr(0, 11), "abSub One()");
  EXPECT_TRUE(module->IsDirty());
}

TEST_F(CodeWindows, TypeLinesAndCharactersOfAllScripts) {
  Select(0, 0);
  Type(edit, "' \xC3\xA9\xD0\x96\r");
  EXPECT_EQ(ModuleText().substr(0, 17), "' \xC3\xA9\xD0\x96\r\nSub One()");
  EXPECT_EQ(pane.GetSelection(), (Selection{2, 1, 2, 1}));
}

TEST_F(CodeWindows, KeepTheFilesHiddenLinesUnderTyping) {
  Select(0, 0);
  Type(edit, "x");
  ModuleText();
  module->Save();
  std::ifstream file(folder / "a.bas", std::ios::binary);
  const std::string bytes(std::istreambuf_iterator<char>(file), {});
  EXPECT_EQ(bytes.substr(0, 39), "Attribute VB_Name = \"modA\"\r\nxSub One()\r");
}

TEST_F(CodeWindows, ShowWhatIsWrittenIntoTheModule) {
  module->Code()->ReplaceLine(2, "    y = 22");
  module->Code()->InsertLines(1, "' new");
  Show();
  EXPECT_EQ(Shown(edit), "' new\r\nSub One()\r\n    y = 22\r\nEnd Sub\r\nSub Two()\r\nEnd Sub");
}

TEST_F(CodeWindows, ShowWhatIsWrittenBeforeTheNextKeyArrives) {
  module->Code()->DeleteLines(1, 5);
  windows->ShowChanges();
  Type(edit, "z");
  EXPECT_EQ(ModuleText(), "z");
}

TEST_F(CodeWindows, ShowWhatIsWrittenToWhoeverReadsTheControl) {
  module->Code()->ReplaceLine(1, "Sub Other()");
  windows->ShowChanges();
  EXPECT_EQ(Shown(edit).substr(0, 11), "Sub Other()");
}

TEST_F(CodeWindows, CarryTheCaretIntoTheModel) {
  Select(15, 15);
  windows->TakeInput();
  EXPECT_EQ(pane.GetSelection(), (Selection{2, 5, 2, 5}));
  Select(0, 11);
  windows->TakeInput();
  EXPECT_EQ(pane.GetSelection(), (Selection{1, 1, 2, 1}));
}

TEST_F(CodeWindows, CarryTheModelsSelectionToTheControl) {
  pane.SetSelection({2, 5, 2, 8});
  Show();
  EXPECT_EQ(SelectedUnits(edit), (UnitRange{15, 18}));
  windows->TakeInput();
  EXPECT_EQ(pane.GetSelection(), (Selection{2, 5, 2, 8}));
}

TEST_F(CodeWindows, CountCharactersNotUnits) {
  module->Code()->ReplaceLine(1, "\xF0\x9F\x98\x80x");
  pane.SetSelection({1, 2, 1, 3});
  Show();
  EXPECT_EQ(SelectedUnits(edit), (UnitRange{2, 3}));
  Select(3, 3);
  windows->TakeInput();
  EXPECT_EQ(pane.GetSelection(), (Selection{1, 3, 1, 3}));
}

TEST_F(CodeWindows, KeepTheCaretsPlaceWhenLinesChangeAboveIt) {
  pane.SetSelection({4, 3, 4, 3});
  Show();
  module->Code()->ReplaceLine(1, "Sub AnotherName()");
  Show();
  windows->TakeInput();
  EXPECT_EQ(pane.GetSelection(), (Selection{4, 3, 4, 3}));
}

TEST_F(CodeWindows, SelectAllWithControlA) {
  Type(edit, "\x01");
  windows->TakeInput();
  EXPECT_EQ(pane.GetSelection(), (Selection{1, 1, 5, 8}));
}

TEST_F(CodeWindows, CutCopyAndPasteThroughTheUsersClipboard) {
  Select(0, 9);
  Run(command::kCopy);
  Select(9, 9);
  Run(command::kPaste);
  EXPECT_EQ(ModuleText().substr(0, 20), "Sub One()Sub One()\r\n");
  Select(0, 9);
  Run(command::kCut);
  EXPECT_EQ(ModuleText().substr(0, 11), "Sub One()\r\n");
}

TEST_F(CodeWindows, DeleteBehindTheCaret) {
  Select(0, 0);
  Run(command::kDelete);
  EXPECT_EQ(ModuleText().substr(0, 8), "ub One()");
}

TEST_F(CodeWindows, TakeTypingBackLevelByLevel) {
  const std::string before = ModuleText();
  Select(0, 0);
  Type(edit, "a b\r");
  ModuleText();
  for (int level = 0; level < 4 && ModuleText() != before; ++level) Type(edit, "\x1A");
  EXPECT_EQ(ModuleText(), before);
  Run(command::kRedo);
  EXPECT_NE(ModuleText(), before);
}

TEST_F(CodeWindows, TakeBackWhatAnAddInWrote) {
  Select(0, 0);
  Type(edit, "a");
  ModuleText();
  module->Code()->ReplaceLine(1, "written");
  Show();
  Type(edit, "\x1A");
  EXPECT_EQ(ModuleText().substr(0, 10), "aSub One()");
  Type(edit, "\x1A");
  EXPECT_EQ(ModuleText().substr(0, 9), "Sub One()");
}

TEST_F(CodeWindows, KeepCharactersThatNoControlCanHold) {
  module->Code()->ReplaceLine(2, std::string_view("a\0b", 3));
  Show();
  Select(0, 0);
  Type(edit, "x");
  EXPECT_EQ(ModuleText().substr(0, 16), std::string_view("xSub One()\r\na\0b\r", 16));
}

TEST_F(CodeWindows, TakeATextThatAnotherProgramSets) {
  SetWindowTextW(edit, L"' set");
  EXPECT_EQ(ModuleText(), "' set");
}

TEST_F(CodeWindows, FillUpToTheNextColumnWithTab) {
  Select(1, 1);
  Type(edit, "\t");
  EXPECT_EQ(ModuleText().substr(0, 12), "S   ub One()");
}

TEST_F(CodeWindows, IndentTheSelectedLinesWithTab) {
  Select(0, 20);
  Type(edit, "\t");
  Pump();
  EXPECT_EQ(module->Code()->Lines(1, 3), "    Sub One()\r\n        x = 1\r\nEnd Sub");
}

TEST_F(CodeWindows, ScrollToTheLineThatIsAskedFor) {
  std::string lines;
  for (int line = 0; line < 200; ++line) lines += "' line\r\n";
  module->Code()->InsertLines(1, lines);
  windows->SetTopLineOf(pane, 50);
  EXPECT_EQ(windows->TopLineOf(pane), 50);
  const int visible = windows->VisibleLinesOf(pane);
  EXPECT_GT(visible, 3);
  EXPECT_LT(visible, 100);
  windows->SetTopLineOf(pane, 1);
  EXPECT_EQ(windows->TopLineOf(pane), 1);
}

TEST_F(CodeWindows, StayWhereTheyAreScrolledWhenTheModuleChanges) {
  std::string lines;
  for (int line = 0; line < 200; ++line) lines += "' line\r\n";
  module->Code()->InsertLines(1, lines);
  windows->SetTopLineOf(pane, 50);
  module->Code()->ReplaceLine(60, "' other");
  Show();
  EXPECT_EQ(windows->TopLineOf(pane), 50);
}

TEST_F(CodeWindows, TakeManyChangesAtTheCostOfOne) {
  std::string lines;
  for (int line = 0; line < 20000; ++line) lines += "' line\r\n";
  module->Code()->InsertLines(1, lines);
  Show();
  SendMessageW(edit, WM_SETREDRAW, TRUE, 0);
  ValidateRect(edit, nullptr);
  for (int line = 1; line <= 10000; ++line) {
    windows->TakeInput();
    module->Code()->ReplaceLine(line, "x");
    windows->ShowChanges();
  }
  EXPECT_FALSE(GetUpdateRect(edit, nullptr, FALSE)) << "nothing is drawn in between";
  EXPECT_EQ(Shown(edit).substr(0, 6), "x\r\nx\r\n");
}

TEST_F(CodeWindows, FindTextBehindTheSelection) {
  Select(0, 0);
  windows->TakeInput();
  pane.SetSelection({1, 1, 1, 1});
  Show();
  Run(command::kFind);
  const HWND dialog = FindWindowW(L"BrimworkBenchFind", nullptr);
  ASSERT_NE(dialog, nullptr);
  SetDlgItemTextW(dialog, 100, L"end sub");
  SendMessageW(dialog, WM_COMMAND, IDOK, 0);
  Pump();
  windows->TakeInput();
  EXPECT_EQ(pane.GetSelection(), (Selection{3, 1, 3, 8}));
  SendMessageW(dialog, WM_COMMAND, IDCANCEL, 0);
  Run(command::kFindNext);
  windows->TakeInput();
  EXPECT_EQ(pane.GetSelection(), (Selection{5, 1, 5, 8}));
}

std::string ChosenIn(HWND list) {
  wchar_t text[100] = L"";
  const auto chosen = SendMessageW(list, CB_GETCURSEL, 0, 0);
  SendMessageW(list, CB_GETLBTEXT, static_cast<WPARAM>(chosen), reinterpret_cast<LPARAM>(text));
  return win32::Narrow(text);
}

TEST_F(CodeWindows, NameTheProcedureOfTheCaret) {
  const HWND native = NativeOf(pane.ContainingWindow());
  const HWND objects = FindWindowExW(native, nullptr, L"COMBOBOX", nullptr);
  const HWND procedures = FindWindowExW(native, objects, L"COMBOBOX", nullptr);
  EXPECT_EQ(ChosenIn(objects), "(General)");
  EXPECT_EQ(ChosenIn(procedures), "One");
  pane.SetSelection({5, 1, 5, 1});
  Show();
  EXPECT_EQ(ChosenIn(procedures), "Two");
}

TEST_F(CodeWindows, GoToTheProcedureThatTheUserChooses) {
  const HWND native = NativeOf(pane.ContainingWindow());
  const HWND objects = FindWindowExW(native, nullptr, L"COMBOBOX", nullptr);
  const HWND procedures = FindWindowExW(native, objects, L"COMBOBOX", nullptr);
  SendMessageW(procedures, CB_SETCURSEL, 2, 0);
  SendMessageW(native, WM_COMMAND, MAKEWPARAM(0, CBN_SELENDOK),
               reinterpret_cast<LPARAM>(procedures));
  Pump();
  EXPECT_EQ(pane.GetSelection(), (Selection{4, 1, 4, 1}));
}

}  // namespace code_window_test
}  // namespace brimwork::bench
