// Libraries of the system, loaded from its own folder only: a file of that name beside the program
// or in the current folder is never run.
#pragma once

#include <windows.h>

#include <string_view>

namespace brimwork::win32 {

/// A library that stays loaded while the object lives. Empty when the system has none of that name.
class SystemLibrary {
 public:
  SystemLibrary() = default;
  /// name: of the file, without a folder ("hhctrl.ocx").
  explicit SystemLibrary(std::wstring_view name);
  SystemLibrary(const SystemLibrary&) = delete;
  SystemLibrary& operator=(const SystemLibrary&) = delete;
  ~SystemLibrary();

  explicit operator bool() const { return module_ != nullptr; }

  /// Null when the library is not there or has no such function.
  template <class Function>
  Function* Find(const char* function) const {
    return reinterpret_cast<Function*>(Address(function));
  }

 private:
  void (*Address(const char* function) const)();

  HMODULE module_ = nullptr;
};

}  // namespace brimwork::win32
