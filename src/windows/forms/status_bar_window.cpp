#include "windows/forms/status_bar_window.h"

#include <commctrl.h>

#include "windows/forms/form_window.h"

namespace brimwork::windows {

ControlWindow::Design StatusBarWindow::WindowDesign() const {
  return {STATUSCLASSNAMEW, CCS_NOPARENTALIGN | CCS_NORESIZE | CCS_NODIVIDER, 0};
}

void StatusBarWindow::ShowAll() {
  ControlWindow::ShowAll();
  Show(PropertyId::kText);
}

void StatusBarWindow::Show(PropertyId property) {
  ControlWindow::Show(property);
  if (property == PropertyId::kText) ShowText(bar_.SimpleText);
}

}  // namespace brimwork::windows
