// The system's own message box.
#pragma once

#include <windows.h>

#include "environment/message_boxes.h"

// The system's headers give this name to a macro of their own.
#undef MessageBox

namespace brimwork::windows {

class SystemMessageBoxes : public MessageBoxes {
 public:
  int MessageBox(WindowHandle owner, std::string_view text, std::string_view title,
                 std::int32_t style) override;
};

}  // namespace brimwork::windows
