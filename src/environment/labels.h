// The controls that only show: labels, frames, images and the status bar. None takes the focus.
#pragma once

#include <functional>

#include "environment/captioned_control.h"

namespace brimwork {

/// A text. Its access key goes to the control behind it in tab order.
class Label : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;
  ControlKind Kind() const override { return ControlKind::kLabel; }

  /// What the user does.
  void Click() {
    if (IsReached()) Raise(OnClick);
  }
  void PressAccessKey(char key) override;

  std::function<void()> OnClick;
};

/// Holds other controls; without a border it shows nothing of itself.
class Frame : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;
  ControlKind Kind() const override { return ControlKind::kFrame; }
  void PressAccessKey(char key) override;

  bool HasBorder() const {
    return Layout().borderStyle.value_or(border_style::kFixedSingle) != border_style::kNone;
  }
};

/// A picture out of the resources.
class Image : public Control {
 public:
  using Control::Control;
  ControlKind Kind() const override { return ControlKind::kImage; }

  /// What the user does.
  void Click() {
    if (IsReached()) Raise(OnClick);
  }

  TextProperty Picture{*this, PropertyId::kPicture};  // name of the resource

  std::function<void()> OnClick;

 protected:
  void Design(const ControlLayout& layout) override {
    Control::Design(layout);
    Picture.Preset(layout.picture);
  }
};

/// One line of text along the form's lower edge.
class StatusBar : public Control {
 public:
  using Control::Control;
  ControlKind Kind() const override { return ControlKind::kStatusBar; }

  TextProperty SimpleText{*this, PropertyId::kText};

 protected:
  void Design(const ControlLayout& layout) override {
    Control::Design(layout);
    SimpleText.Preset(layout.text);
  }
};

}  // namespace brimwork
