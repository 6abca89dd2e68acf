#include "environment/form.h"

#include <stdexcept>
#include <string>

#include "environment/resume_next.h"

namespace brimwork {

Form::Form(FormHost& host, const FormLayout& layout) : host_(host), layout_(layout) {}

Form::~Form() {
  if (isLoaded_) host_.Unload(*this);
}

void Form::Load() {
  if (isLoaded_) return;
  DesignControls();
  const auto error = ResumeNext([this] {
    window_ = host_.Load(*this);
    isLoaded_ = true;
    Form_Load();
  });
  if (!error) return;
  Discard();
  throw *error;
}

void Form::Show(ShowMode mode) {
  Load();
  if (!isLoaded_) return;  // Form_Load has unloaded it
  isVisible_ = true;
  const auto error = ResumeNext([&] {
    Prepare();
    host_.Show(*this, mode);
  });
  if (!error) return;
  Hide();
  throw *error;
}

void Form::Prepare() {
  if (!wasShown_) {
    wasShown_ = true;
    Form_Resize();
  }
  if (active_ == nullptr) FocusTabStop(nullptr, 1);
}

void Form::Hide() {
  if (!isVisible_) return;
  isVisible_ = false;
  host_.Hide(*this);
}

void Form::Unload() {
  if (!isLoaded_ || isUnloading_) return;
  isUnloading_ = true;
  const auto error = ResumeNext([this] { Form_Unload(); });
  isUnloading_ = false;
  Discard();
  if (error) throw *error;
}

void Form::Resize(int width, int height) {
  if (!isVisible_ || layout_.border != FormBorder::kSizable) return;
  width_ = width;
  height_ = height;
  Changed(PropertyId::kPlace);
  Form_Resize();
}

void Form::Close() {
  if (isVisible_ && layout_.hasControlBox) Unload();
}

void Form::Refresh(Control& control) {
  if (isLoaded_) host_.Refresh(*this, control);
}

void Form::Changed(PropertyId property) {
  if (isLoaded_) host_.Changed(*this, nullptr, property);
}

void Form::DesignControls() {
  Caption.Preset(layout_.caption);
  width_ = layout_.width;
  height_ = layout_.height;
  for (const ControlLayout& row : layout_.controls) {
    Control& control = Find({row.name, row.index});
    control.container_ = row.container.name.empty() ? nullptr : &Find(row.container);
    control.Design(row);
  }
}

void Form::Discard() {
  isLoaded_ = false;
  isVisible_ = false;
  wasShown_ = false;
  active_ = nullptr;
  host_.Unload(*this);
  window_ = 0;
}

Control& Form::Find(const ControlName& name) const {
  for (Control* control : controls_) {
    if (ControlName{control->Name(), control->Index()} == name) return *control;
  }
  throw std::logic_error(std::string(layout_.name) + " has no control " + std::string(name.name));
}

}  // namespace brimwork
