// A control of the system's whose messages pass through this program first.
#pragma once

#include <windows.h>

#include "bench/model/surface.h"

namespace brimwork::bench {

class SubclassedControl {
 public:
  SubclassedControl() = default;
  SubclassedControl(const SubclassedControl&) = delete;
  SubclassedControl& operator=(const SubclassedControl&) = delete;
  virtual ~SubclassedControl();

  HWND Handle() const { return handle_; }

 protected:
  /// Makes the control as a child. Throws RunTimeError when the system makes none.
  void Create(HWND parent, const wchar_t* className, DWORD style, DWORD extendedStyle, HFONT font);

  virtual LRESULT OnMessage(UINT message, WPARAM wide, LPARAM longer) {
    return Default(message, wide, longer);
  }

  LRESULT Default(UINT message, WPARAM wide, LPARAM longer) {
    return CallWindowProcW(original_, handle_, message, wide, longer);
  }

 private:
  static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wide, LPARAM longer) noexcept;

  HWND handle_ = nullptr;
  WNDPROC original_ = nullptr;
};

}  // namespace brimwork::bench
