// The lines that two pieces of two files have in common.
#pragma once

#include <vector>

#include "cli/file_lines.h"
#include "cli/line_diff.h"

namespace brimwork {

/// beforeCount lines from before on, and what is compared with them.
struct DiffPiece {
  int before = 1;
  int beforeCount = 0;
  int after = 1;
  int afterCount = 0;
};

/// True when the lines are equal, their end included.
bool SameLine(const FileLines& before, int beforeLine, const FileLines& after, int afterLine);

/// A longest common subsequence of the piece. Its time grows with the square of the piece's length.
std::vector<DiffAnchor> CommonLines(const FileLines& before, const FileLines& after,
                                    const DiffPiece& piece);

/// Of the lines that stand exactly once on both sides of the piece, as many as come in the same
/// order on both.
std::vector<DiffAnchor> UniqueCommonLines(const FileLines& before, const FileLines& after,
                                          const DiffPiece& piece);

}  // namespace brimwork
