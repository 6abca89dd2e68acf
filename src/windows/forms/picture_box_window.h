// The window of a picture box.
#pragma once

#include "environment/picture_box.h"
#include "windows/forms/pane_window.h"

namespace brimwork::windows {

class PictureBoxWindow : public PaneWindow {
 public:
  PictureBoxWindow(FormWindow& form, PictureBox& box) : PaneWindow(form, box), box_(box) {}
  void Show(PropertyId property) override;

 protected:
  Design WindowDesign() const override;
  void Paint(HDC context, const RECT& area) override;
  void Click() override { box_.Click(); }

 private:
  DWORD BorderStyle() const {
    return box_.BorderStyle == border_style::kNone ? 0 : WS_EX_CLIENTEDGE;
  }
  void ShowBorder();
  void Draw(HDC context, const FilledRectangle& rectangle);
  void Draw(HDC context, const DrawnText& text);

  PictureBox& box_;
};

}  // namespace brimwork::windows
