// SendKeys notation: "^(ac){Del 3}~".
#pragma once

#include <cstdint>
#include <string_view>
#include <vector>

namespace brimwork::windows {

struct KeyPress {
  std::uint16_t key = 0;   // the system's number of a named key; 0 for a character
  char32_t character = 0;  // where it is none of those
  bool shift = false;
  bool ctrl = false;
  bool alt = false;

  bool operator==(const KeyPress&) const = default;
};

/// The presses that keys stand for, in their order. Raises error 5 for a text that is no such
/// notation.
std::vector<KeyPress> ParseSendKeys(std::string_view keys);

}  // namespace brimwork::windows
