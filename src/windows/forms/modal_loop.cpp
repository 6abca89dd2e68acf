#include "windows/forms/modal_loop.h"

namespace brimwork::windows {
namespace {

BOOL CALLBACK CollectUsableWindow(HWND window, LPARAM windows) noexcept {
  if (IsWindowVisible(window) && IsWindowEnabled(window)) {
    reinterpret_cast<std::vector<HWND>*>(windows)->push_back(window);
  }
  return TRUE;
}

}  // namespace

OtherWindowsDisabled::OtherWindowsDisabled(HWND modal) {
  EnumThreadWindows(GetCurrentThreadId(), CollectUsableWindow, reinterpret_cast<LPARAM>(&windows_));
  std::erase(windows_, modal);
  for (HWND window : windows_) EnableWindow(window, FALSE);
}

OtherWindowsDisabled::~OtherWindowsDisabled() {
  for (HWND window : windows_) EnableWindow(window, TRUE);
}

bool HandleMessagesWhile(const std::function<bool()>& goesOn) {
  MSG message;
  while (goesOn()) {
    const BOOL got = GetMessageW(&message, nullptr, 0, 0);
    if (got < 0) return false;
    if (got == 0) {
      PostQuitMessage(static_cast<int>(message.wParam));
      return false;
    }
    TranslateMessage(&message);
    DispatchMessageW(&message);
  }
  return true;
}

void WakeMessageLoop() { PostThreadMessageW(GetCurrentThreadId(), WM_NULL, 0, 0); }

}  // namespace brimwork::windows
