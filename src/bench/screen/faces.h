// The faces of buttons: those of the environment's own commands, and those that were pasted from
// the clipboard, by name.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <string_view>
#include <vector>

#include "bench/screen/picture.h"
#include "memory/memory_command_bar_control.h"

namespace brimwork::bench {

class Faces {
 public:
  /// Hands back a name for the picture; the same one for the same picture.
  std::string Keep(const Picture& picture);

  /// Null when there is none of that name.
  const Picture* Named(std::string_view name) const;

  /// Nothing for a control without a picture. One that has been deleted raises an error.
  std::optional<Picture> Of(const MemoryCommandBarControl& control) const;

 private:
  std::vector<Picture> kept_;
};

/// The picture that is on the user's clipboard, at a button's size; nothing when there is none or
/// another program holds the clipboard.
std::optional<Picture> FaceOnClipboard(HWND owner);

/// Puts a face on the user's clipboard. Throws RunTimeError when another program holds it.
void PutFaceOnClipboard(HWND owner, const Picture& face);

}  // namespace brimwork::bench
