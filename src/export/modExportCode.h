// The export commands: the module's code, or the selected code, into a file.
#pragma once

#include <string>
#include <string_view>

#include "export/export_tools.h"
#include "export/keyword_list.h"

namespace brimwork {

namespace export_format {
inline constexpr std::string_view kText = "Text";
inline constexpr std::string_view kRtf = "Rtf";
inline constexpr std::string_view kHtm = "Htm";
inline constexpr std::string_view kQuickExport = "QuickExport";
}  // namespace export_format

enum class ExportKind { kText = 0, kRtf = 1, kHtml = 2 };

/// Quick Export's file in the folder of the setting.
inline constexpr std::string_view kQuickExportFile = "\\Exported Code.txt";

/// format: export_format::k...; any other exports nothing. Without a code source the user is told
/// and nothing happens; so is an error, but for the errors of the writers.
void ExportCode(const ExportTools& tools, std::string_view format, bool selectedOnly);

/// work: the working copy that rich text needs, null for the other kinds. False when nothing was
/// written.
bool ExportToFormat(const ExportTools& tools, RichTextBox& editor, ExportKind kind,
                    RichTextBox* work);

/// Writes the editor's text to path without asking. False when it could not be written.
bool QuickExportToFile(const ExportTools& tools, RichTextBox& editor, std::string path);

/// The keyword list of the settings, "" when none is stored.
KeywordList LoadKeywordList(Environment& environment);

}  // namespace brimwork
