// Keys of the system's registry that close themselves, and the text values under them.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <utility>
#include <vector>

namespace brimwork::windows {

class OpenRegistryKey {
 public:
  OpenRegistryKey() = default;
  explicit OpenRegistryKey(HKEY key) : key_(key) {}
  OpenRegistryKey(OpenRegistryKey&& other) noexcept : key_(std::exchange(other.key_, nullptr)) {}
  OpenRegistryKey& operator=(OpenRegistryKey&& other) noexcept {
    std::swap(key_, other.key_);
    return *this;
  }
  ~OpenRegistryKey() {
    if (key_ != nullptr) RegCloseKey(key_);
  }

  HKEY Get() const { return key_; }
  explicit operator bool() const { return key_ != nullptr; }

 private:
  HKEY key_ = nullptr;
};

/// A value as it is stored.
struct RegistryValue {
  LSTATUS status = ERROR_SUCCESS;
  DWORD type = REG_NONE;
  std::vector<char> bytes;
};

/// However large it is, also when another program writes it meanwhile.
RegistryValue ReadRegistryValue(HKEY key, const std::wstring& name);

/// The text of a text value's bytes, as UTF-8, up to its first NUL.
std::string TextOfValue(const RegistryValue& value);

}  // namespace brimwork::windows
