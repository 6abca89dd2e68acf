#include "windows/end_to_end/form_use.h"

#include <commctrl.h>

#include <algorithm>
#include <cstdio>
#include <stdexcept>

#include "support/windows/user.h"
#include "support/windows/waiting.h"
#include "win32/wide_text.h"
#include "windows/end_to_end/bench_windows.h"
#include "windows/end_to_end/entry_clicks.h"

namespace brimwork {

const CatalogueEntry& EntryOf(int handler) {
  const auto entries = Catalogue();
  const auto found = std::ranges::find(entries, handler, &CatalogueEntry::handler);
  if (found == entries.end()) throw std::out_of_range("no entry has the handler");
  return *found;
}

namespace {

bool IsOfClass(HWND window, const wchar_t* windowClass) {
  wchar_t name[64] = {};
  GetClassNameW(window, name, 64);
  return lstrcmpiW(name, windowClass) == 0;
}

}  // namespace

HWND OpenForm(const RunningBench& bench, int handler, const std::string& title) {
  GiveKeyboardTo(bench.MainWindow());
  ClickEntry(bench, EntryOf(handler));
  return WaitForKeyboardIn(bench, title);
}

HWND WaitForKeyboardIn(const RunningBench& bench, const std::string& title) {
  const HWND window = bench.WaitForWindow(title);
  if (window == nullptr) throw std::runtime_error("there is no window \"" + title + '"');
  if (WaitUntil([&] { return HasKeyboard(window); })) return window;
  // Once in many runs on a busy machine it stays behind; its user would click on it then.
  std::printf("\"%s\" had to be brought to the front\n", title.c_str());
  GiveKeyboardTo(window);
  return window;
}

// A window that comes to the front twice would close the menu that is opened in between, so it is
// asked to only when it is not there, and until it has done so.
void GiveKeyboardTo(HWND window) {
  if (!HasKeyboard(window)) SetForegroundWindow(window);
  const bool isReady = WaitUntil([&] { return HasKeyboard(window); });
  SendMessageW(window, WM_NULL, 0, 0);
  if (!isReady) throw std::runtime_error("\"" + TitleOf(window) + "\" does not take the keyboard");
}

std::vector<HWND> FormsIn(const RunningBench& bench) {
  std::vector<HWND> windows = bench.OtherWindows();
  std::erase_if(windows, [](HWND window) { return IsOfClass(window, TOOLTIPS_CLASSW); });
  return windows;
}

HWND KeyboardWindow() {
  GUITHREADINFO info{};
  info.cbSize = sizeof info;
  const DWORD thread = GetWindowThreadProcessId(GetForegroundWindow(), nullptr);
  return GetGUIThreadInfo(thread, &info) ? info.hwndFocus : nullptr;
}

void PressAccessKey(char key) { PressKey(static_cast<WORD>(key), {VK_MENU}); }

void TypeOver(std::string_view text) {
  PressKey('A', {VK_CONTROL});
  TypeText(text);
}

void ExpectText(HWND window, const std::string& text) {
  WaitUntil([&] { return TitleOf(window) == text; });
  EXPECT_EQ(TitleOf(window), text);
}

std::string ItemOf(HWND list, int index) {
  const auto item = static_cast<WPARAM>(index);
  const LRESULT length = SendMessageW(list, LB_GETTEXTLEN, item, 0);
  if (length == LB_ERR) return "";
  std::wstring text(static_cast<std::size_t>(length) + 1, L'\0');
  const LRESULT got = SendMessageW(list, LB_GETTEXT, item, reinterpret_cast<LPARAM>(text.data()));
  text.resize(got == LB_ERR ? 0 : static_cast<std::size_t>(got));
  return win32::Narrow(text);
}

}  // namespace brimwork
