// Reads rich text (RTF) as other programs write it: its text, its fonts and its colours.
#pragma once

#include <string_view>

#include "memory/rich_text.h"

namespace brimwork {

/// What a document has beside that (paragraph styles, pictures, notes, headers) is passed over.
/// The last paragraph's end is no part of the text. Raises error 32000 for what is no rich text or
/// is cut off, and error 6 for more than a control can hold.
RichText ReadRtf(std::string_view document);

}  // namespace brimwork
