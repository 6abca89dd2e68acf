// Puts an error handler into a procedure.
#pragma once

#include <string_view>

#include "transform/context.h"

namespace brimwork {

/// Stands in the handler text for the procedure's path: project, module and procedure name.
inline constexpr std::string_view kPathPlaceholder = "CURRENTFULLPROCEDUREPATH";

/// With useDefaultHandler, inserts the jump to "ErrorTrap:" at the top of the body (behind leading
/// comments and Dim statements) and, before the closing line, the exit statement, the label and the
/// user's handler text; without, only "On Error Resume Next", unless the body mentions "On Error".
///
/// firstLine, lastLine: the body range; on return firstLine is the line of the jump and lastLine
/// the line before which the handler was inserted. kindWord: "Sub", "Function" or "Property".
/// Nothing happens without a procedure name, without a body, or (for the handler) without a closing
/// line.
void InsertErrorHandling(Context& context, bool useDefaultHandler, int& firstLine, int& lastLine,
                         std::string_view procName, ProcKind procKind, std::string_view kindWord);

}  // namespace brimwork
