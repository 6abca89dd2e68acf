// Which line of a text before a change stands where behind it, kept as stretches of lines that
// moved together.
#pragma once

#include <vector>

namespace brimwork {

/// count lines from before on are the lines from after on.
struct AlignedStretch {
  int before = 0;
  int after = 0;
  int count = 0;
};

class Alignment {
 public:
  /// count lines from before on stand at after and behind it. Added in ascending order of both
  /// lines; what is never added was removed or inserted.
  void Add(int before, int after, int count);

  const std::vector<AlignedStretch>& Stretches() const { return stretches_; }

  /// The line behind the change of a line before it, 0 when it was removed.
  int AfterLine(int before) const;

  /// The line before the change of a line behind it, 0 when it was inserted.
  int BeforeLine(int after) const;

 private:
  std::vector<AlignedStretch> stretches_;
};

}  // namespace brimwork
