// Windows of the seam as windows of the system, and back.
#pragma once

#include <windows.h>

#include "environment/desktop.h"

namespace brimwork::windows {

inline HWND AsHwnd(WindowHandle window) { return reinterpret_cast<HWND>(window); }
inline WindowHandle AsHandle(HWND window) { return reinterpret_cast<WindowHandle>(window); }

}  // namespace brimwork::windows
