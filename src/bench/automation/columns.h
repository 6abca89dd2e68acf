// Columns of the object model, which count UTF-16 units as its strings do, and of the workbench,
// which count characters.
#pragma once

#include "environment/code_module.h"

namespace brimwork::bench {

// Both keep what means something else than a place: a column of -1, a line that is not there. A
// column within a pair of units is drawn back to the start of its character.

Selection InUnits(CodeModule& module, const Selection& characters);
Selection InCharacters(CodeModule& module, const Selection& units);

}  // namespace brimwork::bench
