// Code as a plain text file.
#pragma once

#include <string>

#include "export/export_tools.h"

namespace brimwork {

/// Writes the editor's text to path, over any file that is there. An empty path is asked of the
/// user and stored. False when there is no path or the file cannot be written.
bool ExportText(const ExportTools& tools, RichTextBox& editor, std::string& path);

}  // namespace brimwork
