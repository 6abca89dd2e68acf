#include "windows/desktop/registry_settings_area.h"

#include <windows.h>

#include "win32/wide_text.h"
#include "windows/desktop/registry_values.h"
#include "windows/desktop/system_error.h"

namespace brimwork::windows {
namespace {

using win32::Wide;

std::wstring PathOf(std::string_view application, std::string_view section) {
  return L"Software\\VB and VBA Program Settings\\" + Wide(application) + L'\\' + Wide(section);
}

OpenRegistryKey OpenForReading(const std::wstring& path) {
  HKEY key = nullptr;
  RegOpenKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, KEY_QUERY_VALUE, &key);
  return OpenRegistryKey(key);
}

OpenRegistryKey OpenForWriting(const std::wstring& path) {
  HKEY key = nullptr;
  const LSTATUS status = RegCreateKeyExW(HKEY_CURRENT_USER, path.c_str(), 0, nullptr, 0,
                                         KEY_SET_VALUE, nullptr, &key, nullptr);
  if (status != ERROR_SUCCESS) RaiseSystemError("SaveSetting", static_cast<DWORD>(status));
  return OpenRegistryKey(key);
}

}  // namespace

std::string RegistrySettingsArea::GetSetting(std::string_view application, std::string_view section,
                                             std::string_view key, std::string_view defaultValue) {
  const OpenRegistryKey opened = OpenForReading(PathOf(application, section));
  if (!opened) return std::string(defaultValue);
  const RegistryValue value = ReadRegistryValue(opened.Get(), Wide(key));
  const bool isText = value.status == ERROR_SUCCESS && value.type == REG_SZ;
  return isText ? TextOfValue(value) : std::string(defaultValue);
}

void RegistrySettingsArea::SaveSetting(std::string_view application, std::string_view section,
                                       std::string_view key, std::string_view value) {
  const OpenRegistryKey opened = OpenForWriting(PathOf(application, section));
  const std::wstring text = Wide(value);
  const auto size = static_cast<DWORD>((text.size() + 1) * sizeof(wchar_t));
  const LSTATUS status = RegSetValueExW(opened.Get(), Wide(key).c_str(), 0, REG_SZ,
                                        reinterpret_cast<const BYTE*>(text.c_str()), size);
  if (status != ERROR_SUCCESS) RaiseSystemError("SaveSetting", static_cast<DWORD>(status));
}

}  // namespace brimwork::windows
