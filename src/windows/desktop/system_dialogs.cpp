#include "windows/desktop/system_dialogs.h"

#include <commdlg.h>
#include <ole2.h>
#include <shlobj.h>

#include <algorithm>
#include <memory>
#include <string>
#include <type_traits>

#include "win32/wide_text.h"
#include "windows/desktop/handles.h"
#include "windows/desktop/system_error.h"

#undef GetSaveFileName

namespace brimwork::windows {
namespace {

using win32::Wide;

/// The shell's dialogs use COM, which a thread may have begun to use before.
class ComOfThread {
 public:
  ComOfThread() : isOpen_(SUCCEEDED(OleInitialize(nullptr))) {}
  ~ComOfThread() {
    if (isOpen_) OleUninitialize();
  }
  ComOfThread(const ComOfThread&) = delete;
  ComOfThread& operator=(const ComOfThread&) = delete;

 private:
  bool isOpen_;
};

struct FreeItemList {
  void operator()(ITEMIDLIST* list) const { CoTaskMemFree(list); }
};
using ItemList = std::unique_ptr<std::remove_pointer_t<LPITEMIDLIST>, FreeItemList>;

/// Null for "", which stands for a field of a record that is not filled in.
const wchar_t* OrNull(const std::wstring& text) { return text.empty() ? nullptr : text.c_str(); }

/// Text up to its first NUL.
std::string_view UpToNul(std::string_view text) { return text.substr(0, text.find('\0')); }

/// The buffer that the dialog works in: what the record's holds, with room for any path.
std::wstring BufferOf(const SaveFileRequest& request) {
  constexpr std::size_t kLongestPath = 0x8000;
  std::wstring buffer = Wide(UpToNul(request.file));
  buffer.resize(std::max({kLongestPath, std::size_t{request.fileSize}, buffer.size() + 1}));
  return buffer;
}

void PutPath(std::string_view path, std::string& buffer) {
  if (buffer.size() <= path.size()) buffer.resize(path.size() + 1);
  buffer.replace(0, path.size(), path);
  buffer[path.size()] = '\0';
}

/// Shows the dialog of a record whose texts are given in UTF-16.
bool AskForPath(const SaveFileRequest& request, HWND owner, std::wstring& buffer) {
  const std::wstring filter = Wide(request.filter) + L'\0';  // one NUL more than a text has
  const std::wstring folder = Wide(request.initialFolder);
  const std::wstring title = Wide(request.title);
  const std::wstring extension = Wide(request.defaultExtension);
  OPENFILENAMEW record = {};
  record.lStructSize = sizeof record;
  record.hwndOwner = owner;
  record.hInstance = reinterpret_cast<HINSTANCE>(request.instance);
  record.lpstrFilter = request.filter.empty() ? nullptr : filter.c_str();
  record.nFilterIndex = static_cast<DWORD>(request.filterIndex);
  record.lpstrFile = buffer.data();
  record.nMaxFile = static_cast<DWORD>(buffer.size());
  record.lpstrInitialDir = OrNull(folder);
  record.lpstrTitle = OrNull(title);
  record.Flags = request.flags | OFN_NOCHANGEDIR;  // the editor's current folder is its own
  record.lpstrDefExt = OrNull(extension);
  return GetSaveFileNameW(&record);
}

}  // namespace

int SystemDialogs::MsgBox(std::string_view prompt, int style, std::string_view title) {
  const int button = MessageBoxW(WindowInUse(), Wide(prompt).c_str(), Wide(title).c_str(),
                                 static_cast<UINT>(style));
  if (button <= 0) RaiseSystemError("MessageBox");
  return button;
}

std::string SystemDialogs::BrowseForFolder(const BrowseFolderRequest& request) {
  const ComOfThread com;
  const std::wstring title = Wide(request.title);
  wchar_t name[MAX_PATH];
  BROWSEINFOW browser = {};
  browser.hwndOwner = ShownOwner(request.owner);
  browser.pszDisplayName = name;
  browser.lpszTitle = title.c_str();
  browser.ulFlags = request.flags;
  const ItemList chosen(SHBrowseForFolderW(&browser));
  wchar_t path[MAX_PATH];
  if (!chosen || !SHGetPathFromIDListW(chosen.get(), path)) return "";
  return win32::Narrow(path);
}

bool SystemDialogs::GetSaveFileName(SaveFileRequest& request) {
  const ComOfThread com;
  std::wstring buffer = BufferOf(request);
  if (!AskForPath(request, ShownOwner(request.owner), buffer)) return false;
  PutPath(win32::Narrow(buffer.c_str()), request.file);
  return true;
}

HWND SystemDialogs::WindowInUse() const {
  HWND active = GetActiveWindow();
  return active != nullptr && IsWindowVisible(active) ? active : mainWindow_();
}

HWND SystemDialogs::ShownOwner(WindowHandle owner) const {
  HWND window = AsHwnd(owner);
  // The parent of a child window, the owner of any other.
  while (window != nullptr && !IsWindowVisible(window)) window = GetParent(window);
  return window != nullptr ? window : mainWindow_();
}

}  // namespace brimwork::windows
