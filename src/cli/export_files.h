// Runs one export over all files of a command line and writes what comes of it.
#pragma once

#include "cli/console.h"
#include "cli/export_request.h"

namespace brimwork {

/// Returns the exit code. Throws UsageError when the options and the files do not go together and
/// SourceError when a target is there already; then nothing was written.
int ExportFiles(const ExportRequest& request, Console& console);

}  // namespace brimwork
