// What an export was asked to do, the same for every file of it.
#pragma once

#include <optional>
#include <string>

#include "cli/export_format.h"
#include "cli/run_options.h"

namespace brimwork {

/// Lines of a file, both counted from 1 and exported.
struct LineRange {
  int first = 1;
  int last = 1;

  bool operator==(const LineRange&) const = default;
};

struct ExportRequest {
  RunOptions run;
  ExportFormat format = kTextExport;
  bool quick = false;                 // to the folder and the name of Quick Export
  std::optional<std::string> output;  // a file or a folder; nothing, or "-", is standard output
  bool mayReplace = false;
  std::optional<LineRange> lines;  // nothing is the whole module

  bool PrintsResult() const { return !quick && (!output || output == "-"); }
};

}  // namespace brimwork
