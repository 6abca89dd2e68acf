#include "win32/system_library.h"

#include <array>
#include <string>

namespace brimwork::win32 {
namespace {

/// "" when the system does not say.
std::wstring SystemFolder() {
  std::array<wchar_t, MAX_PATH> folder{};
  const UINT length = GetSystemDirectoryW(folder.data(), static_cast<UINT>(folder.size()));
  return length < folder.size() ? std::wstring(folder.data(), length) : std::wstring();
}

}  // namespace

// What the library itself needs comes from its folder first, too.
SystemLibrary::SystemLibrary(std::wstring_view name) {
  const std::wstring folder = SystemFolder();
  if (folder.empty()) return;
  const std::wstring path = folder + L'\\' + std::wstring(name);
  module_ = LoadLibraryExW(path.c_str(), nullptr, LOAD_WITH_ALTERED_SEARCH_PATH);
}

SystemLibrary::~SystemLibrary() {
  if (module_ != nullptr) FreeLibrary(module_);
}

void (*SystemLibrary::Address(const char* function) const)() {
  if (module_ == nullptr) return nullptr;
  return reinterpret_cast<void (*)()>(GetProcAddress(module_, function));
}

}  // namespace brimwork::win32
