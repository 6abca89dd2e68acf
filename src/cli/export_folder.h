// Exports several files into one folder, with an index page for web pages.
#pragma once

#include <string>

#include "cli/console.h"
#include "cli/export_job.h"
#include "cli/export_request.h"
#include "cli/inputs.h"

namespace brimwork {

/// request.output names the folder. Returns the exit code. Throws SourceError when it is no folder,
/// or when a target is there already; then nothing was written.
int ExportToFolder(const ExportRequest& request, const Inputs& inputs, Console& console);

/// The file name of an input, without its folder.
std::string SourceName(const InputFile& input, const RunOptions& options);

/// "path: 12 lines, read as UTF-8".
std::string LinesAndEncoding(const std::string& path, const ExportedModule& module);

/// Makes a folder and those around it where they are missing. Throws SourceError.
void MakeFolder(const std::string& path);

}  // namespace brimwork
