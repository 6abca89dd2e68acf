#include "memory/line_starts.h"

#include <algorithm>

namespace brimwork {

int LineStarts::Count(std::string_view text) {
  LookThrough(text);
  return static_cast<int>(starts_.size());
}

int LineStarts::LineAt(std::string_view text, std::size_t byte) {
  LookThrough(text);
  if (!Holds(last_, byte)) ++last_;
  if (!Holds(last_, byte)) {
    const auto next = std::upper_bound(starts_.begin(), starts_.end(), byte);
    last_ = static_cast<std::size_t>(next - starts_.begin()) - 1;
  }
  return static_cast<int>(last_);
}

std::size_t LineStarts::Start(std::string_view text, int line) {
  LookThrough(text);
  return starts_[static_cast<std::size_t>(line)];
}

void LineStarts::Forget(std::size_t byte) {
  while (starts_.back() > byte) starts_.pop_back();
  seen_ = std::min(seen_, byte);
}

bool LineStarts::Holds(std::size_t line, std::size_t byte) const {
  return line < starts_.size() && starts_[line] <= byte &&
         (line + 1 == starts_.size() || byte < starts_[line + 1]);
}

void LineStarts::LookThrough(std::string_view text) {
  while (seen_ < text.size()) {
    const auto lineFeed = text.find('\n', seen_);
    seen_ = lineFeed == std::string_view::npos ? text.size() : lineFeed + 1;
    if (lineFeed != std::string_view::npos) starts_.push_back(static_cast<std::uint32_t>(seen_));
  }
}

}  // namespace brimwork
