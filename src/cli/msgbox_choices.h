// The names by which the command line calls what a message box can be made of.
#pragma once

#include <string_view>

namespace brimwork {

// Each takes a short name or Visual Basic's own, in any letter case, and returns the index in the
// designer's table. Throws UsageError, with the right names, for a name that is none.

int ButtonsSetNamed(std::string_view name);
int IconNamed(std::string_view name);
int ModalityNamed(std::string_view name);

/// A button's number, or the name of the constant that makes it the default one. buttonsSet: the
/// set that must have it.
int DefaultButtonNamed(std::string_view name, int buttonsSet);

}  // namespace brimwork
