// Text on its way into a rich edit control and out of it, as one piece.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace brimwork::windows {

/// format: SF_... and SFF_... False when the control could not take all of it.
bool StreamIn(HWND control, WPARAM format, std::string_view bytes);

/// Raises error 5 when the control could not give all of it.
std::string StreamOut(HWND control, WPARAM format);

}  // namespace brimwork::windows
