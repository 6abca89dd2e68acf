#include "bench/screen/native_window.h"

#include "bench/screen/faults.h"

namespace brimwork::bench {

NativeWindow::~NativeWindow() { Destroy(); }

void NativeWindow::Create(const Design& design) {
  Register(design);
  CreateWindowExW(design.extendedStyle, design.className, design.title, design.style,
                  design.bounds.left, design.bounds.top, design.bounds.width, design.bounds.height,
                  design.parent, nullptr, GetModuleHandleW(nullptr), this);
  CheckSystem(handle_ != nullptr, "a window could not be made");
}

void NativeWindow::Destroy() {
  if (handle_ != nullptr) DestroyWindow(handle_);
}

// A child of an MDI client gets the parameter in a wrapping of the client's.
NativeWindow* NativeWindow::Bind(HWND handle, LPARAM creation) {
  const auto* made = reinterpret_cast<const CREATESTRUCTW*>(creation);
  void* parameter = made->lpCreateParams;
  if ((made->dwExStyle & WS_EX_MDICHILD) != 0) {
    parameter = reinterpret_cast<void*>(static_cast<const MDICREATESTRUCTW*>(parameter)->lParam);
  }
  auto* window = static_cast<NativeWindow*>(parameter);
  window->handle_ = handle;
  SetWindowLongPtrW(handle, GWLP_USERDATA, reinterpret_cast<LONG_PTR>(window));
  return window;
}

LRESULT CALLBACK NativeWindow::Procedure(HWND handle, UINT message, WPARAM wide,
                                         LPARAM longer) noexcept {
  auto* window = reinterpret_cast<NativeWindow*>(GetWindowLongPtrW(handle, GWLP_USERDATA));
  if (message == WM_NCCREATE) window = Bind(handle, longer);
  if (window == nullptr) return DefWindowProcW(handle, message, wide, longer);
  try {
    if (message != WM_NCDESTROY) return window->OnMessage(message, wide, longer);
    SetWindowLongPtrW(handle, GWLP_USERDATA, 0);
    const LRESULT result = window->Default(message, wide, longer);
    window->handle_ = nullptr;
    return result;
  } catch (...) {
    ReportFault(handle);
    return 0;
  }
}

void NativeWindow::Register(const Design& design) {
  WNDCLASSEXW registered{};
  registered.cbSize = sizeof registered;
  if (GetClassInfoExW(GetModuleHandleW(nullptr), design.className, &registered)) return;
  registered.style = design.classStyle;
  registered.lpfnWndProc = &NativeWindow::Procedure;
  registered.hInstance = GetModuleHandleW(nullptr);
  registered.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  registered.hbrBackground = design.background < 0 ? nullptr : GetSysColorBrush(design.background);
  registered.lpszClassName = design.className;
  RegisterClassExW(&registered);
}

}  // namespace brimwork::bench
