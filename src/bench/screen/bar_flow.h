// Where the buttons of a bar stand.
#pragma once

#include <vector>

#include "bench/model/surface.h"

namespace brimwork::bench {

struct Size {
  int width = 0;
  int height = 0;

  bool operator==(const Size&) const = default;
};

struct FlowedButton {
  Size size;
  bool beginsGroup = false;
};

namespace bar_measure {
inline constexpr int kGrip = 9;       // what a docked bar is held by
inline constexpr int kMargin = 2;     // around the buttons
inline constexpr int kSeparator = 8;  // between groups
inline constexpr int kButton = 22;    // a button with nothing but a picture
}  // namespace bar_measure

struct Flow {
  std::vector<Bounds> buttons;
  std::vector<Bounds> separators;
  Size size;  // of the whole bar
};

enum class Direction { kAcross, kDown };

/// Puts them one behind the other, in further rows (or columns, when the bar goes down) as soon as
/// they would pass limit. grip: the room left free in front.
Flow FlowButtons(const std::vector<FlowedButton>& buttons, Direction direction, int grip,
                 int limit);

}  // namespace brimwork::bench
