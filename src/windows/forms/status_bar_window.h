// The window of a status bar.
#pragma once

#include "environment/labels.h"
#include "windows/forms/control_window.h"

namespace brimwork::windows {

class StatusBarWindow : public ControlWindow {
 public:
  StatusBarWindow(FormWindow& form, StatusBar& bar) : ControlWindow(form, bar), bar_(bar) {}
  void Show(PropertyId property) override;

 protected:
  Design WindowDesign() const override;
  void ShowAll() override;

 private:
  StatusBar& bar_;
};

}  // namespace brimwork::windows
