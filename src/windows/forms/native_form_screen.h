// The user's screen, and the form that is in front of the others there.
#pragma once

#include <windows.h>

#include <memory>

#include "environment/form_screen.h"
#include "windows/forms/native_form_host.h"

namespace brimwork::windows {

class NativeFormScreen : public FormScreen {
 public:
  /// host is used as long as the screen lives.
  explicit NativeFormScreen(NativeFormHost& host) : host_(host) {}

  /// It is used as long as the host lives.
  std::shared_ptr<ScreenForm> ActiveForm() override;

  double Width() override;
  double Height() override;
  double TwipsPerPixelX() override { return host_.Scale().TwipsPerPixel(); }
  double TwipsPerPixelY() override { return host_.Scale().TwipsPerPixel(); }

 private:
  NativeFormHost& host_;
};

}  // namespace brimwork::windows
