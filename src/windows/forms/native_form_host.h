// Shows forms in windows of the system's.
#pragma once

#include <windows.h>

#include <functional>
#include <memory>
#include <string_view>
#include <utility>
#include <vector>

#include "environment/form_host.h"
#include "windows/forms/form_kit.h"
#include "windows/forms/form_window.h"

namespace brimwork::windows {

/// The window that the forms' windows belong to and lie in front of; null for none.
using FormOwner = std::function<HWND()>;

/// Whatever message loop the thread runs, the forms' keys work. When the host goes, so do all of
/// its windows.
class NativeFormHost : public FormHost {
 public:
  /// owner is asked whenever a form is loaded. onError gets what an event of a form raised when a
  /// user's action led to it; without it such an error is passed over. Both may be empty. Raises
  /// error 5 when the system refuses.
  NativeFormHost(PictureFiles pictures, FormOwner owner, FormErrorHandler onError = {},
                 ScreenScale scale = CurrentScreenScale());
  NativeFormHost(const NativeFormHost&) = delete;
  NativeFormHost& operator=(const NativeFormHost&) = delete;
  ~NativeFormHost() override;

  void KeepAliveBy(FormKeeper keeper) { kit_->keeper = std::move(keeper); }

  WindowHandle Load(Form& form) override;
  void Show(Form& form, ShowMode mode) override;
  void Hide(Form& form) override;
  void Unload(Form& form) override;
  void Changed(Form& form, Control* control, PropertyId property) override;
  void Refresh(Form& form, Control& control) override;
  TextExtent Measure(std::string_view text, const ControlFont& font) override;

  /// The visible form that was active last; null when there is none.
  Form* ActiveForm() const;

  /// The window of a loaded form's control; null for one that is not seen.
  HWND HandleOf(const Control& control) const;

  /// The size of one line of text in pixels of the screen.
  SIZE MeasurePixels(std::string_view text, const ControlFont& font) {
    return kit_->fonts.Measure(text, font);
  }
  const ScreenScale& Scale() const { return kit_->scale; }

 private:
  std::shared_ptr<FormWindow> WindowOf(const Form& form) const;

  std::shared_ptr<FormKit> kit_;
  std::vector<std::shared_ptr<FormWindow>> windows_;
  std::vector<std::weak_ptr<FormWindow>> leaving_;  // unloaded while the system was at work in them
};

}  // namespace brimwork::windows
