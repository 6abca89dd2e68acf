// What all windows of a host share. It lives as long as the last of them.
#pragma once

#include <windows.h>

#include <exception>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

#include "windows/forms/form_colors.h"
#include "windows/forms/form_fonts.h"
#include "windows/forms/form_pictures.h"
#include "windows/forms/screen_scale.h"
#include "windows/forms/window_class.h"

namespace brimwork::windows {

/// Gives what is held while an event of a form is handled, so that the form outlives it.
using FormKeeper = std::function<std::shared_ptr<const void>()>;

/// What becomes of an error that an event of a form raised and nothing caught.
using FormErrorHandler = std::function<void(const std::exception& error)>;

struct FormKit {
  FormKit(PictureFiles files, ScreenScale screenScale);

  ScreenScale scale;
  FormFonts fonts{scale};
  FormBrushes brushes;
  FormPictures pictures;
  WindowClass formClass;
  WindowClass paneClass;

  std::function<HWND()> owner;  // may be empty
  FormErrorHandler onError;     // may be empty
  FormKeeper keeper;            // may be empty
  std::vector<HWND> activated;  // windows of forms in the order of their last activation
};

}  // namespace brimwork::windows
