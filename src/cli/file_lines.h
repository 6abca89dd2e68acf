// One side of a diff: the lines of a file, and whether the last of them is ended.
#pragma once

#include "cli/code_lines.h"

namespace brimwork {

struct FileLines {
  /// Each line as it stands in the file, a CR in front of its LF included.
  const CodeLines& lines;
  /// False when the file does not end in LF.
  bool endsLastLine = true;

  bool IsUnended(int line) const { return !endsLastLine && line == lines.Count(); }
};

}  // namespace brimwork
