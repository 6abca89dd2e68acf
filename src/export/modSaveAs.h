// The dialog that asks where exported code shall be saved.
#pragma once

#include <string>
#include <string_view>

#include "environment/environment.h"

namespace brimwork {

/// The path the user chose, "" when the dialog was cancelled. defaultExtension ("txt", "rtf",
/// "htm", "*.*") also chooses the filter; any other has none.
std::string ShowSaveDialog(Environment& environment, std::string_view initialFolder,
                           std::string_view title, WindowHandle owner,
                           std::string_view defaultExtension);

/// The same as all exporters ask it.
std::string AskWhereToSave(Environment& environment, WindowHandle owner,
                           std::string_view defaultExtension);

/// The file's name without its folder.
std::string FileNameOf(std::string_view path);

}  // namespace brimwork
