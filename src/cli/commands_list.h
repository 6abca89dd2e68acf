// brimwork commands: the catalogue as a table.
#pragma once

#include <string>

namespace brimwork {

/// One line for each caption: the caption, what it works on, and its short command name.
std::string CommandsTable();

}  // namespace brimwork
