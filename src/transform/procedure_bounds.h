// Where a procedure's declaration, body and closing line are.
#pragma once

#include <optional>

#include "environment/code_module.h"
#include "transform/context.h"

namespace brimwork {

/// Fills context.procedure for the procedure that holds line and returns the first line behind it.
/// Outside every procedure only the name becomes "": the other fields keep what the query before
/// left there, as long as it was in the same module, and the result is the line behind that
/// procedure. A failing query empties the record before the error goes on.
int GetProcedureBounds(Context& context, CodeModule& module, int line);

/// Where a procedure ends.
struct ClosingLine {
  int line = 0;          // the one with the procedure's own End Sub, End Function or End Property
  int statementEnd = 0;  // the last line of the statement that it is in
};

/// Nothing when the procedure has no closing line, in any letter case. firstLine is the line of its
/// declaration, lastLine its last line: environments count what stands below the module's last
/// procedure to it, too, which is comments, blank lines and conditional compilation.
std::optional<ClosingLine> FindClosing(CodeModule& module, int firstLine, int lastLine);
std::optional<int> FindClosingLine(CodeModule& module, int firstLine, int lastLine);

/// The first line of the statement or comment that the line belongs to, not above firstLine.
int StatementStart(CodeModule& module, int line, int firstLine);

}  // namespace brimwork
