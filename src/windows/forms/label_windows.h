// The windows of labels, frames and images.
#pragma once

#include "environment/labels.h"
#include "windows/forms/pane_window.h"

namespace brimwork::windows {

class LabelWindow : public PaneWindow {
 public:
  LabelWindow(FormWindow& form, Label& label) : PaneWindow(form, label), label_(label) {}

 protected:
  void Paint(HDC context, const RECT& area) override;
  void Click() override { label_.Click(); }
  bool IsLink() const override;

 private:
  Label& label_;
};

class FrameWindow : public PaneWindow {
 public:
  FrameWindow(FormWindow& form, Frame& frame) : PaneWindow(form, frame), frame_(frame) {}

 protected:
  Design WindowDesign() const override;
  void Paint(HDC context, const RECT& area) override;

 private:
  void PaintCaption(HDC context, const RECT& area);

  Frame& frame_;
};

class ImageWindow : public PaneWindow {
 public:
  ImageWindow(FormWindow& form, Image& image) : PaneWindow(form, image), image_(image) {}

 protected:
  void Paint(HDC context, const RECT& area) override;
  void Click() override { image_.Click(); }

 private:
  Image& image_;
};

}  // namespace brimwork::windows
