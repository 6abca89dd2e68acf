// What a user does to a box of a form with the keyboard.
#pragma once

#include <string_view>

#include "environment/text_box.h"

namespace brimwork {

/// Types text in the place of all that is in the box.
inline void Retype(TextBox& box, std::string_view text) {
  box.SelectAll();
  box.Erase();
  box.Type(text);
}

}  // namespace brimwork
