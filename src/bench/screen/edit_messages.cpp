#include "bench/screen/edit_messages.h"

#include <algorithm>

#include "win32/wide_text.h"

namespace brimwork::bench {
namespace {

constexpr wchar_t kZero = L'\0';
constexpr wchar_t kPictureOfZero = 0x2400;

}  // namespace

bool IsInput(UINT message, WPARAM wide) {
  switch (message) {
    case WM_MOUSEMOVE:
      return (wide & MK_LBUTTON) != 0;
    case WM_KEYDOWN:
    case WM_KEYUP:
    case WM_CHAR:
    case WM_SYSKEYDOWN:
    case WM_IME_CHAR:
    case WM_IME_COMPOSITION:
    case WM_LBUTTONDOWN:
    case WM_LBUTTONUP:
    case WM_LBUTTONDBLCLK:
    case WM_RBUTTONDOWN:
    case WM_CUT:
    case WM_PASTE:
    case WM_CLEAR:
    case WM_UNDO:
    case WM_SETTEXT:
    case EM_UNDO:
    case EM_SETSEL:
    case EM_REPLACESEL:
      return true;
    default:
      return false;
  }
}

bool IsLook(UINT message) {
  switch (message) {
    case WM_COPY:
    case WM_GETTEXT:
    case WM_GETTEXTLENGTH:
    case EM_GETSEL:
    case EM_GETLINE:
    case EM_GETLINECOUNT:
      return true;
    default:
      return false;
  }
}

std::wstring ForControl(std::string_view text) {
  std::wstring wide = win32::Wide(text);
  std::ranges::replace(wide, kZero, kPictureOfZero);
  return wide;
}

std::string FromControl(std::wstring text) {
  std::ranges::replace(text, kPictureOfZero, kZero);
  return win32::Narrow(text);
}

}  // namespace brimwork::bench
