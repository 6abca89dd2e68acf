// Re-indents a range of lines by block structure.
#pragma once

#include "transform/context.h"

namespace brimwork {

/// Rewrites the module lines firstLine to lastLine: each gets one indent unit of blanks (the
/// environment's tab width) and one more for each block open around it. Raises error 5 with the
/// line when closers without openers would make an indent negative; the lines above stay rewritten.
void IndentCode(Context& context, int firstLine, int lastLine);

}  // namespace brimwork
