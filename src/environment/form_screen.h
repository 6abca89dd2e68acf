// The screen as forms see it: its size, and the form in front. Lengths are twips. Every operation
// may raise RunTimeError.
#pragma once

#include <memory>
#include <string_view>

#include "environment/desktop.h"

namespace brimwork {

/// A form as the run time's screen hands it out.
class ScreenForm {
 public:
  virtual ~ScreenForm() = default;
  virtual WindowHandle hWnd() = 0;

  // The size of text in the form's font.

  virtual double TextHeight(std::string_view text) = 0;
  virtual double TextWidth(std::string_view text) = 0;
};

class FormScreen {
 public:
  virtual ~FormScreen() = default;

  /// The form that is active or was last active; null while the program has none.
  virtual std::shared_ptr<ScreenForm> ActiveForm() = 0;

  virtual double Width() = 0;
  virtual double Height() = 0;
  virtual double TwipsPerPixelX() = 0;
  virtual double TwipsPerPixelY() = 0;
};

}  // namespace brimwork
