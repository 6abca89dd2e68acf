#include "windows/forms/window_class.h"

#include <cstdint>

#include "windows/desktop/system_error.h"

namespace brimwork::windows {
namespace {

const char kInThisModule = 0;

}  // namespace

HINSTANCE OwnModule() {
  HMODULE module = nullptr;
  GetModuleHandleExW(
      GET_MODULE_HANDLE_EX_FLAG_FROM_ADDRESS | GET_MODULE_HANDLE_EX_FLAG_UNCHANGED_REFCOUNT,
      reinterpret_cast<LPCWSTR>(&kInThisModule), &module);
  return module;
}

WindowClass::WindowClass(const wchar_t* name, const void* owner, WNDPROC procedure, UINT style)
    : name_(name + std::to_wstring(reinterpret_cast<std::uintptr_t>(owner))) {
  WNDCLASSEXW record = {};
  record.cbSize = sizeof record;
  record.style = style;
  record.lpfnWndProc = procedure;
  record.hInstance = OwnModule();
  record.hCursor = LoadCursorW(nullptr, IDC_ARROW);
  record.lpszClassName = name_.c_str();
  if (RegisterClassExW(&record) == 0) RaiseSystemError("RegisterClassEx");
}

WindowClass::~WindowClass() { UnregisterClassW(name_.c_str(), OwnModule()); }

}  // namespace brimwork::windows
