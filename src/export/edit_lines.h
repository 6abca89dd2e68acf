// The lines of a rich text control around its caret.
#pragma once

#include <string>

#include "environment/rich_text_box.h"

namespace brimwork {

/// At least 1.
int GetLineCount(RichTextBox& editor);

/// The position, in characters from 0, at which the caret's line starts.
int GetCurrentLineStart(RichTextBox& editor);

/// Puts the text of the caret's line, without its line end, into line.
void GetCurrentLine(RichTextBox& editor, std::string& line);

}  // namespace brimwork
