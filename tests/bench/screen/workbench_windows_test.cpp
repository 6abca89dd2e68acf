// The windows of a workbench: which there are, which has the focus, and what the user does to them.
#include "bench/screen/workbench_windows.h"

#include <gmock/gmock.h>

#include "bench/screen/screen_fixture.h"
#include "memory/usual_commands.h"

namespace brimwork::bench {
namespace workbench_windows_test {

struct WorkbenchOnScreen : ScreenFixture {
  std::string TitleOf(const std::shared_ptr<Window>& window) { return Shown(NativeOf(window)); }
};

TEST_F(WorkbenchOnScreen, OpensACodeWindowWithItsCaption) {
  const auto window = OpenModule().ContainingWindow();
  EXPECT_EQ(TitleOf(window), window->Caption());
  EXPECT_TRUE(IsWindowVisible(NativeOf(window)));
}

TEST_F(WorkbenchOnScreen, FollowsANewNameIntoTheTitles) {
  const auto window = OpenModule().ContainingWindow();
  module->SetName("modOther");
  Show();
  EXPECT_THAT(TitleOf(window), testing::HasSubstr("modOther"));
  EXPECT_EQ(Shown(windows->Frame()), bench.vbe.MainWindow()->Caption());
}

TEST_F(WorkbenchOnScreen, ClosesTheWindowThatTheModelCloses) {
  const auto window = OpenModule().ContainingWindow();
  const HWND native = NativeOf(window);
  window->Close();
  Show();
  EXPECT_FALSE(IsWindow(native));
}

TEST_F(WorkbenchOnScreen, ClosesInTheModelWhatTheUserCloses) {
  const auto first = OpenModule().ContainingWindow();
  const auto second = bench.PaneOf(form)->ContainingWindow();
  Show();
  SendMessageW(NativeOf(second), WM_CLOSE, 0, 0);
  Pump();
  EXPECT_EQ(bench.OpenPaneOf(*form), nullptr);
  EXPECT_EQ(bench.vbe.ActiveWindow(), first) << "the one behind comes to the front";
}

TEST_F(WorkbenchOnScreen, ShowsAndHidesToolWindowsAsTheModelDoes) {
  const HWND locals = NativeOf(bench.windows.locals);
  EXPECT_FALSE(IsWindowVisible(locals));
  bench.windows.locals->SetVisible(true);
  Show();
  EXPECT_TRUE(IsWindowVisible(locals));
  bench.windows.locals->Close();
  Show();
  EXPECT_FALSE(IsWindowVisible(locals));
}

TEST_F(WorkbenchOnScreen, HidesTheToolWindowWhoseCrossTheUserClicks) {
  const HWND native = NativeOf(bench.windows.immediate);
  RECT room{};
  GetClientRect(native, &room);
  const LPARAM cross = MAKELPARAM(room.right - 8, 8);
  SendMessageW(native, WM_LBUTTONDOWN, MK_LBUTTON, cross);
  SendMessageW(native, WM_LBUTTONUP, 0, cross);
  Pump();
  EXPECT_FALSE(bench.windows.immediate->Visible());
  EXPECT_FALSE(IsWindowVisible(native));
}

TEST_F(WorkbenchOnScreen, GivesTheWorkspaceTheRoomOfHiddenWindows) {
  const auto window = std::static_pointer_cast<MemoryWindow>(OpenModule().ContainingWindow());
  windows->SetStateOf(*window, WindowState::kMaximized);
  const Bounds before = windows->BoundsOf(*window);
  bench.windows.immediate->SetVisible(false);
  Show();
  EXPECT_GT(windows->BoundsOf(*window).height, before.height);
}

TEST_F(WorkbenchOnScreen, GivesTheFocusWhereTheModelWantsIt) {
  const auto code = OpenModule().ContainingWindow();
  EXPECT_EQ(GetFocus(), EditIn(code));
  bench.windows.immediate->SetFocus();
  windows->ShowChanges();
  EXPECT_EQ(GetFocus(), EditIn(bench.windows.immediate));
  code->SetFocus();
  windows->ShowChanges();
  EXPECT_EQ(GetFocus(), EditIn(code));
  bench.vbe.MainWindow()->SetFocus();
  windows->ShowChanges();
  EXPECT_EQ(GetFocus(), windows->Frame());
  EXPECT_EQ(bench.vbe.ActiveWindow(), nullptr);
}

TEST_F(WorkbenchOnScreen, GivesTheFocusAgainWhenItIsAskedForAgain) {
  const auto code = OpenModule().ContainingWindow();
  SetFocus(nullptr);
  code->SetFocus();
  windows->ShowChanges();
  EXPECT_EQ(GetFocus(), EditIn(code));
}

TEST_F(WorkbenchOnScreen, MakesActiveWhatTheUserGivesTheFocus) {
  const auto code = OpenModule().ContainingWindow();
  SetFocus(EditIn(bench.windows.immediate));
  EXPECT_EQ(bench.vbe.ActiveWindow(), bench.windows.immediate);
  SetFocus(EditIn(code));
  EXPECT_EQ(bench.vbe.ActiveWindow(), code);
  for (const auto& tool : {bench.windows.project, bench.windows.properties}) {
    SetFocus(NativeOf(tool));
    EXPECT_EQ(bench.vbe.ActiveWindow(), tool);
  }
}

TEST_F(WorkbenchOnScreen, LeavesNoWindowActiveWhenTheModelClosesTheActiveOne) {
  OpenModule();
  const auto second = bench.PaneOf(form)->ContainingWindow();
  Show();
  second->Close();
  Show();
  EXPECT_EQ(bench.vbe.ActiveWindow(), nullptr);
  EXPECT_EQ(GetFocus(), windows->Frame());
}

TEST_F(WorkbenchOnScreen, GivesTheFocusBackWhenTheMainWindowGetsIt) {
  const auto code = OpenModule().ContainingWindow();
  SetFocus(nullptr);
  SetFocus(windows->Frame());
  EXPECT_EQ(GetFocus(), EditIn(code));
}

TEST_F(WorkbenchOnScreen, LeavesTheFocusWithAListThatTheUserOpened) {
  OpenModule();
  const auto code = bench.vbe.ActiveWindow();
  bench.windows.immediate->SetFocus();
  Show();
  const HWND list = FindWindowExW(NativeOf(code), nullptr, L"COMBOBOX", nullptr);
  SetFocus(list);
  EXPECT_EQ(bench.vbe.ActiveWindow(), code);
  Show();
  EXPECT_EQ(GetFocus(), list);
}

TEST_F(WorkbenchOnScreen, LeavesTheFocusWhereItIsWhenAnotherWindowOpensUnasked) {
  OpenModule();
  bench.windows.immediate->SetFocus();
  Show();
  bench.vbe.windows.Add("Designer", window_type::kDesigner);
  Show();
  EXPECT_EQ(bench.vbe.ActiveWindow(), bench.windows.immediate);
  EXPECT_EQ(GetFocus(), EditIn(bench.windows.immediate));
}

TEST_F(WorkbenchOnScreen, KnowsNoNativeWindowForAClosedOne) {
  const auto window = std::static_pointer_cast<MemoryWindow>(OpenModule().ContainingWindow());
  window->Close();
  EXPECT_EQ(windows->HandleOf(*window), 0);
  EXPECT_EQ(windows->BoundsOf(*window), Bounds{});
}

TEST_F(WorkbenchOnScreen, KeepsTheImmediateWindowsTextOnBothSides) {
  const HWND edit = EditIn(bench.windows.immediate);
  Type(edit, "? 1\r2");
  windows->TakeInput();
  EXPECT_EQ(bench.windows.immediateText->Text(), "? 1\r\n2");
  bench.windows.immediateText->SetText("other");
  Show();
  EXPECT_EQ(Shown(edit), "other");
  Type(edit, "\x01");
  SendMessageW(edit, WM_KEYDOWN, VK_DELETE, 0);
  windows->TakeInput();
  EXPECT_EQ(bench.windows.immediateText->Text(), "");
}

TEST_F(WorkbenchOnScreen, CarriesTheImmediateWindowsSelection) {
  const HWND edit = EditIn(bench.windows.immediate);
  bench.windows.immediateText->SetText("ab\ncd");
  bench.windows.immediateText->Select(1, 4);
  Show();
  EXPECT_EQ(SelectedUnits(edit), (UnitRange{1, 5}));
  SelectUnits(edit, {4, 6});
  windows->TakeInput();
  EXPECT_EQ(bench.windows.immediateText->SelectedText(), "cd");
}

TEST_F(WorkbenchOnScreen, MaximizesAndMinimizesCodeWindows) {
  const auto window = std::static_pointer_cast<MemoryWindow>(OpenModule().ContainingWindow());
  EXPECT_EQ(windows->StateOf(*window), WindowState::kNormal);
  for (const auto state :
       {WindowState::kMaximized, WindowState::kMinimized, WindowState::kNormal}) {
    windows->SetStateOf(*window, state);
    EXPECT_EQ(windows->StateOf(*window), state);
  }
}

TEST_F(WorkbenchOnScreen, MovesCodeWindows) {
  const auto window = std::static_pointer_cast<MemoryWindow>(OpenModule().ContainingWindow());
  const Bounds bounds = {30, 40, 333, 222};
  windows->SetBoundsOf(*window, bounds);
  EXPECT_EQ(windows->BoundsOf(*window), bounds);
}

TEST_F(WorkbenchOnScreen, LeavesDockedWindowsWhereTheyAre) {
  const Bounds before = windows->BoundsOf(*bench.windows.project);
  windows->SetBoundsOf(*bench.windows.project, {0, 0, 10, 10});
  EXPECT_EQ(windows->BoundsOf(*bench.windows.project), before);
}

TEST_F(WorkbenchOnScreen, BringsTheToolboxWithTheFirstDesigner) {
  EXPECT_FALSE(bench.windows.toolbox->Visible());
  bench.DesignerOf(form);
  Show();
  Show();
  EXPECT_TRUE(bench.windows.toolbox->Visible());
  EXPECT_TRUE(IsWindowVisible(NativeOf(bench.windows.toolbox)));
}

TEST_F(WorkbenchOnScreen, TilesItsWindowsSideBySide) {
  const auto one = std::static_pointer_cast<MemoryWindow>(OpenModule().ContainingWindow());
  const auto two = std::static_pointer_cast<MemoryWindow>(bench.PaneOf(form)->ContainingWindow());
  Show();
  Run(command::kTileVertically);
  const Bounds left = windows->BoundsOf(*one);
  const Bounds right = windows->BoundsOf(*two);
  EXPECT_EQ(left.top, right.top);
  EXPECT_EQ(left.height, right.height);
  EXPECT_NE(left.left, right.left);
}

/// Presses and lets go keys of the real keyboard.
void Press(std::initializer_list<WORD> keys) {
  std::vector<INPUT> inputs;
  const auto add = [&](WORD key, DWORD flags) {
    INPUT input{};
    input.type = INPUT_KEYBOARD;
    input.ki.wVk = key;
    input.ki.dwFlags = flags;
    inputs.push_back(input);
  };
  for (const WORD key : keys) add(key, 0);
  for (const WORD key : keys) add(key, KEYEVENTF_KEYUP);
  SendInput(static_cast<UINT>(inputs.size()), inputs.data(), sizeof(INPUT));
}

TEST_F(WorkbenchOnScreen, TakesKeysOfTheKeyboardWhereTheModelPutTheFocus) {
  OpenModule();
  bench.windows.immediate->SetFocus();
  windows->ShowChanges();
  Press({'7'});
  Pump();
  windows->TakeInput();
  EXPECT_EQ(bench.windows.immediateText->Text(), "7");
}

TEST_F(WorkbenchOnScreen, KnowsTheKeysOfItsCommands) {
  const auto code = OpenModule().ContainingWindow();
  Press({VK_CONTROL, 'G'});
  Pump();
  EXPECT_EQ(bench.vbe.ActiveWindow(), bench.windows.immediate);
  Press({VK_F7});
  Pump();
  EXPECT_EQ(bench.vbe.ActiveWindow(), code);
  Press({VK_CONTROL, 'R'});
  Pump();
  EXPECT_EQ(bench.vbe.ActiveWindow(), bench.windows.project);
  Press({VK_F4});
  Pump();
  EXPECT_EQ(bench.vbe.ActiveWindow(), bench.windows.properties);
}

TEST_F(WorkbenchOnScreen, LeavesTheirKeysToTheWindowsOfOthers) {
  const auto code = OpenModule().ContainingWindow();
  const HWND other = CreateWindowExW(0, L"EDIT", L"An add-in's", WS_OVERLAPPEDWINDOW | WS_VISIBLE,
                                     50, 50, 200, 100, windows->Frame(), nullptr, nullptr, nullptr);
  SetForegroundWindow(other);
  SetFocus(other);
  Press({VK_CONTROL, 'G'});
  Press({VK_CONTROL, VK_F4});
  Pump();
  EXPECT_EQ(bench.vbe.ActiveWindow(), code);
  EXPECT_TRUE(code->Visible());
  DestroyWindow(other);
}

TEST_F(WorkbenchOnScreen, GoesRoundItsWindowsWithControlF6) {
  const auto code = OpenModule().ContainingWindow();
  bench.PaneOf(form);
  Show();
  Press({VK_CONTROL, VK_F6});
  Pump();
  EXPECT_EQ(bench.vbe.ActiveWindow(), code);
}

TEST_F(WorkbenchOnScreen, SavesWithControlS) {
  Type(EditIn(OpenModule().ContainingWindow()), "'");
  Press({VK_CONTROL, 'S'});
  Pump();
  EXPECT_FALSE(module->IsDirty());
}

TEST_F(WorkbenchOnScreen, EndsWithoutTakingTheModelAlong) {
  OpenModule();
  windows.reset();
  module->Code()->ReplaceLine(1, "still here");
  bench.PaneOf(form);
  EXPECT_EQ(module->Code()->Lines(1, 1), "still here");
}

}  // namespace workbench_windows_test
}  // namespace brimwork::bench
