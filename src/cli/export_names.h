// How the files of an export into a folder are called.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "cli/run_options.h"

namespace brimwork {

/// A file name for each source file name (no folders in either), no two of them equal but for the
/// case of their letters, and none equal to taken (which may be ""). extension has its dot. Each is
/// the source's name with the extension in the place of its own; those that would be equal keep the
/// source's whole name and get a number where that is not enough.
std::vector<std::string> ExportNames(const std::vector<std::string>& sources,
                                     std::string_view extension, std::string_view taken = {});

/// The file name of an input's path, without its folder.
std::string SourceName(const std::string& path, const RunOptions& options);

/// The name of one export of a source file.
std::string ExportName(const std::string& source, std::string_view extension);

}  // namespace brimwork
