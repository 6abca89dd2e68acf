#include "environment/control.h"

#include "environment/form.h"
#include "environment/run_time_error.h"

namespace brimwork {
namespace {

constexpr ControlLayout kNotDesigned;

}  // namespace

Control::Control(Form& form, std::string_view name, int index)
    : form_(form), name_(name), index_(index), layout_(&kNotDesigned) {
  form.Add(*this);
}

bool Control::CanBeUsed() const {
  for (const Control* control = this; control != nullptr; control = control->container_) {
    if (!control->Visible || !control->Enabled) return false;
  }
  return form_.Visible();
}

bool Control::IsShown() const {
  for (const Control* control = this; control != nullptr; control = control->container_) {
    if (!control->Visible) return false;
  }
  return true;
}

void Control::SetFocus() {
  if (!TakesFocus() || !CanBeUsed()) {
    throw RunTimeError(error_number::kInvalidProcedureCall, "Invalid procedure call or argument");
  }
  form_.MoveFocus(*this);
}

void Control::Move(int left, int top, int width, int height) {
  Left.Preset(left);
  Top.Preset(top);
  Width.Preset(width);
  Height.Preset(height);
  Changed(PropertyId::kPlace);
}

void Control::Refresh() { form_.Refresh(*this); }

bool Control::IsReached() {
  if (!CanBeUsed()) return false;
  if (TakesFocus() && !form_.MoveFocus(*this)) return false;
  return CanBeUsed();  // the events of the focus may have changed that
}

void Control::Changed(PropertyId property) {
  if (!form_.IsLoaded()) return;
  form_.Tell(*this, property);
  if (property == PropertyId::kVisible || property == PropertyId::kEnabled) form_.LeaveUnusable();
  AfterChange(property);
}

void Control::Design(const ControlLayout& layout) {
  layout_ = &layout;
  Left.Preset(layout.place.left);
  Top.Preset(layout.place.top);
  Width.Preset(layout.place.width);
  Height.Preset(layout.place.height);
  Visible.Preset(layout.isVisible);
  Enabled.Preset(layout.isEnabled);
  Font.Preset(layout.font.value_or(form_.Layout().font));
  ForeColor.Preset(layout.foreColor.value_or(UsualForeColor()));
  BackColor.Preset(layout.backColor.value_or(UsualBackColor()));
  ToolTipText.Preset(layout.toolTip);
  Tag.Preset(layout.tag);
}

std::string AccessKeyOf(std::string_view caption) {
  for (std::size_t i = 0; i + 1 < caption.size(); ++i) {
    if (caption[i] != '&') continue;
    const char key = caption[++i];
    if (key == '&') continue;
    return std::string(1, key >= 'A' && key <= 'Z' ? static_cast<char>(key - 'A' + 'a') : key);
  }
  return {};
}

std::string ShownCaption(std::string_view caption) {
  std::string shown;
  for (std::size_t i = 0; i < caption.size(); ++i) {
    if (caption[i] == '&' && i + 1 < caption.size()) ++i;
    shown += caption[i];
  }
  return shown;
}

}  // namespace brimwork
