// Shows forms. A form is data; the host makes a window of it, tells the form what the user does,
// and is told of every change that the user is to see.
#pragma once

#include <string_view>

#include "environment/desktop.h"
#include "environment/form_layout.h"
#include "environment/property.h"

namespace brimwork {

class Control;
class Form;

enum class ShowMode { kModeless, kModal };

struct TextExtent {
  int width = 0;  // in pixels
  int height = 0;
};

/// Load and Show may raise RunTimeError, the others raise nothing.
class FormHost {
 public:
  virtual ~FormHost() = default;

  /// Makes the form's window, hidden, from its controls as they are designed. Returns its handle,
  /// which is never 0.
  virtual WindowHandle Load(Form& form) = 0;

  /// Shows the window, in front of the others. A modal one returns when the form has been hidden or
  /// unloaded, and until then the user reaches no other form.
  virtual void Show(Form& form, ShowMode mode) = 0;

  virtual void Hide(Form& form) = 0;

  /// Removes the window, if there is one: it is also called behind a Load or Show that failed. The
  /// form may be on its way out, so the host must not look into it.
  virtual void Unload(Form& form) = 0;

  /// A property of a loaded form (control is null) or of one of its controls has a new value.
  virtual void Changed(Form& form, Control* control, PropertyId property) = 0;

  /// Paints a control at once instead of when the message loop comes to it.
  virtual void Refresh(Form& form, Control& control) = 0;

  /// The size of one line of text as it is painted.
  virtual TextExtent Measure(std::string_view text, const ControlFont& font) = 0;
};

}  // namespace brimwork
