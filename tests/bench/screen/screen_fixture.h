// A workbench on the screen with a project of two components, and a user who types and clicks.
#pragma once

#include <windows.h>

#include <commctrl.h>
#include <gtest/gtest.h>

#include <memory>
#include <string>
#include <string_view>

#include "bench/screen/edit_control.h"
#include "bench/screen/workbench_windows.h"
#include "support/temporary_folder.h"
#include "win32/wide_text.h"

namespace brimwork::bench {

class ScreenFixture : public testing::Test {
 protected:
  ScreenFixture() {
    WriteBytes(folder / "a.bas",
               "Attribute VB_Name = \"modA\"\r\nSub One()\r\n    x = 1\r\nEnd Sub\r\n"
               "Sub Two()\r\nEnd Sub\r\n");
    WriteBytes(folder / "f.frm",
               "Attribute VB_Name = \"frmF\"\r\nPrivate Sub Form_Load()\r\nEnd Sub\r\n");
    WriteBytes(folder / "P.vbp", "Type=Exe\r\nForm=f.frm\r\nModule=modA; a.bas\r\nName=\"P\"\r\n");
    InitCommonControls();
    windows = std::make_unique<WorkbenchWindows>(bench);
    windows->Show();
    bench.Open(folder / "P.vbp");
    module = bench.Projects()[0]->Components()[1];
    form = bench.Projects()[0]->Components()[0];
    Show();
  }

  /// What a call from outside ends with, and what comes of it on the screen.
  void Show() {
    windows->ShowChanges();
    windows->Settle();
  }

  /// Answers all messages that are there, as the program's loop does.
  void Pump() {
    MSG message{};
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) {
      if (windows->TakesKey(message)) continue;
      TranslateMessage(&message);
      DispatchMessageW(&message);
    }
  }

  /// Opens the module's code window.
  MemoryCodePane& OpenModule() {
    const auto pane = bench.PaneOf(module);
    Show();
    return *pane;
  }

  HWND NativeOf(const std::shared_ptr<Window>& window) {
    return reinterpret_cast<HWND>(windows->HandleOf(static_cast<const MemoryWindow&>(*window)));
  }

  /// The edit control in a code window or in the Immediate window.
  HWND EditIn(const std::shared_ptr<Window>& window) {
    return FindWindowExW(NativeOf(window), nullptr, L"EDIT", nullptr);
  }

  static void Type(HWND edit, std::string_view text) {
    for (const wchar_t unit : win32::Wide(text)) SendMessageW(edit, WM_CHAR, unit, 0);
  }

  static std::string Shown(HWND edit) { return win32::Narrow(TextOfControl(edit)); }

  /// Runs one of the environment's commands as a click does.
  void Run(int command) {
    windows->TakeInput();
    windows->Settle();
    const auto controls = bench.vbe.commandBars.ControlsOf(command);
    ASSERT_FALSE(controls.empty()) << command;
    controls.front()->Execute();
    Show();
  }

  TemporaryFolder folder;
  Workbench bench;
  std::unique_ptr<WorkbenchWindows> windows;
  std::shared_ptr<WorkComponent> module;
  std::shared_ptr<WorkComponent> form;
};

}  // namespace brimwork::bench
