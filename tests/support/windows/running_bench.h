// bench.exe as a program of its own, driven through its windows and, to look at what became of it,
// through its object model.
#pragma once

#include <windows.h>

#include <filesystem>
#include <nlohmann/json.hpp>
#include <optional>
#include <string>
#include <vector>

#include "bench/automation/automation_fixture.h"
#include "support/temporary_folder.h"

namespace brimwork {

class RunningBench {
 public:
  /// Starts it on a copy of the sample project and waits until that is open. Throws
  /// std::runtime_error when it does not come up.
  RunningBench();
  /// Ends the program if it has not ended.
  ~RunningBench();
  RunningBench(const RunningBench&) = delete;
  RunningBench& operator=(const RunningBench&) = delete;

  bench::Client Vbe() const { return bench::Client(vbe_); }
  HWND MainWindow() const { return mainWindow_; }
  DWORD ProcessId() const { return process_.dwProcessId; }
  const std::filesystem::path& Folder() const { return folder_.Path(); }

  /// The component's code pane, made the active one.
  bench::Client OpenModule(const std::string& component);

  /// Its top-level windows that are shown, without the main window and tool tips.
  std::vector<HWND> OtherWindows() const;
  /// The one of them with this title, null when it does not come within ten seconds.
  HWND WaitForWindow(const std::string& title) const;
  bool WaitUntilGone(HWND window) const;

  /// Connects or disconnects the add-in, as the Add-In Manager does.
  void Connect(bool connects);

  /// Closes the main window without saving and gives the report on the add-ins. Throws
  /// std::runtime_error when the program does not end.
  nlohmann::json End();

 private:
  void Start();
  void FindVbe();
  void WaitForProject();
  /// False when it does not end within ten seconds.
  bool Close();
  void AnswerQuestions();

  TemporaryFolder folder_;
  PROCESS_INFORMATION process_{};
  win32::ComPointer<IDispatch> vbe_;
  HWND mainWindow_ = nullptr;
};

/// Whether a window of any program has this class, in any letter case.
bool IsOfClass(HWND window, const std::string& windowClass);

/// The text of a window of any program.
std::string TitleOf(HWND window);

/// The first child of a window, however deep, with this class and, where it is not "", this text;
/// access keys set aside.
HWND ChildOf(HWND window, const std::string& windowClass, const std::string& text = "");

}  // namespace brimwork
