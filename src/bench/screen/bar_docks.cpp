#include "bench/screen/bar_docks.h"

#include <algorithm>
#include <cstddef>
#include <numeric>

#include "environment/command_bar.h"

namespace brimwork::bench {
namespace {

/// The bars of an edge, from the edge inwards and each row from its start.
std::vector<std::size_t> OrderAlong(const std::vector<DockedBar>& bars, int position) {
  std::vector<std::size_t> order(bars.size());
  std::iota(order.begin(), order.end(), std::size_t{0});
  std::erase_if(order, [&](std::size_t bar) { return bars[bar].position != position; });
  std::ranges::stable_sort(order, [&](std::size_t left, std::size_t right) {
    return std::pair(bars[left].row, bars[left].offset) <
           std::pair(bars[right].row, bars[right].offset);
  });
  return order;
}

/// A place counted along an edge and away from it.
struct Place {
  std::size_t bar;
  int along;
  int away;
  int length;
  int depth;
};

/// Fills the rows of one edge, which has room for limit pixels.
class EdgeRows {
 public:
  EdgeRows(const std::vector<DockedBar>& bars, int limit) : bars_(bars), limit_(limit) {}

  void Add(std::size_t bar, Size size) {
    if (isEmpty_ || bars_[bar].row != row_ || next_ + size.width > limit_) StartRow(bar);
    const int latest = std::max(limit_ - size.width, next_);
    const int along = std::clamp(bars_[bar].offset, next_, latest);
    places_.push_back({bar, along, away_, size.width, size.height});
    next_ = along + size.width;
    depth_ = std::max(depth_, size.height);
  }

  const std::vector<Place>& Places() const { return places_; }
  int Depth() const { return away_ + depth_; }

 private:
  void StartRow(std::size_t bar) {
    away_ += depth_;
    depth_ = 0;
    next_ = 0;
    row_ = bars_[bar].row;
    isEmpty_ = false;
  }

  const std::vector<DockedBar>& bars_;
  int limit_;
  std::vector<Place> places_;
  bool isEmpty_ = true;
  int row_ = 0;
  int next_ = 0;
  int away_ = 0;
  int depth_ = 0;
};

Bounds Placed(const Place& place, int position, const Bounds& free) {
  const int across = free.left + place.along;
  const int down = free.top + place.along;
  switch (position) {
    case bar_position::kTop:
      return {across, free.top + place.away, place.length, place.depth};
    case bar_position::kBottom:
      return {across, free.top + free.height - place.away - place.depth, place.length, place.depth};
    case bar_position::kLeft:
      return {free.left + place.away, down, place.depth, place.length};
    default:
      return {free.left + free.width - place.away - place.depth, down, place.depth, place.length};
  }
}

void TakeFrom(Bounds& free, int position, int depth) {
  if (GoesAcross(position)) {
    if (position == bar_position::kTop) free.top += depth;
    free.height = std::max(free.height - depth, 0);
  } else {
    if (position == bar_position::kLeft) free.left += depth;
    free.width = std::max(free.width - depth, 0);
  }
}

}  // namespace

bool GoesAcross(int position) {
  return position == bar_position::kTop || position == bar_position::kBottom;
}

DockPlan PlanDocks(const std::vector<DockedBar>& bars, const Bounds& outer) {
  DockPlan plan{std::vector<Bounds>(bars.size()), outer};
  for (const int position :
       {bar_position::kTop, bar_position::kBottom, bar_position::kLeft, bar_position::kRight}) {
    const bool across = GoesAcross(position);
    const int limit = across ? plan.inner.width : plan.inner.height;
    EdgeRows rows(bars, limit);
    for (const std::size_t bar : OrderAlong(bars, position)) {
      const Size size = bars[bar].measure(limit);
      rows.Add(bar, across ? size : Size{size.height, size.width});
    }
    for (const Place& place : rows.Places()) {
      plan.bars[place.bar] = Placed(place, position, plan.inner);
    }
    TakeFrom(plan.inner, position, rows.Depth());
  }
  return plan;
}

DropPlace DropPlaceAt(int x, int y, const Bounds& outer, const Bounds& inner) {
  constexpr int kReach = 24;  // how near is near enough
  const int right = outer.left + outer.width;
  const int bottom = outer.top + outer.height;
  const bool isAround = x > outer.left - kReach && x < right + kReach && y > outer.top - kReach &&
                        y < bottom + kReach;
  if (!isAround) return {};
  const int across = std::max(x - outer.left, 0);
  const int down = std::max(y - inner.top, 0);
  if (y < inner.top + kReach) return {bar_position::kTop, across};
  if (y > inner.top + inner.height - kReach) return {bar_position::kBottom, across};
  if (x < inner.left + kReach) return {bar_position::kLeft, down};
  if (x > inner.left + inner.width - kReach) return {bar_position::kRight, down};
  return {};
}

}  // namespace brimwork::bench
