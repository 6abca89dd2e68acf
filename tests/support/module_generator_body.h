// Statements and nested blocks of a generated procedure.
#pragma once

#include "support/module_generator_writer.h"

namespace brimwork::module_generator {

/// Writes a body of at least budget lines, blocks nested in it.
void WriteBody(Writer& writer, int budget);

}  // namespace brimwork::module_generator
