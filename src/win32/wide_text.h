// Text between the program, which keeps UTF-8, and the system's calls, which take UTF-16.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace brimwork::win32 {

/// Damaged UTF-8 gives U+FFFD in its place.
std::wstring Wide(std::string_view text);

/// Half of a pair without the other gives U+FFFD in its place.
std::string Narrow(std::wstring_view text);

/// The system's words for an error of its calls, or an HRESULT, without the line end behind them.
std::string SystemWords(DWORD error);

}  // namespace brimwork::win32
