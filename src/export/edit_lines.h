// The lines of a rich text control around its caret.
#pragma once

#include <string>

#include "environment/rich_text_box.h"

namespace brimwork {

/// At least 1.
int GetLineCount(RichTextBox& editor);

/// The position, in characters from 0, at which the caret's line starts.
int GetCurrentLineStart(RichTextBox& editor);

/// The text of the caret's line without its line end.
std::string GetCurrentLine(RichTextBox& editor);

}  // namespace brimwork
