#include "support/shown_control.h"

#include "environment/buttons.h"
#include "environment/labels.h"
#include "environment/picture_box.h"
#include "environment/tab_strip.h"
#include "environment/text.h"

namespace brimwork {
namespace {

constexpr int kCharacterWidth = 6;  // of the usual 8 points
constexpr int kBoldCharacterWidth = 7;
constexpr int kCharacterHeight = 13;
constexpr int kUsualPoints = 8;

constexpr int kFrameBorder = 2;
constexpr int kFrameCaptionHeight = 14;
constexpr int kFrameCaptionMargins = 20;
constexpr int kCheckMarkWidth = 18;
constexpr int kButtonMargins = 12;
constexpr int kButtonHeight = 21;
constexpr int kBoxHeight = 19;
constexpr int kTabRowHeight = 22;
constexpr int kTabMargins = 14;

}  // namespace

bool HasPlace(const Control& control) {
  return control.Kind() != ControlKind::kTimer && control.Kind() != ControlKind::kImageList;
}

std::string NameOf(const Control& control) {
  std::string name(control.Name());
  if (control.Index() != kNoIndex) name += '(' + std::to_string(control.Index()) + ')';
  return name;
}

Area ShownControl::OuterArea() const {
  return {control_.Left, control_.Top, control_.Left + control_.Width,
          control_.Top + control_.Height};
}

Area ShownControl::InnerArea() const {
  if (control_.Kind() == ControlKind::kPictureBox) {
    const auto& picture = static_cast<const PictureBox&>(control_);
    return {0, 0, picture.ScaleWidth(), picture.ScaleHeight()};
  }
  const bool hasBorder =
      control_.Kind() == ControlKind::kFrame && static_cast<const Frame&>(control_).HasBorder();
  if (!hasBorder) return {0, 0, control_.Width, control_.Height};
  return {kFrameBorder, kFrameCaptionHeight, control_.Width - kFrameBorder,
          control_.Height - kFrameBorder};
}

bool ShownControl::IsPageOf(const ShownControl& tabStrip) const {
  if (tabStrip.control_.Kind() != ControlKind::kTabStrip) return false;
  const Area strip = tabStrip.OuterArea();
  const Area page = {strip.left + kFrameBorder, strip.top + kTabRowHeight,
                     strip.right - kFrameBorder, strip.bottom - kFrameBorder};
  return page.Holds(OuterArea());
}

int ShownControl::TextWidth(std::string_view text) const {
  const ControlFont& font = control_.Font;
  const int width = font.isBold ? kBoldCharacterWidth : kCharacterWidth;
  return CharacterCount(text) * width * font.size / kUsualPoints;
}

int ShownControl::LineHeight() const {
  return kCharacterHeight * control_.Font.Get().size / kUsualPoints;
}

int ShownControl::LinesNeeded(std::string_view text, int width) const {
  int lines = 0;
  for (const std::string_view paragraph : SplitLines(text)) {
    int used = 0;
    ++lines;
    for (const std::string_view word : Split(paragraph, " ")) {
      const bool goesOn = used > 0 && used + TextWidth(word) > width;
      if (goesOn) ++lines;
      used = (goesOn ? 0 : used) + TextWidth(word) + TextWidth(" ");
      if (TextWidth(word) > width) ++lines;  // it is cut
    }
  }
  return lines;
}

bool ShownControl::HasRoomFor(int width, int height) const {
  return width <= control_.Width && height <= control_.Height;
}

bool ShownControl::CaptionFits(std::string_view caption) const {
  const std::string shown = ShownCaption(caption);
  switch (control_.Kind()) {
    case ControlKind::kCommandButton:
      return HasRoomFor(TextWidth(shown) + kButtonMargins, kButtonHeight);
    case ControlKind::kFrame:
      return shown.empty() || HasRoomFor(TextWidth(shown) + kFrameCaptionMargins, LineHeight());
    default: {
      const int mark = control_.Kind() == ControlKind::kLabel ? 0 : kCheckMarkWidth;
      return HasRoomFor(0, LinesNeeded(shown, control_.Width - mark) * LineHeight());
    }
  }
}

bool ShownControl::TabsFit() const {
  int width = 0;
  for (const TabLayout& tab : static_cast<const TabStrip&>(control_).Tabs()) {
    width += TextWidth(ShownCaption(tab.caption)) + kTabMargins;
  }
  return HasRoomFor(width, kTabRowHeight);
}

bool ShownControl::TextFits() const {
  switch (control_.Kind()) {
    case ControlKind::kCheckBox:
    case ControlKind::kCommandButton:
    case ControlKind::kFrame:
    case ControlKind::kLabel:
    case ControlKind::kOptionButton:
      return CaptionFits(static_cast<const CaptionedControl&>(control_).Caption);
    case ControlKind::kTabStrip:
      return TabsFit();
    case ControlKind::kTextBox:
    case ControlKind::kComboBox:
    case ControlKind::kListBox:
    case ControlKind::kStatusBar:
      return HasRoomFor(0, kBoxHeight);
    default:
      return true;
  }
}

}  // namespace brimwork
