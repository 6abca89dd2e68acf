#include "cli/alignment.h"

#include <algorithm>

namespace brimwork {
namespace {

/// The line that line stands for on the other side, 0 when it stands for none.
int Counterpart(const std::vector<AlignedStretch>& stretches, int line, int AlignedStretch::*from,
                int AlignedStretch::*to) {
  auto behind =
      std::upper_bound(stretches.begin(), stretches.end(), line,
                       [from](int sought, const AlignedStretch& at) { return sought < at.*from; });
  if (behind == stretches.begin()) return 0;
  const AlignedStretch& stretch = *std::prev(behind);
  const int offset = line - stretch.*from;
  return offset < stretch.count ? stretch.*to + offset : 0;
}

}  // namespace

void Alignment::Add(int before, int after, int count) {
  if (!stretches_.empty()) {
    AlignedStretch& last = stretches_.back();
    if (before == last.before + last.count && after == last.after + last.count) {
      last.count += count;
      return;
    }
  }
  stretches_.push_back({before, after, count});
}

int Alignment::AfterLine(int before) const {
  return Counterpart(stretches_, before, &AlignedStretch::before, &AlignedStretch::after);
}

int Alignment::BeforeLine(int after) const {
  return Counterpart(stretches_, after, &AlignedStretch::after, &AlignedStretch::before);
}

}  // namespace brimwork
