#include "windows/forms/native_form_host.h"

#include <algorithm>
#include <utility>

#include "environment/form.h"

namespace brimwork::windows {

NativeFormHost::NativeFormHost(PictureFiles pictures, FormOwner owner, FormErrorHandler onError,
                               ScreenScale scale)
    : kit_(std::make_shared<FormKit>(std::move(pictures), scale)) {
  kit_->owner = std::move(owner);
  kit_->onError = std::move(onError);
}

NativeFormHost::~NativeFormHost() {
  for (const auto& window : windows_) window->Destroy();
  for (const auto& leaving : leaving_) {
    if (const auto window = leaving.lock()) window->Destroy();
  }
}

std::shared_ptr<FormWindow> NativeFormHost::WindowOf(const Form& form) const {
  const auto found =
      std::ranges::find_if(windows_, [&](const auto& window) { return window->IsOf(form); });
  return found == windows_.end() ? nullptr : *found;
}

WindowHandle NativeFormHost::Load(Form& form) {
  windows_.push_back(std::make_shared<FormWindow>(kit_, form));
  const auto window = windows_.back();
  window->Create();
  return reinterpret_cast<WindowHandle>(window->Handle());
}

void NativeFormHost::Show(Form& form, ShowMode mode) {
  if (const auto window = WindowOf(form)) window->Show(mode);
}

void NativeFormHost::Hide(Form& form) {
  if (const auto window = WindowOf(form)) window->Hide();
}

void NativeFormHost::Unload(Form& form) {
  const auto window = WindowOf(form);
  if (!window) return;
  std::erase(windows_, window);
  std::erase_if(leaving_, [](const auto& leaving) { return leaving.expired(); });
  leaving_.push_back(window);
  window->LetGo();
}

void NativeFormHost::Changed(Form& form, Control* control, PropertyId property) {
  if (const auto window = WindowOf(form)) window->Changed(control, property);
}

void NativeFormHost::Refresh(Form& form, Control& control) {
  if (const auto window = WindowOf(form)) window->Refresh(control);
}

TextExtent NativeFormHost::Measure(std::string_view text, const ControlFont& font) {
  const SIZE size = MeasurePixels(text, font);
  return {Scale().FromPixels(size.cx), Scale().FromPixels(size.cy)};
}

Form* NativeFormHost::ActiveForm() const {
  for (auto handle = kit_->activated.rbegin(); handle != kit_->activated.rend(); ++handle) {
    for (const auto& window : windows_) {
      const bool isShown = window->Handle() == *handle && window->Data().Visible();
      if (isShown) return &window->Data();
    }
  }
  return nullptr;
}

HWND NativeFormHost::HandleOf(const Control& control) const {
  const auto window = WindowOf(control.Parent());
  const ControlWindow* const shown = window ? window->WindowOf(control) : nullptr;
  return shown != nullptr ? shown->Handle() : nullptr;
}

}  // namespace brimwork::windows
