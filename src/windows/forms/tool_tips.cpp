#include "windows/forms/tool_tips.h"

#include <commctrl.h>

#include "win32/wide_text.h"
#include "windows/forms/window_class.h"

namespace brimwork::windows {

void ToolTips::Create(HWND form) {
  tips_ = CreateWindowExW(WS_EX_TOPMOST, TOOLTIPS_CLASSW, nullptr,
                          WS_POPUP | TTS_ALWAYSTIP | TTS_NOPREFIX, CW_USEDEFAULT, CW_USEDEFAULT,
                          CW_USEDEFAULT, CW_USEDEFAULT, form, nullptr, OwnModule(), nullptr);
}

void ToolTips::Set(HWND window, std::uintptr_t part, const RECT& area, std::string_view text) {
  // Older systems refuse the record's newest form.
  TTTOOLINFOW tool = {};
  tool.cbSize = TTTOOLINFOW_V1_SIZE;
  tool.hwnd = window;
  tool.uId = part;
  tool.rect = area;
  SendMessageW(tips_, TTM_DELTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
  if (text.empty()) return;
  std::wstring wide = win32::Wide(text);
  tool.lpszText = wide.data();
  SendMessageW(tips_, TTM_ADDTOOLW, 0, reinterpret_cast<LPARAM>(&tool));
}

void ToolTips::Relay(HWND window, UINT message, WPARAM wide, LPARAM longer) {
  MSG relayed = {};
  relayed.hwnd = window;
  relayed.message = message;
  relayed.wParam = wide;
  relayed.lParam = longer;
  relayed.time = static_cast<DWORD>(GetMessageTime());
  const DWORD position = GetMessagePos();
  relayed.pt = {static_cast<short>(LOWORD(position)), static_cast<short>(HIWORD(position))};
  SendMessageW(tips_, TTM_RELAYEVENT, 0, reinterpret_cast<LPARAM>(&relayed));
}

}  // namespace brimwork::windows
