// The fonts of forms, and how large text is in them.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>
#include <vector>

#include "environment/form_layout.h"
#include "windows/forms/gdi_object.h"
#include "windows/forms/screen_scale.h"

namespace brimwork::windows {

/// One font of the system's for each font of a form, as long as the object lives.
class FormFonts {
 public:
  explicit FormFonts(ScreenScale scale) : scale_(scale) {}

  HFONT Font(const ControlFont& font);

  /// The size of one line of text, in pixels of the screen.
  SIZE Measure(std::string_view text, const ControlFont& font);

 private:
  struct MadeFont {
    std::string name;
    ControlFont font;  // its name aside
    GdiObject<HFONT> made;

    bool Is(ControlFont other) const;
  };

  ScreenScale scale_;
  std::vector<MadeFont> fonts_;
  MemoryContext measuring_;
};

}  // namespace brimwork::windows
