#include "windows/end_to_end/bench_windows.h"

#include "environment/window.h"
#include "support/windows/waiting.h"

namespace brimwork {
namespace {

using bench::Client;
using win32::Variant;

std::vector<Client> ItemsOf(const Client& collection) {
  std::vector<Client> items;
  const long count = collection.Number(L"Count");
  for (long i = 1; i <= count; ++i) items.push_back(collection.Object(L"Item", {Variant(i)}));
  return items;
}

bool IsShown(const Client& object) { return object.Call(L"Visible").value.ToBool(); }

std::vector<Client> Documents(const RunningBench& bench) {
  std::vector<Client> documents;
  for (const Client& window : ItemsOf(bench.Vbe().Object(L"Windows"))) {
    const long type = window.Number(L"Type");
    if (type == window_type::kCodeWindow || type == window_type::kDesigner) {
      documents.push_back(window);
    }
  }
  return documents;
}

BOOL CALLBACK NoteText(HWND child, LPARAM data) {
  if (IsOfClass(child, "Static")) *reinterpret_cast<std::string*>(data) += TitleOf(child);
  return TRUE;
}

}  // namespace

std::vector<std::string> ShownWindows(const RunningBench& bench) {
  std::vector<std::string> shown;
  for (const Client& window : ItemsOf(bench.Vbe().Object(L"Windows"))) {
    if (!IsShown(window)) continue;
    shown.push_back(window.Text(L"Caption") + '|' + std::to_string(window.Number(L"Type")));
  }
  return shown;
}

std::vector<std::string> ShownBars(const RunningBench& bench) {
  std::vector<std::string> shown;
  for (const Client& bar : ItemsOf(bench.Vbe().Object(L"CommandBars"))) {
    if (IsShown(bar)) shown.push_back(bar.Text(L"Name"));
  }
  return shown;
}

int OpenDocuments(const RunningBench& bench) { return static_cast<int>(Documents(bench).size()); }

void CloseDocuments(const RunningBench& bench) {
  for (const Client& document : Documents(bench)) document.Call(L"Close");
}

bool HasKeyboard(HWND window) {
  GUITHREADINFO thread{};
  thread.cbSize = sizeof thread;
  GetGUIThreadInfo(GetWindowThreadProcessId(window, nullptr), &thread);
  return GetForegroundWindow() == window && thread.hwndFocus != nullptr &&
         (thread.hwndFocus == window || IsChild(window, thread.hwndFocus));
}

HWND WaitForDialog(const RunningBench& bench, const std::string& title) {
  const HWND dialog = bench.WaitForWindow(title);
  return WaitUntil([&] { return HasKeyboard(dialog); }) ? dialog : nullptr;
}

std::string MessageIn(HWND box) {
  std::string text;
  if (box != nullptr) EnumChildWindows(box, NoteText, reinterpret_cast<LPARAM>(&text));
  return text;
}

bool WaitUntilAlone(const RunningBench& bench) {
  return WaitUntil([&] { return bench.OtherWindows().empty(); });
}

}  // namespace brimwork
