// The window of a tab strip.
#pragma once

#include "environment/tab_strip.h"
#include "windows/forms/control_window.h"

namespace brimwork::windows {

class TabStripWindow : public ControlWindow {
 public:
  TabStripWindow(FormWindow& form, TabStrip& strip) : ControlWindow(form, strip), strip_(strip) {}
  void Show(PropertyId property) override;
  void OnNotification(UINT notification) override;

 protected:
  Design WindowDesign() const override;
  void ShowAll() override;
  /// Each tab has its own.
  void ShowToolTip() override;

 private:
  void ShowTabs();
  void ShowChoice();

  TabStrip& strip_;
};

}  // namespace brimwork::windows
