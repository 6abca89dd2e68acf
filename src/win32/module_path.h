// Where a loaded program or library lies.
#pragma once

#include <windows.h>

#include <string>

namespace brimwork::win32 {

/// The path of its file; null is the running program. Throws RunTimeError 5 with the system's words
/// when the system does not tell.
std::string ModulePath(HMODULE module);

}  // namespace brimwork::win32
