// The code viewer: shows generated code, from where the user copies it.
#pragma once

#include "environment/controls.h"

namespace brimwork {

class frmCode : public Form {
 public:
  explicit frmCode(FormHost& host);

  TextBox txtCode{*this, "txtCode"};      // fills the window
  TextBox txtModule{*this, "txtModule"};  // hidden: the source of modCustomMsgBox

 protected:
  void Form_Load() override;
  void Form_Resize() override;

 private:
  void FitCodeToForm();
};

}  // namespace brimwork
