// Exports several files into one folder, with an index page for web pages.
#pragma once

#include "cli/console.h"
#include "cli/export_request.h"
#include "cli/inputs.h"

namespace brimwork {

/// request.output names the folder. Returns the exit code. Throws SourceError when it is no folder,
/// or when a target is there already; then nothing was written.
int ExportToFolder(const ExportRequest& request, const Inputs& inputs, Console& console);

}  // namespace brimwork
