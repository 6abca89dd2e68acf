// What the index page of an export says about the files that it was made from.
#pragma once

#include <string>

#include "cli/html_index.h"
#include "cli/inputs.h"
#include "cli/run_options.h"

namespace brimwork {

/// The name of the project, the group or the folder that was named; of several things a common one.
std::string IndexTitle(const RunOptions& options, const Inputs& inputs);

/// A source file's path from the folder, or from the project, that was named.
std::string PathInIndex(const RunOptions& options, const std::string& path);

}  // namespace brimwork
