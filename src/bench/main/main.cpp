// The stand-in environment as a program.
#include <windows.h>

#include <commctrl.h>
#include <ole2.h>
#include <shellapi.h>

#include <exception>
#include <string>
#include <vector>

#include "bench/main/arguments.h"
#include "bench/model/workbench.h"
#include "bench/screen/faults.h"
#include "bench/screen/screenshot.h"
#include "bench/screen/workbench_windows.h"

namespace brimwork::bench {
namespace {

constexpr int kRefused = 2;
constexpr int kFailed = 1;

std::vector<std::wstring> Words() {
  int count = 0;
  LPWSTR* words = CommandLineToArgvW(GetCommandLineW(), &count);
  std::vector<std::wstring> all(words + 1, words + count);
  LocalFree(words);
  return all;
}

int RunMessageLoop(WorkbenchWindows& windows) {
  MSG message{};
  while (GetMessageW(&message, nullptr, 0, 0) > 0) {
    if (windows.TakesKey(message)) continue;
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return static_cast<int>(message.wParam);
}

int Run(const Arguments& arguments) {
  Workbench bench;
  WorkbenchWindows windows(bench);
  windows.Show();
  if (!arguments.project.empty()) windows.Open(arguments.project);
  if (!arguments.screenshot) return RunMessageLoop(windows);
  PumpUntilQuiet();
  SaveWindowPicture(windows.Frame(), *arguments.screenshot);
  return 0;
}

int Main() {
  try {
    const Arguments arguments = ParseArguments(Words());
    OleInitialize(nullptr);
    InitCommonControls();
    const int result = Run(arguments);
    OleUninitialize();
    return result;
  } catch (const ArgumentError&) {
    ReportFault(nullptr);
    return kRefused;
  } catch (...) {
    ReportFault(nullptr);
    return kFailed;
  }
}

}  // namespace
}  // namespace brimwork::bench

int WINAPI wWinMain(HINSTANCE, HINSTANCE, PWSTR, int) { return brimwork::bench::Main(); }
