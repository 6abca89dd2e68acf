#include "memory/line_starts.h"

#include <algorithm>

namespace brimwork {

int LineStarts::Count(std::string_view text) {
  LookThrough(text);
  return static_cast<int>(starts_.size());
}

int LineStarts::LineAt(std::string_view text, std::size_t byte) {
  LookThrough(text);
  const auto next = std::upper_bound(starts_.begin(), starts_.end(), byte);
  return static_cast<int>(next - starts_.begin()) - 1;
}

std::size_t LineStarts::Start(std::string_view text, int line) {
  LookThrough(text);
  return starts_[static_cast<std::size_t>(line)];
}

void LineStarts::Forget(std::size_t byte) {
  while (starts_.back() > byte) starts_.pop_back();
  seen_ = std::min(seen_, byte);
}

void LineStarts::LookThrough(std::string_view text) {
  while (seen_ < text.size()) {
    const auto lineFeed = text.find('\n', seen_);
    seen_ = lineFeed == std::string_view::npos ? text.size() : lineFeed + 1;
    if (lineFeed != std::string_view::npos) starts_.push_back(static_cast<std::uint32_t>(seen_));
  }
}

}  // namespace brimwork
