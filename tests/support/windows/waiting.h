// Waits for what another program does.
#pragma once

#include <windows.h>

#include <functional>

namespace brimwork {

/// Asks until the answer is true, and handles this thread's messages meanwhile. False when it is
/// not within ten seconds.
inline bool WaitUntil(const std::function<bool()>& isSo) {
  constexpr DWORD kPatience = 10'000;
  constexpr DWORD kPause = 10;
  const DWORD start = GetTickCount();
  while (!isSo()) {
    if (GetTickCount() - start > kPatience) return false;
    MSG message;
    while (PeekMessageW(&message, nullptr, 0, 0, PM_REMOVE)) DispatchMessageW(&message);
    Sleep(kPause);
  }
  return true;
}

}  // namespace brimwork
