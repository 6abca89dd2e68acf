// What an edit control is asked and told, as far as that matters to whoever keeps its text in step
// with another one.
#pragma once

#include <windows.h>

#include <string>
#include <string_view>

namespace brimwork::bench {

/// True for messages by which a user, or somebody in a user's place, works on the text.
bool IsInput(UINT message, WPARAM wide);

/// True for messages by which somebody looks at the text.
bool IsLook(UINT message);

// The control's text ends at a character 0, which a file may hold all the same: its picture stands
// for it on the screen.

std::wstring ForControl(std::string_view text);
std::string FromControl(std::wstring text);

}  // namespace brimwork::bench
