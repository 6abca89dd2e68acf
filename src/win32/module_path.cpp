#include "win32/module_path.h"

#include "environment/run_time_error.h"
#include "win32/wide_text.h"

namespace brimwork::win32 {

std::string ModulePath(HMODULE module) {
  std::wstring path(MAX_PATH, L'\0');
  DWORD length = 0;
  while ((length = GetModuleFileNameW(module, path.data(), static_cast<DWORD>(path.size()))) ==
         path.size()) {
    path.resize(path.size() * 2);
  }
  if (length == 0) {
    throw RunTimeError(error_number::kInvalidProcedureCall, SystemWords(GetLastError()));
  }
  path.resize(length);
  return Narrow(path);
}

}  // namespace brimwork::win32
