// How an entry of a command bar looks: what is read of it at once, before it is drawn or put into a
// menu.
#pragma once

#include <optional>
#include <string>

#include "bench/screen/faces.h"
#include "bench/screen/picture.h"
#include "memory/memory_command_bar_control.h"

namespace brimwork::bench {

struct ControlLook {
  std::string caption;  // access keys marked by &
  std::string tip;
  std::string shortcut;
  std::optional<Picture> picture;
  bool isPopup = false;
  bool isEnabled = true;
  bool isVisible = true;
  bool isPressed = false;
  bool beginsGroup = false;
  bool showsPicture = true;
  bool showsCaption = true;

  bool operator==(const ControlLook&) const = default;
};

/// On a toolbar, where a button with a picture needs no caption.
ControlLook LookOnBar(const MemoryCommandBarControl& control, const Faces& faces);

/// In a menu, where every entry has its caption.
ControlLook LookInMenu(const MemoryCommandBarControl& control, const Faces& faces);

}  // namespace brimwork::bench
