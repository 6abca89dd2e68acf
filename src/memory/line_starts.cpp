#include "memory/line_starts.h"

#include <algorithm>

#include "environment/byte_words.h"

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
  const std::string_view rest = text.substr(seen_);
  ForEach<'\n'>(rest, [this](std::size_t lineFeed) {
    starts_.push_back(static_cast<std::uint32_t>(seen_ + lineFeed + 1));
  });
  seen_ = text.size();
}

}  // namespace brimwork
