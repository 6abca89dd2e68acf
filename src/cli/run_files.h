// Runs one command over all files of a command line, several at a time, and tells what came of it
// in the order of the files.
#pragma once

#include "cli/console.h"
#include "cli/run_options.h"

namespace brimwork {

/// Returns the exit code. Throws UsageError when the options and the files do not go together; what
/// is wrong with a single file is told and leaves the others alone.
int RunFiles(const RunOptions& options, Console& console);

}  // namespace brimwork
