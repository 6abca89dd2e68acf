// Windows of the bench: those of its object model, and the dialogs that commands show.
#pragma once

#include <windows.h>

#include <string>
#include <vector>

#include "support/windows/running_bench.h"

namespace brimwork {

/// Those that the object model lists and shows, each as "caption|type".
std::vector<std::string> ShownWindows(const RunningBench& bench);
/// The names of the command bars that are shown.
std::vector<std::string> ShownBars(const RunningBench& bench);

/// How many code windows and designers are open.
int OpenDocuments(const RunningBench& bench);
/// Closes all of them, so that there is no code source.
void CloseDocuments(const RunningBench& bench);

/// Whether what is typed comes into this window.
bool HasKeyboard(HWND window);

/// A dialog of a command's, once it has the keyboard; null when none comes. Its title is one of its
/// own.
HWND WaitForDialog(const RunningBench& bench, const std::string& title);

/// What a message box says; "" for null.
std::string MessageIn(HWND box);

/// Waits until the bench shows its main window alone. False when others stay.
bool WaitUntilAlone(const RunningBench& bench);

}  // namespace brimwork
