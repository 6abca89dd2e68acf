#include "bench/screen/control_look.h"

#include "environment/control.h"

namespace brimwork::bench {
namespace {

ControlLook Common(const MemoryCommandBarControl& control, const Faces& faces) {
  const ControlDetails& details = control.Details();
  ControlLook look;
  look.caption = control.LastCaption();
  look.shortcut = details.shortcutText;
  look.isPopup = control.Entries() != nullptr;
  look.isEnabled = details.enabled;
  look.isVisible = details.visible;
  look.isPressed = details.state != button_state::kUp;
  look.beginsGroup = control.BeginsGroup();
  if (!look.isPopup) look.picture = faces.Of(control);
  return look;
}

}  // namespace

ControlLook LookOnBar(const MemoryCommandBarControl& control, const Faces& faces) {
  ControlLook look = Common(control, faces);
  const std::string& tip = control.Details().toolTip;
  look.tip = ShownCaption(tip.empty() ? look.caption : tip);
  const int style = control.LastStyle();
  look.showsPicture = style != button_style::kCaption;
  look.showsCaption = style == button_style::kCaption || style == button_style::kIconAndCaption ||
                      (style == button_style::kAutomatic && !look.picture);
  return look;
}

ControlLook LookInMenu(const MemoryCommandBarControl& control, const Faces& faces) {
  ControlLook look = Common(control, faces);
  if (control.LastStyle() == button_style::kCaption) look.picture.reset();
  return look;
}

}  // namespace brimwork::bench
