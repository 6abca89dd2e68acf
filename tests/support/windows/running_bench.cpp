#include "support/windows/running_bench.h"

#include <objbase.h>

#include <stdexcept>
#include <utility>

#include "bench/automation/application_class.h"
#include "support/windows/program.h"
#include "support/windows/waiting.h"
#include "win32/wide_text.h"

namespace brimwork {
namespace {

namespace fs = std::filesystem;
using bench::Client;
using win32::ComPointer;
using win32::Variant;

constexpr const char* kAddIn = "Brimwork.Connect";
constexpr const char* kReport = "report.json";

std::wstring Quoted(const fs::path& path) {
  return L'"' + fs::absolute(path).make_preferred().wstring() + L'"';
}

struct WindowSearch {
  DWORD process;
  std::vector<HWND> found;
};

BOOL CALLBACK NoteShown(HWND window, LPARAM data) {
  auto& search = *reinterpret_cast<WindowSearch*>(data);
  DWORD process = 0;
  GetWindowThreadProcessId(window, &process);
  const bool isIt = process == search.process && IsWindowVisible(window) &&
                    !IsOfClass(window, "tooltips_class32");
  if (isIt) search.found.push_back(window);
  return TRUE;
}

struct ChildSearch {
  std::string windowClass;
  std::string text;
  HWND found;
};

std::string WithoutAccessKeys(std::string text) {
  std::erase(text, '&');
  return text;
}

BOOL CALLBACK NoteChild(HWND window, LPARAM data) {
  auto& search = *reinterpret_cast<ChildSearch*>(data);
  const bool isIt = IsOfClass(window, search.windowClass) && IsWindowVisible(window) &&
                    (search.text.empty() || WithoutAccessKeys(TitleOf(window)) == search.text);
  if (isIt) search.found = window;
  return isIt ? FALSE : TRUE;
}

}  // namespace

bool IsOfClass(HWND window, const std::string& windowClass) {
  wchar_t name[64] = {};
  GetClassNameW(window, name, 64);
  return lstrcmpiW(name, win32::Wide(windowClass).c_str()) == 0;
}

std::string TitleOf(HWND window) {
  std::wstring text(1024, L'\0');
  DWORD_PTR length = 0;
  SendMessageTimeoutW(window, WM_GETTEXT, text.size(), reinterpret_cast<LPARAM>(text.data()),
                      SMTO_ABORTIFHUNG, 2000, &length);
  text.resize(length);
  return win32::Narrow(text);
}

HWND ChildOf(HWND window, const std::string& windowClass, const std::string& text) {
  ChildSearch search{windowClass, text, nullptr};
  EnumChildWindows(window, NoteChild, reinterpret_cast<LPARAM>(&search));
  return search.found;
}

RunningBench::RunningBench() {
  CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
  fs::copy(fs::path(BRIMWORK_SOURCE_DIR) / "samples", Folder() / "samples",
           fs::copy_options::recursive);
  Start();
  FindVbe();
  WaitForProject();
  mainWindow_ =
      reinterpret_cast<HWND>(static_cast<INT_PTR>(Vbe().Object(L"MainWindow").Number(L"HWnd")));
  SetForegroundWindow(mainWindow_);
}

RunningBench::~RunningBench() {
  if (!Close()) TerminateProcess(process_.hProcess, 1);
  WaitForSingleObject(process_.hProcess, 5000);
  CloseHandle(process_.hThread);
  CloseHandle(process_.hProcess);
  CoUninitialize();
}

void RunningBench::Start() {
  std::wstring line = Quoted(BRIMWORK_BENCH) + L" --report " + Quoted(folder_ / kReport) + L' ' +
                      Quoted(Folder() / "samples" / "WorkshopDesk.vbp");
  STARTUPINFOW start{};
  start.cb = sizeof start;
  if (!CreateProcessW(nullptr, line.data(), nullptr, nullptr, FALSE, 0, nullptr, nullptr, &start,
                      &process_)) {
    throw std::runtime_error("the bench does not start: " + win32::SystemWords(GetLastError()));
  }
}

void RunningBench::FindVbe() {
  HRESULT found = E_FAIL;
  const bool isThere = WaitUntil([&] {
    found = CoCreateInstance(bench::kApplicationClass, nullptr, CLSCTX_LOCAL_SERVER, IID_IDispatch,
                             vbe_.ReceiveAny());
    return SUCCEEDED(found);
  });
  if (!isThere) {
    throw std::runtime_error("the bench offers no object model: " +
                             win32::SystemWords(static_cast<DWORD>(found)));
  }
}

void RunningBench::WaitForProject() {
  const bool isOpen = WaitUntil([&] { return Vbe().Object(L"VBProjects").Number(L"Count") == 1; });
  if (!isOpen) throw std::runtime_error("the bench does not open the project");
}

Client RunningBench::OpenModule(const std::string& component) {
  const Client components = Vbe().Object(L"ActiveVBProject").Object(L"VBComponents");
  const Client pane =
      components.Object(L"Item", {Variant(component)}).Object(L"CodeModule").Object(L"CodePane");
  pane.Call(L"Show");
  pane.Object(L"Window").Call(L"SetFocus");
  return pane;
}

std::vector<HWND> RunningBench::OtherWindows() const {
  WindowSearch search{ProcessId(), {}};
  EnumWindows(NoteShown, reinterpret_cast<LPARAM>(&search));
  std::erase(search.found, mainWindow_);
  return search.found;
}

HWND RunningBench::WaitForWindow(const std::string& title) const {
  HWND found = nullptr;
  WaitUntil([&] {
    for (const HWND window : OtherWindows()) {
      if (TitleOf(window) == title) found = window;
    }
    return found != nullptr;
  });
  return found;
}

bool RunningBench::WaitUntilGone(HWND window) const {
  return WaitUntil([&] { return !IsWindow(window) || !IsWindowVisible(window); });
}

void RunningBench::Connect(bool connects) {
  Vbe().Object(L"Addins").Object(L"Item", {Variant(kAddIn)}).Put(L"Connect", Variant(connects));
}

nlohmann::json RunningBench::End() {
  if (!Close()) throw std::runtime_error("the bench does not end");
  return nlohmann::json::parse(ReadBytes(folder_ / kReport));
}

bool RunningBench::Close() {
  vbe_ = nullptr;
  PostMessageW(mainWindow_, WM_CLOSE, 0, 0);
  return WaitUntil([&] {
    AnswerQuestions();
    return WaitForSingleObject(process_.hProcess, 0) == WAIT_OBJECT_0;
  });
}

/// Changes to the projects are not saved.
void RunningBench::AnswerQuestions() {
  for (const HWND window : OtherWindows()) {
    if (TitleOf(window) == "Workbench") PostMessageW(window, WM_COMMAND, IDNO, 0);
  }
}

}  // namespace brimwork
