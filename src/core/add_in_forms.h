// The add-in's forms, but for the progress window, as far as connection and commands use them.
#pragma once

#include "environment/form.h"

namespace brimwork {

/// Each form is made once and loaded when it is first shown.
class AddInForms {
 public:
  virtual ~AddInForms() = default;

  /// Also the about box.
  virtual Form& Splash() = 0;
  /// From when it has ticked, the splash form goes by itself. The form has to be loaded.
  virtual void StartSplashTimer() = 0;

  virtual Form& SetupDialog() = 0;
  virtual Form& CodeViewer() = 0;
  virtual Form& MessageBoxDesigner() = 0;
};

}  // namespace brimwork
