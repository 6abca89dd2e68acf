// Finds what two files have in common, piece by piece, so that the time grows in step with the
// files however much of them changed.
#pragma once

#include <vector>

#include "cli/file_lines.h"

namespace brimwork {

/// A place at which both files may be cut: what stands above one line of the pair is compared only
/// with what stands above the other.
struct DiffAnchor {
  int before = 0;
  int after = 0;
};

/// Gets the stretches of an edit script from the top down.
class EditScript {
 public:
  virtual ~EditScript() = default;
  virtual void Keep(int lines) = 0;
  virtual void Change(int removed, int added) = 0;
};

/// anchors: ascending; one that does not lie behind the one before it is passed over. Without
/// anchors lines that are unique in both files serve as such.
void CompareFiles(const FileLines& before, const FileLines& after,
                  const std::vector<DiffAnchor>& anchors, EditScript& script);

}  // namespace brimwork
