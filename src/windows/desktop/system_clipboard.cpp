#include "windows/desktop/system_clipboard.h"

#include <algorithm>
#include <cstring>

#include "environment/run_time_error.h"
#include "win32/wide_text.h"
#include "windows/desktop/button_face.h"
#include "windows/desktop/system_error.h"

namespace brimwork::windows {
namespace {

constexpr int kCannotOpenClipboard = 521;

/// Holds the clipboard as long as it lives.
class OpenedClipboard {
 public:
  explicit OpenedClipboard(HWND owner) {
    constexpr int kAttempts = 20;
    constexpr DWORD kPause = 10;  // milliseconds
    for (int attempt = 0; attempt < kAttempts; ++attempt) {
      if (OpenClipboard(owner)) return;
      Sleep(kPause);
    }
    throw RunTimeError(kCannotOpenClipboard, "another program holds the clipboard");
  }
  ~OpenedClipboard() { CloseClipboard(); }
  OpenedClipboard(const OpenedClipboard&) = delete;
  OpenedClipboard& operator=(const OpenedClipboard&) = delete;

  void Empty() {
    if (!EmptyClipboard()) RaiseSystemError("EmptyClipboard");
  }

  void Put(UINT format, const void* bytes, std::size_t size) {
    const HGLOBAL memory = GlobalAlloc(GMEM_MOVEABLE, size);
    if (memory == nullptr) RaiseSystemError("GlobalAlloc");
    std::memcpy(GlobalLock(memory), bytes, size);
    GlobalUnlock(memory);
    if (SetClipboardData(format, memory) != nullptr) return;  // it is the clipboard's now
    const DWORD error = GetLastError();
    GlobalFree(memory);
    RaiseSystemError("SetClipboardData", error);
  }
};

UINT FormatOf(const wchar_t* name) {
  const UINT format = RegisterClipboardFormatW(name);
  if (format == 0) RaiseSystemError("RegisterClipboardFormat");
  return format;
}

/// Text that another program put there need not be ended by a NUL.
std::string TextIn(HGLOBAL memory) {
  const auto* const text = static_cast<const wchar_t*>(GlobalLock(memory));
  if (text == nullptr) return "";
  const std::size_t room = GlobalSize(memory) / sizeof(wchar_t);
  const auto* const end = std::find(text, text + room, L'\0');
  std::string narrow = win32::Narrow({text, static_cast<std::size_t>(end - text)});
  GlobalUnlock(memory);
  return narrow;
}

}  // namespace

SystemClipboard::~SystemClipboard() {
  if (owner_ != nullptr) DestroyWindow(owner_);
}

std::string SystemClipboard::GetText() {
  if (!IsClipboardFormatAvailable(CF_UNICODETEXT)) return "";
  const OpenedClipboard opened(Owner());
  const HGLOBAL memory = GetClipboardData(CF_UNICODETEXT);
  return memory == nullptr ? "" : TextIn(memory);
}

void SystemClipboard::SetText(std::string_view text) {
  const std::wstring wide = win32::Wide(text);
  OpenedClipboard opened(Owner());
  opened.Empty();
  opened.Put(CF_UNICODETEXT, wide.c_str(), (wide.size() + 1) * sizeof(wchar_t));
}

void SystemClipboard::SetData(std::string_view picture) {
  const ButtonFace face = FaceOfBitmapFile(pictures_(picture));
  OpenedClipboard opened(Owner());
  opened.Empty();
  opened.Put(CF_DIB, face.picture.data(), face.picture.size());
  opened.Put(FormatOf(L"Toolbar Button Face"), face.picture.data(), face.picture.size());
  opened.Put(FormatOf(L"Toolbar Button Mask"), face.mask.data(), face.mask.size());
}

void SystemClipboard::Clear() { OpenedClipboard(Owner()).Empty(); }

// What is put on the clipboard needs a window that it comes from.
HWND SystemClipboard::Owner() {
  if (owner_ == nullptr) {
    owner_ = CreateWindowExW(0, L"STATIC", nullptr, 0, 0, 0, 0, 0, HWND_MESSAGE, nullptr, nullptr,
                             nullptr);
    if (owner_ == nullptr) RaiseSystemError("CreateWindowEx");
  }
  return owner_;
}

}  // namespace brimwork::windows
