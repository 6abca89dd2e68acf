// A window class of this library's, which is gone with it.
#pragma once

#include <windows.h>

#include <string>

namespace brimwork::windows {

/// The library or program that this code is in.
HINSTANCE OwnModule();

class WindowClass {
 public:
  /// owner makes the name its own: each owner has its classes. Raises error 5 when the system
  /// refuses.
  WindowClass(const wchar_t* name, const void* owner, WNDPROC procedure, UINT style = 0);
  WindowClass(const WindowClass&) = delete;
  WindowClass& operator=(const WindowClass&) = delete;
  ~WindowClass();

  const wchar_t* Name() const { return name_.c_str(); }

 private:
  std::wstring name_;
};

}  // namespace brimwork::windows
