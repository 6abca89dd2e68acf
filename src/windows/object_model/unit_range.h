// A stretch of a module's text between the add-in and the environment.
#pragma once

#include "environment/code_module.h"

namespace brimwork::windows {

/// As the environment takes and gives it by reference: columns count units of UTF-16.
struct UnitRange {
  long startLine = 1;
  long startColumn = 1;
  long endLine = 1;
  long endColumn = 1;
};

/// Lines are numbers of the module's. A column below 2 stays what it is.
UnitRange UnitsOf(CodeModule& module, const Selection& range);
Selection CharactersOf(CodeModule& module, const UnitRange& range);

}  // namespace brimwork::windows
