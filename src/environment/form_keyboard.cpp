// Where the focus goes, and what the keys do that belong to the form and not to one control.
#include <algorithm>

#include "environment/buttons.h"
#include "environment/form.h"

namespace brimwork {
namespace {

bool KeepsFocus(Control& control) {
  bool cancel = false;
  Raise(control.OnValidate, cancel);
  return cancel;
}

}  // namespace

bool Form::MoveFocus(Control& target) {
  if (active_ == &target) return true;
  const bool isValidated = active_ != nullptr && target.Layout().causesValidation;
  if (isValidated && KeepsFocus(*active_)) return false;
  GiveFocus(&target);
  return active_ == &target;
}

void Form::GiveFocus(Control* target) {
  Control* const left = active_;
  active_ = target;
  if (left != nullptr) Raise(left->OnLostFocus);
  if (active_ != target || target == nullptr) return;  // the event took the focus elsewhere
  Tell(*target, PropertyId::kFocus);
  Raise(target->OnGotFocus);
}

void Form::FocusBehind(const Control& control) { FocusTabStop(&control, 1); }

void Form::FocusTabStop(const Control* start, int step) {
  if (Control* const target = TabStopFrom(start, step)) MoveFocus(*target);
}

void Form::LeaveUnusable() {
  if (!isVisible_ || active_ == nullptr || active_->CanBeUsed()) return;
  GiveFocus(TabStopFrom(active_, 1));
}

std::vector<Control*> Form::TabOrder() const {
  std::vector<Control*> order;
  for (Control* control : controls_) {
    if (control->Layout().tabIndex != kNoTabIndex) order.push_back(control);
  }
  std::stable_sort(order.begin(), order.end(), [](const Control* a, const Control* b) {
    return a->Layout().tabIndex < b->Layout().tabIndex;
  });
  return order;
}

Control* Form::TabStopFrom(const Control* start, int step) const {
  std::vector<Control*> order = TabOrder();
  if (step < 0) std::reverse(order.begin(), order.end());
  const auto found = std::find(order.begin(), order.end(), start);
  const auto first = found == order.end() ? order.begin() : found + 1;
  std::rotate(order.begin(), first, order.end());
  const auto stop =
      std::find_if(order.begin(), order.end(), [](const Control* c) { return c->IsTabStop(); });
  return stop == order.end() ? nullptr : *stop;
}

void Form::Press(Key key) {
  if (!isVisible_) return;
  switch (key) {
    case Key::kTab:
      return FocusTabStop(active_, 1);
    case Key::kShiftTab:
      return FocusTabStop(active_, -1);
    case Key::kEnter:
      return PressEnter();
    case Key::kEscape:
      return PressEscape();
  }
}

// A button with the focus comes before the default button.
void Form::PressEnter() {
  if (active_ != nullptr && active_->Kind() == ControlKind::kCommandButton) {
    return static_cast<CommandButton*>(active_)->Press();
  }
  if (CommandButton* const button = MarkedButton(&ControlLayout::isDefault)) return button->Press();
  if (active_ != nullptr) active_->PressEnter();
}

void Form::PressEscape() {
  if (CommandButton* const cancel = MarkedButton(&ControlLayout::isCancel)) return cancel->Press();
  if (layout_.closesOnEscape) Close();
}

CommandButton* Form::MarkedButton(bool ControlLayout::*mark) const {
  for (Control* control : controls_) {
    const bool isMarked = control->Kind() == ControlKind::kCommandButton && control->Layout().*mark;
    if (isMarked && control->CanBeUsed()) return static_cast<CommandButton*>(control);
  }
  return nullptr;
}

void Form::PressAlt(char letter) {
  if (!isVisible_) return;
  const std::string key = AccessKeyOf(std::string("&") + letter);
  for (Control* control : TabOrder()) {
    if (key.empty() || !control->CanBeUsed()) continue;
    if (control->AccessKeys().find(key) != std::string::npos) {
      return control->PressAccessKey(key.front());
    }
  }
}

}  // namespace brimwork
