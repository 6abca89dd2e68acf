#include "windows/desktop/timer_window.h"

#include "windows/desktop/system_error.h"

namespace brimwork::windows {

// A window of a class that there is: a class of its own would have to go with the library.
TimerWindow::TimerWindow(Handler handler) : handler_(std::move(handler)) {
  window_ = CreateWindowExW(0, L"STATIC", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr,
                            nullptr);
  if (window_ == nullptr) RaiseSystemError("CreateWindowEx");
  SetWindowLongPtrW(window_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  SetWindowLongPtrW(window_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure));
}

TimerWindow::~TimerWindow() { DestroyWindow(window_); }

LRESULT CALLBACK TimerWindow::Procedure(HWND window, UINT message, WPARAM wide,
                                        LPARAM longer) noexcept {
  if (message != WM_TIMER) return DefWindowProcW(window, message, wide, longer);
  const auto* const self =
      reinterpret_cast<const TimerWindow*>(GetWindowLongPtrW(window, GWLP_USERDATA));
  try {
    const Handler handler = self->handler_;
    handler(wide);
  } catch (...) {
  }
  return 0;
}

}  // namespace brimwork::windows
