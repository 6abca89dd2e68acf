// Numeric line labels in front of statements, so that run-time error reports can name the line.
#pragma once

#include "transform/context.h"

namespace brimwork {

/// Puts the module line number, ":" and blanks up to 7 characters in front of the lines firstLine
/// to lastLine; lines that take no label get 7 blanks, the handler label "ErrorTrap:" nothing.
void AddLineNumbers(Context& context, int firstLine, int lastLine);

/// Takes numeric labels at column 1 away. A line without a label loses the blanks around it; a line
/// whose first colon belongs to something else stays as it is.
void RemoveLineNumbers(Context& context, int firstLine, int lastLine);

}  // namespace brimwork
