// The clipboard as the user's other programs leave it and find it.
#pragma once

#include <windows.h>

#include <span>
#include <string>
#include <string_view>

#include "windows/desktop/system_clipboard.h"

namespace brimwork {

/// Text that a code page alone cannot hold.
inline constexpr const char* kUsersText = "Füße & Жук,\r\n日本 of the user";

inline windows::SystemClipboard UsersClipboard() {
  return windows::SystemClipboard([](std::string_view) { return std::span<const std::uint8_t>(); });
}

inline void PutOnClipboard(std::string_view text) { UsersClipboard().SetText(text); }

inline std::string TextOnClipboard() { return UsersClipboard().GetText(); }

}  // namespace brimwork
