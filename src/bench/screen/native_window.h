// A window of a class of this program's own: the one place where messages enter it.
#pragma once

#include <windows.h>

#include "bench/model/surface.h"

namespace brimwork::bench {

class NativeWindow {
 public:
  NativeWindow() = default;
  NativeWindow(const NativeWindow&) = delete;
  NativeWindow& operator=(const NativeWindow&) = delete;
  virtual ~NativeWindow();

  /// Null before it is created and after it is destroyed.
  HWND Handle() const { return handle_; }

 protected:
  struct Design {
    const wchar_t* className = L"";  // registered when it is first used
    const wchar_t* title = L"";
    DWORD style = 0;
    DWORD extendedStyle = 0;
    HWND parent = nullptr;
    Bounds bounds{CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT, CW_USEDEFAULT};
    int background = COLOR_BTNFACE;  // -1 for none
    UINT classStyle = 0;
  };

  /// Throws RunTimeError when the system makes no window.
  void Create(const Design& design);

  /// Destroys the window while the object is still whole; a class that overrides Default calls it
  /// in its destructor.
  void Destroy();

  /// Answers a message; may throw, which is shown to the user.
  virtual LRESULT OnMessage(UINT message, WPARAM wide, LPARAM longer) {
    return Default(message, wide, longer);
  }

  /// What the system does with a message.
  virtual LRESULT Default(UINT message, WPARAM wide, LPARAM longer) {
    return DefWindowProcW(handle_, message, wide, longer);
  }

 private:
  static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wide, LPARAM longer) noexcept;
  static NativeWindow* Bind(HWND handle, LPARAM creation);
  static void Register(const Design& design);

  HWND handle_ = nullptr;
};

}  // namespace brimwork::bench
