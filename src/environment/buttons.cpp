#include "environment/buttons.h"

#include "environment/form.h"

namespace brimwork {

void CommandButton::Click() {
  if (IsReached()) Raise(OnClick);
}

void CommandButton::Press() {
  if (CanBeUsed()) Raise(OnClick);
}

void CommandButton::Design(const ControlLayout& layout) {
  CaptionedControl::Design(layout);
  Picture.Preset(layout.picture);
}

void CheckBox::Click() {
  if (IsReached()) Value = !Value;
}

void CheckBox::AfterChange(PropertyId property) {
  if (property == PropertyId::kValue) Raise(OnClick);
}

void CheckBox::Design(const ControlLayout& layout) {
  CaptionedControl::Design(layout);
  Value.Preset(layout.isChecked);
}

template <class Visit>
void OptionButton::ForOthersInGroup(Visit visit) const {
  for (Control* control : Parent().Controls()) {
    const bool isInGroup = control != this && control->Kind() == ControlKind::kOptionButton &&
                           control->Container() == Container();
    if (isInGroup) visit(static_cast<OptionButton&>(*control));
  }
}

bool OptionButton::IsTabStop() const {
  bool isOtherChosen = false;
  ForOthersInGroup([&](OptionButton& other) { isOtherChosen = isOtherChosen || other.Value; });
  return !isOtherChosen && Control::IsTabStop();
}

void OptionButton::Click() {
  if (IsReached()) Value = true;
}

void OptionButton::AfterChange(PropertyId property) {
  if (property != PropertyId::kValue || !Value) return;
  ForOthersInGroup([](OptionButton& other) { other.Value = false; });
  Raise(OnClick);
}

void OptionButton::Design(const ControlLayout& layout) {
  CaptionedControl::Design(layout);
  Value.Preset(layout.isChecked);
}

}  // namespace brimwork
