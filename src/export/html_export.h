// Code as a web page: one block of preformatted text with keywords in navy and comments in green.
#pragma once

#include "export/export_tools.h"
#include "export/keyword_list.h"

namespace brimwork {

/// Asks where to save, and writes the editor's text there. A character that the code page has not
/// becomes a numeric reference. False when the user cancelled or the file cannot be written.
bool ExportHtml(const ExportTools& tools, RichTextBox& editor, KeywordList& keywords);

}  // namespace brimwork
