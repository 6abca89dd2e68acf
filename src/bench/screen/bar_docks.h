// Where docked bars stand along the main window's edges, and where a bar that is dragged about
// would dock.
#pragma once

#include <functional>
#include <vector>

#include "bench/screen/bar_flow.h"

namespace brimwork::bench {

struct DockedBar {
  int position = 1;  // bar_position::kLeft, kTop, kRight or kBottom
  int row = 0;       // lower ones stand nearer to the edge
  int offset = 0;    // pixels from the row's start

  /// The bar's size where a row has room for limit pixels.
  std::function<Size(int limit)> measure;
};

struct DockPlan {
  std::vector<Bounds> bars;  // in the order given
  Bounds inner;              // what is left in the middle
};

/// Whether the bars of an edge stand beside each other; at the others they stand below each other.
bool GoesAcross(int position);

/// Bars of one row share it as far as it has room; the others move on to a row of their own. Upper
/// and lower edges come first and take the whole width.
DockPlan PlanDocks(const std::vector<DockedBar>& bars, const Bounds& outer);

struct DropPlace {
  int position = 4;  // bar_position::k...
  int offset = 0;    // along the edge, where it docks

  bool operator==(const DropPlace&) const = default;
};

/// Where a bar docks that is let go at a point near the docked bars, which stand between outer and
/// inner, or near the edge where there are none; floating elsewhere.
DropPlace DropPlaceAt(int x, int y, const Bounds& outer, const Bounds& inner);

}  // namespace brimwork::bench
