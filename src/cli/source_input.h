// Reading one input: a file on disk, or standard input.
#pragma once

#include <optional>
#include <string>

#include "cli/run_options.h"
#include "memory/disk_file.h"
#include "memory/source_file.h"

namespace brimwork {

struct SourceInput {
  std::string bytes;
  std::optional<FileSnapshot> snapshot;  // nothing for standard input
};

/// path: a file, or "-" for standard input. Throws SourceError.
SourceInput ReadInput(const std::string& path);

/// The path that messages and diffs name for an input.
std::string ShownPath(const std::string& path, const RunOptions& options);

}  // namespace brimwork
