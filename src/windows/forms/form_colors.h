// The colours of forms: those that the user's theme decides, and those that stand for themselves.
#pragma once

#include <windows.h>

#include <map>

#include "environment/form_layout.h"
#include "windows/forms/gdi_object.h"

namespace brimwork::windows {

/// What is painted for a colour now.
COLORREF ShownColor(Color color);

/// One brush for each colour, as long as the object lives.
class FormBrushes {
 public:
  HBRUSH Brush(Color color);

 private:
  std::map<Color, GdiObject<HBRUSH>> brushes_;
};

}  // namespace brimwork::windows
