#include "bench/screen/subclass.h"

#include "bench/screen/faults.h"

namespace brimwork::bench {

SubclassedControl::~SubclassedControl() {
  if (handle_ != nullptr) DestroyWindow(handle_);
}

void SubclassedControl::Create(HWND parent, const wchar_t* className, DWORD style,
                               DWORD extendedStyle, HFONT font) {
  handle_ = CreateWindowExW(extendedStyle, className, L"", style | WS_CHILD, 0, 0, 0, 0, parent,
                            nullptr, GetModuleHandleW(nullptr), nullptr);
  CheckSystem(handle_ != nullptr, "a control could not be made");
  SetWindowLongPtrW(handle_, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(this));
  original_ = reinterpret_cast<WNDPROC>(
      SetWindowLongPtrW(handle_, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(&Procedure)));
  SendMessageW(handle_, WM_SETFONT, reinterpret_cast<WPARAM>(font), FALSE);
}

LRESULT CALLBACK SubclassedControl::Procedure(HWND handle, UINT message, WPARAM wide,
                                              LPARAM longer) noexcept {
  auto* control = reinterpret_cast<SubclassedControl*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
  const WNDPROC original = control->original_;
  try {
    if (message != WM_NCDESTROY) return control->OnMessage(message, wide, longer);
    SetWindowLongPtrW(handle, GWLP_WNDPROC, reinterpret_cast<LONG_PTR>(original));
    control->handle_ = nullptr;
    return CallWindowProcW(original, handle, message, wide, longer);
  } catch (...) {
    ReportFault(handle);
    return 0;
  }
}

}  // namespace brimwork::bench
