// The unified diff of a file as read and as it would be written.
#pragma once

#include <string>

#include "cli/alignment.h"
#include "cli/line_diff.h"
#include "cli/module_lines.h"

namespace brimwork {

struct FileDiffRequest {
  const std::string& path;    // names both sides
  const std::string& before;  // bytes
  const std::string& after;
  const SourceFile& file;
  const ModuleText& text;  // the module now
  const Alignment& alignment;
  bool readable = false;  // as UTF-8 for a terminal instead of the file's bytes
  bool color = false;
};

std::string FileDiff(const FileDiffRequest& request);

}  // namespace brimwork
