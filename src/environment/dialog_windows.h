// The windows of a dialog by handle: found by class and text, moved, given new text, extended with
// a control. Places and sizes are pixels; texts are UTF-8. Every operation may raise RunTimeError;
// what a window that is not there was asked to do is not done.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "environment/desktop.h"

// The system's headers give these names to macros of their own.
#undef CreateWindowEx
#undef FindWindow
#undef FindWindowEx
#undef SetWindowText

namespace brimwork {

namespace window_class {
inline constexpr std::string_view kDialog = "#32770";
inline constexpr std::string_view kStatic = "Static";
inline constexpr std::string_view kButton = "Button";
}  // namespace window_class

namespace window_style {
inline constexpr std::uint32_t kChild = 0x40000000;
inline constexpr std::uint32_t kVisible = 0x10000000;
inline constexpr std::uint32_t kTabStop = 0x10000;
inline constexpr std::uint32_t kAutoCheckBox = 3;  // of a button
}  // namespace window_style

namespace window_message {
inline constexpr std::uint32_t kSetFont = 0x30;  // wParam: the font
inline constexpr std::uint32_t kGetFont = 0x31;
inline constexpr std::uint32_t kTimer = 0x113;
inline constexpr std::uint32_t kGetButtonState = 0xF2;  // a sum of button_state::k...
}  // namespace window_message

namespace button_state {
inline constexpr std::intptr_t kChecked = 1;
inline constexpr std::intptr_t kHasFocus = 8;
}  // namespace button_state

/// Counted from the screen's upper left corner; right and bottom lie behind the last pixel.
struct WindowRectangle {
  int left = 0;
  int top = 0;
  int right = 0;
  int bottom = 0;

  int Width() const { return right - left; }
  int Height() const { return bottom - top; }
  bool operator==(const WindowRectangle&) const = default;
};

/// Where MoveWindow puts a window: a child counts from the inner corner of its parent.
struct WindowArea {
  int left = 0;
  int top = 0;
  int width = 0;
  int height = 0;
  bool operator==(const WindowArea&) const = default;
};

/// The window that CreateWindowEx is to make.
struct NewWindow {
  std::string className = {};
  std::string text = {};
  std::uint32_t style = 0;  // a sum of window_style::k...
  WindowArea area = {};
  WindowHandle parent = 0;
  InstanceHandle instance = 0;
};

class DialogWindows {
 public:
  virtual ~DialogWindows() = default;

  /// The foremost top-level window of that class and title, case set aside; 0 when there is none.
  virtual WindowHandle FindWindow(std::string_view className, std::string_view title) = 0;

  /// The next child behind childAfter (0: the first child) of that class and text, case set aside;
  /// 0 when there is none.
  virtual WindowHandle FindWindowEx(WindowHandle parent, WindowHandle childAfter,
                                    std::string_view className, std::string_view text) = 0;

  virtual void SetForegroundWindow(WindowHandle window) = 0;

  /// The window that has the keyboard's focus, 0 when none of this program has.
  virtual WindowHandle GetFocus() = 0;

  /// All zero for a window that is not there.
  virtual WindowRectangle GetWindowRect(WindowHandle window) = 0;

  virtual void MoveWindow(WindowHandle window, const WindowArea& area, bool repaint) = 0;

  /// Returns 0 when the window could not be made.
  virtual WindowHandle CreateWindowEx(const NewWindow& window) = 0;

  virtual void SetWindowText(WindowHandle window, std::string_view text) = 0;
};

}  // namespace brimwork
