// Pictures of the main window.
#pragma once

#include <windows.h>

#include <filesystem>

namespace brimwork::bench {

/// Saves what the screen shows at the window's place as PNG. Throws RunTimeError when that fails.
void SaveWindowPicture(HWND window, const std::filesystem::path& file);

/// Answers messages until there are none for a while, so that everything is drawn.
void PumpUntilQuiet();

}  // namespace brimwork::bench
