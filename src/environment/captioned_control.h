// A control with a caption, whose "&" marks the letter that reaches it together with Alt.
#pragma once

#include <string>

#include "environment/control.h"

namespace brimwork {

class CaptionedControl : public Control {
 public:
  using Control::Control;

  std::string AccessKeys() const override { return AccessKeyOf(Caption); }

  TextProperty Caption{*this, PropertyId::kCaption};

 protected:
  void Design(const ControlLayout& layout) override {
    Control::Design(layout);
    Caption.Preset(layout.text);
  }
};

}  // namespace brimwork
