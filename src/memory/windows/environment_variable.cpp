#include <windows.h>

#include "memory/user_folders.h"
#include "win32/wide_text.h"

namespace brimwork {

std::string EnvironmentVariable(const char* name) {
  const std::wstring wideName = win32::Wide(name);
  std::wstring value(MAX_PATH, L'\0');
  for (;;) {
    const DWORD length =
        GetEnvironmentVariableW(wideName.c_str(), value.data(), static_cast<DWORD>(value.size()));
    const bool fits = length < value.size();  // else it is the size that it takes
    value.resize(length);
    if (fits) return win32::Narrow(value);
  }
}

}  // namespace brimwork
