// The frame of a form's window, and where it appears.
#pragma once

#include <windows.h>

#include "environment/form_layout.h"
#include "windows/forms/screen_scale.h"

namespace brimwork::windows {

struct WindowStyles {
  DWORD style = 0;
  DWORD extendedStyle = 0;
};

WindowStyles FormStyles(const FormLayout& layout);

/// Where a form's window starts, in pixels of the screen, with room for the form inside its frame.
/// owner may be null.
struct WindowPlace {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
};
WindowPlace StartPlace(const FormLayout& layout, ScreenScale scale, HWND owner);

}  // namespace brimwork::windows
