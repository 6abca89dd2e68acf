// An open key of the registry.
#pragma once

#include <windows.h>

#include <optional>
#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace brimwork::win32 {

class RegistryKey {
 public:
  /// Not open when there is no such key or it may not be opened so. access: KEY_...
  RegistryKey(HKEY parent, std::string_view path, REGSAM access);
  ~RegistryKey();
  RegistryKey(const RegistryKey&) = delete;
  RegistryKey& operator=(const RegistryKey&) = delete;

  /// Opens a key, making it when it is not there. view: KEY_WOW64_32KEY or KEY_WOW64_64KEY for what
  /// programs of that word size see, 0 for what this one sees. Throws RunTimeError 75 when that
  /// fails.
  static RegistryKey Make(HKEY parent, std::string_view path, REGSAM view = 0);

  bool IsOpen() const { return key_ != nullptr; }
  HKEY Get() const { return key_; }

  std::vector<std::string> Keys() const;

  /// Nothing for a value that is not there or is of another type. name "" is the default value.
  std::optional<std::string> Text(std::string_view name) const;
  std::optional<unsigned long> Number(std::string_view name) const;

  // Each throws RunTimeError 75 when it fails.

  void SetText(std::string_view name, std::string_view text);
  void SetNumber(std::string_view name, unsigned long number);

 private:
  explicit RegistryKey(HKEY key) : key_(key) {}

  HKEY key_ = nullptr;
};

/// Removes a key with all in it; one that is not there is fine. view: as for Make.
void RemoveKey(HKEY parent, std::string_view path, REGSAM view = 0);

}  // namespace brimwork::win32
