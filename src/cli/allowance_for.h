// What each command may add to a module and take from it.
#pragma once

#include <string_view>

#include "cli/allowance.h"
#include "environment/environment.h"

namespace brimwork {

/// The allowance of a command with the settings, the clock and the names of its environment.
Allowance AllowanceFor(std::string_view caption, Environment& environment);

}  // namespace brimwork
