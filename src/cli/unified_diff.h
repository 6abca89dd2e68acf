// The unified diff of two files, as diff -u and git write it and patch reads it.
#pragma once

#include <string_view>
#include <vector>

#include "cli/file_lines.h"
#include "cli/hunk_writer.h"
#include "cli/line_diff.h"

namespace brimwork {

/// The names in the diff's header.
struct DiffLabels {
  std::string_view before;
  std::string_view after;
};

/// Gives the diff to sink in blocks; nothing at all when the files are equal. anchors: ascending
/// places at which both files may be cut, one every hundred lines or so; without them they are
/// looked for, which takes memory in step with the files. Returns the numbers of changed lines.
DiffStat UnifiedDiff(const DiffLabels& labels, const FileLines& before, const FileLines& after,
                     const std::vector<DiffAnchor>& anchors, const DiffOptions& options,
                     const TextSink& sink);

}  // namespace brimwork
