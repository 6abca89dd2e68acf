// A window that is never shown, for the timers of an object.
#pragma once

#include <windows.h>

#include <functional>
#include <utility>

namespace brimwork::windows {

class TimerWindow {
 public:
  /// Called each time a timer of the window fires, with its number. What it throws is passed over:
  /// there is nobody to throw it to. It may end the window.
  using Handler = std::function<void(UINT_PTR timer)>;

  /// Raises error 5 when the system makes no window.
  explicit TimerWindow(Handler handler);
  TimerWindow(const TimerWindow&) = delete;
  TimerWindow& operator=(const TimerWindow&) = delete;
  ~TimerWindow();

  HWND Handle() const { return window_; }

 private:
  static LRESULT CALLBACK Procedure(HWND window, UINT message, WPARAM wide, LPARAM longer) noexcept;

  Handler handler_;
  HWND window_;
};

}  // namespace brimwork::windows
