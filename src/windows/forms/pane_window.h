// A window that is painted here: of a label, a frame, an image or a picture box.
#pragma once

#include "windows/forms/control_window.h"

namespace brimwork::windows {

class PaneWindow : public ControlWindow {
 public:
  using ControlWindow::ControlWindow;
  void Show(PropertyId property) override;

 protected:
  Design WindowDesign() const override;
  LRESULT Receive(UINT message, WPARAM wide, LPARAM longer) override;

  /// Paints over the back colour; area is the whole of the window's inside.
  virtual void Paint(HDC context, const RECT& area) = 0;
  virtual void Click() {}
  /// Whether the pointer is a hand over it.
  virtual bool IsLink() const { return false; }

 private:
  void PaintBuffered();
  void PaintWhole(HDC context, const RECT& area);
  void Press();
  void Release(LPARAM position);

  bool isPressed_ = false;
  bool isStale_ = false;  // the system knows already that it is to be painted
};

}  // namespace brimwork::windows
