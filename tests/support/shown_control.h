// A control as it stands on the screen: the area that it takes, the area that it leaves to others,
// and whether its text has room. Characters are taken for rather wide ones.
#pragma once

#include <string>

#include "environment/control.h"

namespace brimwork {

/// In pixels, from the inner corner of a container.
struct Area {
  int left = 0;
  int top = 0;
  int right = 0;   // the first pixel beside it
  int bottom = 0;  // the first pixel below it

  bool Holds(const Area& other) const {
    return left <= other.left && top <= other.top && other.right <= right &&
           other.bottom <= bottom && other.left < other.right && other.top < other.bottom;
  }
  bool Meets(const Area& other) const {
    return left < other.right && other.left < right && top < other.bottom && other.top < bottom;
  }
};

class ShownControl {
 public:
  explicit ShownControl(const Control& control) : control_(control) {}

  const Control& Get() const { return control_; }

  Area OuterArea() const;

  /// Where the controls that it holds may lie, counted as theirs are.
  Area InnerArea() const;

  /// True when it lies on the page of the other, a tab strip.
  bool IsPageOf(const ShownControl& tabStrip) const;

  bool TextFits() const;

 private:
  bool CaptionFits(std::string_view caption) const;
  bool TabsFit() const;
  bool HasRoomFor(int width, int height) const;
  int TextWidth(std::string_view text) const;
  int LineHeight() const;
  int LinesNeeded(std::string_view text, int width) const;

  const Control& control_;
};

/// False for controls that are not seen.
bool HasPlace(const Control& control);

/// "txtHeader(0)".
std::string NameOf(const Control& control);

}  // namespace brimwork
