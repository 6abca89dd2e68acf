#include "windows/desktop/registry_values.h"

#include <algorithm>
#include <cstring>

#include "win32/wide_text.h"

namespace brimwork::windows {

RegistryValue ReadRegistryValue(HKEY key, const std::wstring& name) {
  RegistryValue value;
  value.bytes.resize(256);
  DWORD size = 0;
  do {
    value.bytes.resize(std::max<std::size_t>(value.bytes.size(), size));
    size = static_cast<DWORD>(value.bytes.size());
    value.status = RegQueryValueExW(key, name.c_str(), nullptr, &value.type,
                                    reinterpret_cast<BYTE*>(value.bytes.data()), &size);
  } while (value.status == ERROR_MORE_DATA);
  value.bytes.resize(value.status == ERROR_SUCCESS ? size : 0);
  return value;
}

std::string TextOfValue(const RegistryValue& value) {
  std::wstring text(value.bytes.size() / sizeof(wchar_t), L'\0');
  std::memcpy(text.data(), value.bytes.data(), text.size() * sizeof(wchar_t));
  return win32::Narrow(std::wstring_view(text).substr(0, text.find(L'\0')));
}

}  // namespace brimwork::windows
