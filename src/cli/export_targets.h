// The files that an export writes: all of them are looked at before the first is written.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "cli/inputs.h"
#include "memory/disk_file.h"

namespace brimwork {

struct ExportTarget {
  std::string path;
  std::optional<FileSnapshot> replaced;  // the file that is there now
};

/// Throws SourceError for a target that is there already unless mayReplace, for one that cannot be
/// replaced, and for one that is itself among the sources.
std::vector<ExportTarget> CheckedTargets(const std::vector<std::string>& paths,
                                         const std::vector<InputFile>& sources, bool mayReplace);

/// Writes the file whole or not at all. Throws SourceError.
void WriteTarget(const ExportTarget& target, std::string_view bytes);

/// Makes a folder and those around it where they are missing. Throws SourceError.
void MakeFolder(const std::string& path);

/// Throws SourceError, with what to do, when there is no such folder.
void RequireFolder(const std::string& path, const std::string& whatToDo);

}  // namespace brimwork
