#include "windows/forms/native_form_screen.h"

#include <algorithm>
#include <string>

#include "environment/form.h"
#include "environment/text.h"

namespace brimwork::windows {
namespace {

/// A form of the host's. Its window and font are kept, not the form, which may go meanwhile.
class NativeScreenForm : public ScreenForm {
 public:
  NativeScreenForm(NativeFormHost& host, const Form& form)
      : host_(host), window_(form.hWnd()), font_(form.Layout().font), fontName_(font_.name) {
    font_.name = fontName_;
  }

  WindowHandle hWnd() override { return window_; }

  double TextHeight(std::string_view text) override {
    return host_.Scale().TwipsPerPixel() * Size(text).cy;
  }
  double TextWidth(std::string_view text) override {
    return host_.Scale().TwipsPerPixel() * Size(text).cx;
  }

 private:
  /// Lines lie below each other; the widest counts.
  SIZE Size(std::string_view text) {
    SIZE whole = {};
    for (const std::string_view line : SplitLines(text)) {
      const SIZE size = host_.MeasurePixels(line, font_);
      whole.cx = std::max(whole.cx, size.cx);
      whole.cy += size.cy;
    }
    return whole;
  }

  NativeFormHost& host_;
  WindowHandle window_;
  ControlFont font_;
  std::string fontName_;
};

}  // namespace

std::shared_ptr<ScreenForm> NativeFormScreen::ActiveForm() {
  const Form* const form = host_.ActiveForm();
  return form != nullptr ? std::make_shared<NativeScreenForm>(host_, *form) : nullptr;
}

double NativeFormScreen::Width() { return GetSystemMetrics(SM_CXSCREEN) * TwipsPerPixelX(); }

double NativeFormScreen::Height() { return GetSystemMetrics(SM_CYSCREEN) * TwipsPerPixelY(); }

}  // namespace brimwork::windows
