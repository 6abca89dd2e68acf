#include "windows/desktop/system_help_viewer.h"

#include "environment/run_time_error.h"
#include "win32/wide_text.h"

namespace brimwork::windows {
namespace {

constexpr int kFileNotFound = 53;
constexpr int kEntryNotFound = 453;

using HtmlHelpFunction = HWND WINAPI(HWND caller, const wchar_t* file, UINT command,
                                     DWORD_PTR data);

/// Help windows have a thread of their own, which runs for a while after they are closed. The
/// viewer's code stays where it is as long as the program runs.
void KeepLoaded(const std::wstring& name) {
  HMODULE module;
  GetModuleHandleExW(GET_MODULE_HANDLE_EX_FLAG_PIN, name.c_str(), &module);
}

}  // namespace

void SystemHelpViewer::HtmlHelp(std::string_view path, std::uint32_t command, std::uint32_t data) {
  const bool closes = command == help_command::kCloseAll;
  if (closes && !library_) return;
  auto* const help = Library().Find<HtmlHelpFunction>("HtmlHelpW");
  if (help == nullptr) throw RunTimeError(kEntryNotFound, "the help viewer has no HtmlHelpW");
  const std::wstring file = win32::Wide(path);
  help(nullptr, closes ? nullptr : file.c_str(), command, data);
}

const win32::SystemLibrary& SystemHelpViewer::Library() {
  if (library_) return *library_;
  if (!library_.emplace(name_)) {
    library_.reset();
    throw RunTimeError(kFileNotFound, "this system has no " + win32::Narrow(name_));
  }
  KeepLoaded(name_);
  return *library_;
}

}  // namespace brimwork::windows
