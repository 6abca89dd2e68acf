#include "bench/screen/file_dialogs.h"

#include <commdlg.h>

#include <iterator>

namespace brimwork::bench {

std::optional<std::filesystem::path> AskForProject(HWND owner,
                                                   const std::filesystem::path& folder) {
  wchar_t path[1024] = L"";
  OPENFILENAMEW question{};
  question.lStructSize = sizeof question;
  question.hwndOwner = owner;
  question.lpstrFilter =
      L"Project Files (*.vbp;*.vbg)\0*.vbp;*.vbg\0Source Files (*.bas;*.cls;*.frm)\0"
      L"*.bas;*.cls;*.frm\0All Files\0*.*\0";
  question.lpstrFile = path;
  question.nMaxFile = static_cast<DWORD>(std::size(path));
  question.lpstrInitialDir = folder.c_str();
  question.lpstrTitle = L"Open Project";
  question.Flags = OFN_FILEMUSTEXIST | OFN_HIDEREADONLY | OFN_NOCHANGEDIR | OFN_EXPLORER;
  if (!GetOpenFileNameW(&question)) return std::nullopt;
  return path;
}

}  // namespace brimwork::bench
