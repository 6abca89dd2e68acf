// The system's dialogs for files.
#pragma once

#include <windows.h>

#include <filesystem>
#include <optional>

namespace brimwork::bench {

/// The file that the user chose; nothing when the dialog was cancelled. folder: where it begins.
std::optional<std::filesystem::path> AskForProject(HWND owner, const std::filesystem::path& folder);

}  // namespace brimwork::bench
