#include "windows/desktop/system_shell.h"

#include <shellapi.h>
#include <shlobj.h>

#include "win32/module_path.h"
#include "win32/wide_text.h"
#include "windows/desktop/system_error.h"

#undef ShellExecute

namespace brimwork::windows {
namespace {

using win32::Wide;

/// What ShellExecute answers where it fails, as an error of the system.
DWORD ErrorOf(INT_PTR answer) {
  switch (answer) {
    case 0:
      return ERROR_NOT_ENOUGH_MEMORY;
    case SE_ERR_NOASSOC:
      return ERROR_NO_ASSOCIATION;
    case SE_ERR_SHARE:
      return ERROR_SHARING_VIOLATION;
    default:
      return static_cast<DWORD>(answer);  // the same numbers as the system's
  }
}

}  // namespace

std::string SystemShellFolders::SpecialFolderPath(int folderId) {
  wchar_t path[MAX_PATH];
  const HRESULT status = SHGetFolderPathW(nullptr, folderId, nullptr, SHGFP_TYPE_CURRENT, path);
  if (status != S_OK) RaiseSystemError("SHGetFolderPath", static_cast<DWORD>(status));
  return win32::Narrow(path);
}

void SystemShell::ShellExecute(std::string_view verb, std::string_view file,
                               std::string_view parameters, std::string_view directory) {
  constexpr INT_PTR kHighestFailure = 32;
  const auto answer = reinterpret_cast<INT_PTR>(
      ShellExecuteW(nullptr, Wide(verb).c_str(), Wide(file).c_str(), Wide(parameters).c_str(),
                    Wide(directory).c_str(), SW_SHOWNORMAL));
  if (answer <= kHighestFailure) RaiseSystemError("ShellExecute", ErrorOf(answer));
}

std::string ModuleApp::Path() {
  const std::string path = win32::ModulePath(module_);
  return path.substr(0, path.rfind('\\'));
}

}  // namespace brimwork::windows
