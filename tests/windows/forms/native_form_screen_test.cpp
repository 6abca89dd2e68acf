#include "windows/forms/native_form_screen.h"

#include "windows/forms/native_forms.h"

namespace brimwork::windows {
namespace native_form_screen_test {

TEST(NativeFormScreen, TheActiveFormIsTheOneThatWasActiveLast) {
  NativeForms forms;
  NativeFormScreen screen(forms.host);
  EXPECT_EQ(screen.ActiveForm(), nullptr);
  frmSample first(forms.host), second(forms.host);
  first.Show();
  second.Show();
  EXPECT_EQ(screen.ActiveForm()->hWnd(), second.hWnd());
  SetForegroundWindow(forms.owner);
  forms.messages.DoEvents();
  EXPECT_EQ(screen.ActiveForm()->hWnd(), second.hWnd());
  second.Hide();
  EXPECT_EQ(screen.ActiveForm()->hWnd(), first.hWnd());
  first.Unload();
  EXPECT_EQ(screen.ActiveForm(), nullptr);
}

TEST(NativeFormScreen, LengthsAreTwips) {
  NativeForms forms;
  NativeFormHost host({}, {}, {}, ScreenScale{144});
  NativeFormScreen screen(host);
  EXPECT_EQ(screen.TwipsPerPixelX(), 10);
  EXPECT_EQ(screen.Width(), 10.0 * GetSystemMetrics(SM_CXSCREEN));
  EXPECT_EQ(screen.Height(), 10.0 * GetSystemMetrics(SM_CYSCREEN));
}

TEST(NativeFormScreen, TextIsAsLargeAsInTheFormsFont) {
  NativeForms forms;
  NativeFormScreen screen(forms.host);
  frmSample form(forms.host);
  form.Show();
  const auto active = screen.ActiveForm();
  const SIZE size = forms.host.MeasurePixels("Do not ask", kSampleLayout.font);
  EXPECT_EQ(active->TextWidth("Do not ask"), size.cx * screen.TwipsPerPixelX());
  EXPECT_EQ(active->TextHeight("Do not ask"), size.cy * screen.TwipsPerPixelY());
  EXPECT_EQ(active->TextHeight("Do not\r\nask"), 2 * active->TextHeight("x"));
  EXPECT_LT(active->TextWidth("Do not\r\nask"), active->TextWidth("Do not ask"));
}

}  // namespace native_form_screen_test
}  // namespace brimwork::windows
