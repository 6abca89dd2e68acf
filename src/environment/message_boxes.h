// The system's own message box, which is owned by any window; while it is up its message loop runs
// timers. May raise RunTimeError.
#pragma once

#include <cstdint>
#include <string_view>

#include "environment/desktop.h"

// The system's headers give these names to macros of their own.
#undef MessageBox

namespace brimwork {

namespace message_box_result {
inline constexpr int kOk = 1;
inline constexpr int kCancel = 2;
inline constexpr int kAbort = 3;
inline constexpr int kRetry = 4;
inline constexpr int kIgnore = 5;
inline constexpr int kYes = 6;
inline constexpr int kNo = 7;
}  // namespace message_box_result

class MessageBoxes {
 public:
  virtual ~MessageBoxes() = default;

  /// Shows the box and returns what the user chose (message_box_result::k...), 0 when it could not
  /// be shown. owner is disabled meanwhile, 0 is no owner. style is the sum of buttons, icon,
  /// default button, modality and options.
  virtual int MessageBox(WindowHandle owner, std::string_view text, std::string_view title,
                         std::int32_t style) = 0;
};

}  // namespace brimwork
