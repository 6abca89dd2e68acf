// Code as a rich text file: Courier New in 10 points, keywords in navy, comments in green.
#pragma once

#include "export/export_tools.h"
#include "export/keyword_list.h"

namespace brimwork {

/// Asks where to save, colours the editor's text in the control work, and writes it. Keywords take
/// the spelling of the list. False when the user cancelled, when the file cannot be written, and
/// when a quote has no further quote anywhere behind it.
bool ExportRtf(const ExportTools& tools, RichTextBox& editor, RichTextBox& work,
               KeywordList& keywords);

}  // namespace brimwork
