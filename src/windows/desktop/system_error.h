// Failed calls of the system as run-time errors.
#pragma once

#include <windows.h>

#include <string_view>

namespace brimwork::windows {

/// Raises error 5 with the call's name and the system's words for the error.
[[noreturn]] void RaiseSystemError(std::string_view call, DWORD error = GetLastError());

}  // namespace brimwork::windows
