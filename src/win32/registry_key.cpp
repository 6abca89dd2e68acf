#include "win32/registry_key.h"

#include "environment/run_time_error.h"
#include "win32/wide_text.h"

namespace brimwork::win32 {
namespace {

void Require(LSTATUS status, const std::string& what) {
  if (status == ERROR_SUCCESS) return;
  throw RunTimeError(error_number::kPathFileAccess,
                     what + ": " + SystemWords(static_cast<DWORD>(status)));
}

}  // namespace

RegistryKey::RegistryKey(HKEY parent, std::string_view path, REGSAM access) {
  if (RegOpenKeyExW(parent, Wide(path).c_str(), 0, access, &key_) != ERROR_SUCCESS) key_ = nullptr;
}

RegistryKey::~RegistryKey() {
  if (key_ != nullptr) RegCloseKey(key_);
}

RegistryKey RegistryKey::Make(HKEY parent, std::string_view path, REGSAM view) {
  HKEY key = nullptr;
  Require(RegCreateKeyExW(parent, Wide(path).c_str(), 0, nullptr, 0, KEY_READ | KEY_WRITE | view,
                          nullptr, &key, nullptr),
          "cannot make the registry key " + std::string(path));
  return RegistryKey(key);
}

std::vector<std::string> RegistryKey::Keys() const {
  constexpr DWORD kLongestName = 256;
  std::vector<std::string> keys;
  wchar_t name[kLongestName];
  for (DWORD index = 0;; ++index) {
    DWORD size = kLongestName;
    if (RegEnumKeyExW(key_, index, name, &size, nullptr, nullptr, nullptr, nullptr) !=
        ERROR_SUCCESS) {
      return keys;
    }
    keys.push_back(Narrow({name, size}));
  }
}

std::optional<std::string> RegistryKey::Text(std::string_view name) const {
  const std::wstring wide = Wide(name);
  DWORD type = 0;
  DWORD bytes = 0;
  if (RegQueryValueExW(key_, wide.c_str(), nullptr, &type, nullptr, &bytes) != ERROR_SUCCESS ||
      (type != REG_SZ && type != REG_EXPAND_SZ)) {
    return std::nullopt;
  }
  std::wstring text(bytes / sizeof(wchar_t), L'\0');
  if (RegQueryValueExW(key_, wide.c_str(), nullptr, nullptr, reinterpret_cast<BYTE*>(text.data()),
                       &bytes) != ERROR_SUCCESS) {
    return std::nullopt;
  }
  text.resize(bytes / sizeof(wchar_t));
  while (text.ends_with(L'\0')) text.pop_back();
  return Narrow(text);
}

std::optional<unsigned long> RegistryKey::Number(std::string_view name) const {
  DWORD number = 0;
  DWORD bytes = sizeof number;
  DWORD type = 0;
  if (RegQueryValueExW(key_, Wide(name).c_str(), nullptr, &type, reinterpret_cast<BYTE*>(&number),
                       &bytes) != ERROR_SUCCESS ||
      type != REG_DWORD) {
    return std::nullopt;
  }
  return number;
}

void RegistryKey::SetText(std::string_view name, std::string_view text) {
  const std::wstring wide = Wide(text);
  const auto bytes = static_cast<DWORD>((wide.size() + 1) * sizeof(wchar_t));
  Require(RegSetValueExW(key_, Wide(name).c_str(), 0, REG_SZ,
                         reinterpret_cast<const BYTE*>(wide.c_str()), bytes),
          "cannot write the registry value " + std::string(name));
}

void RegistryKey::SetNumber(std::string_view name, unsigned long number) {
  const DWORD value = number;
  Require(RegSetValueExW(key_, Wide(name).c_str(), 0, REG_DWORD,
                         reinterpret_cast<const BYTE*>(&value), sizeof value),
          "cannot write the registry value " + std::string(name));
}

// Keys are removed from within: older systems have no call for a whole tree. A key that is opened
// in a view is removed by its path in that view.
void RemoveKey(HKEY parent, std::string_view path, REGSAM view) {
  {
    const RegistryKey key(parent, path, KEY_READ | KEY_WRITE | view);
    if (!key.IsOpen()) return;
    for (const std::string& inner : key.Keys()) RemoveKey(key.Get(), inner, view);
  }
  const std::size_t last = path.rfind('\\');
  if (last == path.npos) {
    RegDeleteKeyW(parent, Wide(path).c_str());
    return;
  }
  const RegistryKey above(parent, path.substr(0, last), KEY_READ | KEY_WRITE | view);
  if (above.IsOpen()) RegDeleteKeyW(above.Get(), Wide(path.substr(last + 1)).c_str());
}

}  // namespace brimwork::win32
