#include "bench/screen/control_look.h"

#include "environment/control.h"

namespace brimwork::bench {
namespace {

ControlLook Common(MemoryCommandBarControl& control, const Faces& faces) {
  ControlLook look;
  look.caption = control.LastCaption();
  look.isPopup = control.Entries() != nullptr;
  look.beginsGroup = control.BeginGroup();
  if (!look.isPopup) look.picture = faces.Of(control);
  return look;
}

}  // namespace

ControlLook LookOnBar(MemoryCommandBarControl& control, const Faces& faces) {
  ControlLook look = Common(control, faces);
  look.tip = ShownCaption(look.caption);
  const int style = look.isPopup ? button_style::kAutomatic : control.Style();
  look.showsCaption = style != button_style::kAutomatic || !look.picture;
  return look;
}

ControlLook LookInMenu(MemoryCommandBarControl& control, const Faces& faces) {
  return Common(control, faces);
}

}  // namespace brimwork::bench
