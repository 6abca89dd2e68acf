// The border between the program and the system: no exception crosses it.
#pragma once

#include <windows.h>

#include <string>

namespace brimwork::bench {

/// Says in a message box what the exception that is being handled is about.
void ReportFault(HWND owner) noexcept;

/// A message box with a warning.
void Warn(HWND owner, const std::string& text);

/// Raises RunTimeError with the system's words when succeeded is false; what: the thing that
/// failed.
void CheckSystem(bool succeeded, const char* what);

}  // namespace brimwork::bench
