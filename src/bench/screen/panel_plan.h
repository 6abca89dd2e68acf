// Where the tool windows stand around the workspace, and the gaps between them, which the user
// drags to share the room out differently.
#pragma once

#include <array>
#include <optional>
#include <set>
#include <vector>

#include "bench/model/surface.h"

namespace brimwork::bench {

/// The places of tool windows: the toolbox to the left; the project above the properties to the
/// right; the others beside each other at the bottom.
enum class Panel { kToolbox, kProject, kProperties, kImmediate, kLocals, kWatch };
inline constexpr std::size_t kPanels = 6;

/// Pixels, as the user would have them; small main windows give less.
struct PanelSizes {
  int left = 81;
  int right = 240;
  int upperRight = 240;  // of the project when the properties stand below it
  int bottom = 130;

  bool operator==(const PanelSizes&) const = default;
};

/// Which of the sizes a gap changes.
enum class Gap { kRight, kUpperRight, kBottom };

struct PanelPlan {
  std::array<Bounds, kPanels> panels;  // of no size where one is not shown
  Bounds workspace;
  std::vector<std::pair<Gap, Bounds>> gaps;

  const Bounds& Of(Panel panel) const { return panels[static_cast<std::size_t>(panel)]; }
};

PanelPlan PlanPanels(const std::set<Panel>& shown, const PanelSizes& sizes, const Bounds& inner);

/// The sizes when the user has dragged a gap by that many pixels.
PanelSizes Dragged(const PanelSizes& sizes, Gap gap, int right, int down);

}  // namespace brimwork::bench
