// The identifiers by which the system and the editors know the add-in.
#pragma once

#include <windows.h>

namespace brimwork::windows {

inline constexpr CLSID kConnectClass = {
    0x3e9b7c14, 0x5d28, 0x4f6a, {0x8b, 0x03, 0x1a, 0x94, 0xd7, 0x62, 0xe5, 0xc1}};

inline constexpr const char* kProgId = "Brimwork.Connect";

inline constexpr IID kExtensibilityInterface = {
    0xB65AD801, 0xABAF, 0x11D0, {0xBB, 0x8B, 0x00, 0xA0, 0xC9, 0x0F, 0x27, 0x44}};

}  // namespace brimwork::windows
