#include "bench/screen/bar_flow.h"

#include <algorithm>
#include <utility>

namespace brimwork::bench {
namespace {

using namespace bar_measure;

Size Turned(Size size) { return {size.height, size.width}; }
Bounds Turned(const Bounds& bounds) {
  return {bounds.top, bounds.left, bounds.height, bounds.width};
}

/// The flow across; a bar that goes down is the same turned over.
class Row {
 public:
  Row(int grip, int limit) : start_(grip + kMargin), limit_(limit), next_(start_) {}

  void Add(const FlowedButton& button, Size size) {
    const bool isFirst = next_ == start_;
    const int gap = button.beginsGroup && !isFirst ? kSeparator : 0;
    if (!isFirst && next_ + gap + size.width + kMargin > limit_) {
      Break();
    } else if (gap > 0) {
      flow_.separators.push_back({next_, top_, kSeparator, size.height});
      next_ += gap;
    }
    flow_.buttons.push_back({next_, top_, size.width, size.height});
    next_ += size.width;
    height_ = std::max(height_, size.height);
    widest_ = std::max(widest_, next_);
  }

  Flow Take() {
    flow_.size = {std::max(widest_, start_) + kMargin, top_ + height_ + kMargin};
    return std::move(flow_);
  }

 private:
  void Break() {
    top_ += height_;
    next_ = start_;
    height_ = kButton;
  }

  int start_;
  int limit_;
  int next_;
  int top_ = kMargin;
  int height_ = kButton;
  int widest_ = 0;
  Flow flow_;
};

void TurnOver(Flow& flow) {
  for (Bounds& button : flow.buttons) button = Turned(button);
  for (Bounds& separator : flow.separators) separator = Turned(separator);
  flow.size = Turned(flow.size);
}

}  // namespace

Flow FlowButtons(const std::vector<FlowedButton>& buttons, Direction direction, int grip,
                 int limit) {
  const bool goesDown = direction == Direction::kDown;
  Row row(grip, limit);
  for (const FlowedButton& button : buttons) {
    row.Add(button, goesDown ? Turned(button.size) : button.size);
  }
  Flow flow = row.Take();
  if (goesDown) TurnOver(flow);
  return flow;
}

}  // namespace brimwork::bench
