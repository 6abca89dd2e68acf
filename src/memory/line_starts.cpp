#include "memory/line_starts.h"

#include <algorithm>

namespace brimwork {

void LineStarts::Forget(std::size_t byte) {
  while (starts_.back() > byte) starts_.pop_back();
  seen_ = std::min(seen_, byte);
}

std::size_t LineStarts::Search(std::size_t byte) const {
  const auto next = std::upper_bound(starts_.begin(), starts_.end(), byte);
  return static_cast<std::size_t>(next - starts_.begin()) - 1;
}

void LineStarts::LookThroughRest(std::string_view text) {
  while (seen_ < text.size()) {
    const auto lineFeed = text.find('\n', seen_);
    seen_ = lineFeed == std::string_view::npos ? text.size() : lineFeed + 1;
    if (lineFeed != std::string_view::npos) starts_.push_back(static_cast<std::uint32_t>(seen_));
  }
}

}  // namespace brimwork
