// The add-in's forms, but for the progress window.
#pragma once

#include "core/frmSplash.h"
#include "msgbox/frmCode.h"
#include "msgbox/frmMsgBox.h"
#include "settings/frmSetup.h"

namespace brimwork {

/// Made with a connection; each form is loaded when it is first shown.
struct AddInForms {
  explicit AddInForms(const Environment& environment);

  frmSetup setupDialog;
  frmCode codeViewer;
  frmMsgBox messageBoxDesigner;
  frmSplash splash;  // also the about box
};

}  // namespace brimwork
