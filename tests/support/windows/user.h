// A user at the keyboard and the mouse: input goes to whatever program is in front.
#pragma once

#include <windows.h>

#include <string_view>
#include <vector>

namespace brimwork {

/// Presses a key and lets it go, with others held around it: {VK_MENU}, 'A'.
void PressKey(WORD key, const std::vector<WORD>& held = {});

void PressKeys(WORD key, int times);

/// Types characters.
void TypeText(std::string_view text);

/// Moves the pointer to a place of the screen, in pixels, and clicks there.
void ClickAt(POINT place);
void RightClickAt(POINT place);

/// The middle of a window.
POINT MiddleOf(HWND window);

}  // namespace brimwork
