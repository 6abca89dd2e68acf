#include "windows/desktop/thread_messages.h"

namespace brimwork::windows {
namespace {

bool IsKeyMessage(const MSG& message) {
  return message.message == WM_KEYDOWN || message.message == WM_KEYUP ||
         message.message == WM_SYSKEYDOWN || message.message == WM_SYSKEYUP;
}

}  // namespace

void ThreadMessages::DoEvents() {
  MSG message;
  while (HandleNext(message)) {
  }
}

void ThreadMessages::HandleKeys(int count) {
  constexpr DWORD kPatience = 1000;  // milliseconds
  constexpr DWORD kPause = 10;
  DWORD latest = GetTickCount();
  while (count > 0 && GetTickCount() - latest < kPatience) {
    MSG message;
    if (!HandleNext(message)) {
      MsgWaitForMultipleObjects(0, nullptr, FALSE, kPause, QS_ALLINPUT);
    } else if (IsKeyMessage(message)) {
      --count;
      latest = GetTickCount();
    }
  }
  DoEvents();
}

bool ThreadMessages::HandleNext(MSG& message) {
  if (!PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) return false;
  if (message.message == WM_QUIT) {
    PostQuitMessage(static_cast<int>(message.wParam));
    return false;
  }
  if (translate && translate(message)) return true;
  TranslateMessage(&message);
  DispatchMessageW(&message);
  return true;
}

}  // namespace brimwork::windows
