#include "windows/desktop/system_registry.h"

#include <windows.h>

#include <algorithm>
#include <string>

#include "win32/wide_text.h"
#include "windows/desktop/registry_values.h"

namespace brimwork::windows {
namespace {

/// The system keeps the numbers of its hives as negative ones.
HKEY HiveOf(std::uint32_t hive) {
  return reinterpret_cast<HKEY>(static_cast<LONG_PTR>(static_cast<LONG>(hive)));
}

HKEY KeyOf(RegistryKey key) { return reinterpret_cast<HKEY>(key); }

bool IsText(DWORD type) { return type == REG_SZ || type == REG_EXPAND_SZ; }

std::string BytesOf(const RegistryValue& value) {
  if (!IsText(value.type)) return {value.bytes.begin(), value.bytes.end()};
  return TextOfValue(value) + '\0';
}

}  // namespace

int SystemRegistry::OpenKey(std::uint32_t hive, std::string_view path, std::uint32_t access,
                            RegistryKey& key) {
  HKEY opened = nullptr;
  const LSTATUS status = RegOpenKeyExW(HiveOf(hive), win32::Wide(path).c_str(), 0, access, &opened);
  if (status == ERROR_SUCCESS) key = reinterpret_cast<RegistryKey>(opened);
  return static_cast<int>(status);
}

int SystemRegistry::QueryValue(RegistryKey key, std::string_view name, std::uint32_t& type,
                               std::span<char> buffer, std::uint32_t& size) {
  const RegistryValue value = windows::ReadRegistryValue(KeyOf(key), win32::Wide(name));
  if (value.status != ERROR_SUCCESS) return static_cast<int>(value.status);
  const std::string bytes = BytesOf(value);
  const std::size_t room = std::min<std::size_t>(size, buffer.size());
  type = value.type;
  size = static_cast<std::uint32_t>(bytes.size());
  if (bytes.size() > room) return ERROR_MORE_DATA;
  std::ranges::copy(bytes, buffer.begin());
  return ERROR_SUCCESS;
}

int SystemRegistry::CloseKey(RegistryKey key) { return static_cast<int>(RegCloseKey(KeyOf(key))); }

}  // namespace brimwork::windows
