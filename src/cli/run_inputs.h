// The files of a run, with what is to be said about them before it starts.
#pragma once

#include "cli/console.h"
#include "cli/inputs.h"
#include "cli/run_options.h"

namespace brimwork {

/// Throws UsageError when no file was named.
void RequirePaths(const RunOptions& options);

/// Collects the files and tells what was left alone and what is wrong with some.
Inputs CollectAndTell(const RunOptions& options, Console& console);

}  // namespace brimwork
