// Key presses as the system's input events.
#pragma once

#include <windows.h>

#include <vector>

#include "windows/desktop/send_keys.h"

namespace brimwork::windows {

/// The events that press and release each key, with the modifiers held around those that need them.
std::vector<INPUT> InputOf(const std::vector<KeyPress>& presses);

}  // namespace brimwork::windows
