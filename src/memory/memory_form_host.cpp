#include "memory/memory_form_host.h"

#include <algorithm>
#include <utility>

#include "environment/text.h"

namespace brimwork {

WindowHandle MemoryFormHost::Load(Form& form) {
  while (windows_.IsWindow(nextHandle_)) ++nextHandle_;
  windows_.windows[nextHandle_].systemMenu = {{kCloseCommand, 0}};
  loaded_.push_back({&form, nextHandle_, form.Layout().name});
  Note("load ", loaded_.back());
  for (const Control* control : form.Controls()) waited_.erase(control);
  return nextHandle_;
}

void MemoryFormHost::Show(Form& form, ShowMode mode) {
  if (FormWindow* const window = WindowOf(form)) {
    window->shown = mode;
    Note("show ", *window);
  }
  if (mode == ShowMode::kModal && playModalUser) playModalUser(form);
}

void MemoryFormHost::Hide(Form& form) {
  if (FormWindow* const window = WindowOf(form)) {
    window->shown.reset();
    Note("hide ", *window);
  }
}

void MemoryFormHost::Unload(Form& form) {
  FormWindow* const window = WindowOf(form);
  if (window == nullptr) return;
  Note("unload ", *window);
  windows_.windows.erase(window->handle);
  loaded_.erase(loaded_.begin() + (window - loaded_.data()));
  if (onUnload) onUnload();
}

void MemoryFormHost::Note(std::string_view event, const FormWindow& window) {
  events.push_back(std::string(event).append(window.name));
}

// A timer that is set anew waits a whole interval again.
void MemoryFormHost::Changed(Form& form, Control* control, PropertyId property) {
  if (property == PropertyId::kEnabled || property == PropertyId::kInterval) waited_.erase(control);
  if (onChange) onChange(form, control, property);
}

void MemoryFormHost::Refresh(Form& form, Control& control) {
  if (onRefresh) onRefresh(form, control);
}

TextExtent MemoryFormHost::Measure(std::string_view text, const ControlFont& /*font*/) {
  return {CharacterCount(text) * kCharacterWidth, kLineHeight};
}

// A form may be unloaded by one of its timers, or by another form's.
void MemoryFormHost::Elapse(int milliseconds) {
  for (int passed = 0; passed < milliseconds; ++passed) {
    for (Form* form : LoadedForms()) {
      if (IsLoaded(*form)) PassMillisecond(*form);
    }
  }
}

void MemoryFormHost::PassMillisecond(Form& form) {
  for (Control* control : form.Controls()) {
    if (control->Kind() != ControlKind::kTimer) continue;
    auto& timer = static_cast<Timer&>(*control);
    if (!timer.IsRunning() || ++waited_[control] < timer.Interval) continue;
    waited_.erase(control);
    timer.Tick();
  }
}

std::vector<Form*> MemoryFormHost::LoadedForms() const {
  std::vector<Form*> forms;
  for (const FormWindow& window : loaded_) forms.push_back(window.form);
  return forms;
}

bool MemoryFormHost::IsLoaded(const Form& form) const { return WindowOf(form) != nullptr; }

bool MemoryFormHost::IsVisible(const Form& form) const {
  const FormWindow* const window = WindowOf(form);
  return window != nullptr && window->shown;
}

bool MemoryFormHost::IsModal(const Form& form) const {
  return IsVisible(form) && WindowOf(form)->shown == ShowMode::kModal;
}

const MemoryFormHost::FormWindow* MemoryFormHost::WindowOf(const Form& form) const {
  const auto window = std::find_if(loaded_.begin(), loaded_.end(),
                                   [&](const FormWindow& each) { return each.form == &form; });
  return window == loaded_.end() ? nullptr : &*window;
}

MemoryFormHost::FormWindow* MemoryFormHost::WindowOf(const Form& form) {
  return const_cast<FormWindow*>(std::as_const(*this).WindowOf(form));
}

}  // namespace brimwork
