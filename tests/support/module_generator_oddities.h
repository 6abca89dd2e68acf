// The unusual parts of a generated module: code that is half-written, hand-edited, or legal but
// seldom seen.
#pragma once

#include "support/module_generator_procedures.h"

namespace brimwork::module_generator {

void WriteOddDeclarations(Writer& writer);

/// One unusual procedure, or a few that belong together.
void WriteOddProcedure(Writer& writer, Procedures& procedures);

/// What stands behind the last procedure.
void WriteOddEnding(Writer& writer, Procedures& procedures);

}  // namespace brimwork::module_generator
