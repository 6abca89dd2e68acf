// Small changes to single windows: freezing the drawing, staying on top, and the close button.
#pragma once

#include <string>
#include <string_view>

#include "environment/environment.h"

namespace brimwork {

/// lock true shows the hourglass and freezes the window's drawing; false ends the freeze and shows
/// the default pointer. handle 0 is first looked up by title and the handle found written back;
/// without a window nothing happens. Run-time errors are passed over call by call.
void SetWindowUpdateLock(Environment& environment, bool lock, WindowHandle& handle,
                         std::string_view title);

/// Freezes the environment's main window for the guard's life. Where the main window cannot be
/// found, nothing is frozen.
class RedrawLock {
 public:
  explicit RedrawLock(Environment& environment);
  ~RedrawLock();
  RedrawLock(const RedrawLock&) = delete;
  RedrawLock& operator=(const RedrawLock&) = delete;

 private:
  Environment& environment_;
  std::string title_;
  WindowHandle handle_ = 0;
};

/// Puts the window above all others, or among them again, where it is and as large as it is. A
/// run-time error is passed over.
void SetTopMost(Environment& environment, WindowHandle window, bool onTop);

/// What EnableCloseButton returns.
namespace close_button {
inline constexpr int kDone = 0;  // also when there is no Close item in the state to be changed
inline constexpr int kNoWindow = -1;
inline constexpr int kItemNotMoved = -2;
inline constexpr int kStateNotChanged = -3;
}  // namespace close_button

/// Enables or disables the Close item of the window's system menu, and with it the caption's close
/// button. Returns one of close_button; a step that raises a run-time error has failed.
int EnableCloseButton(Environment& environment, WindowHandle window, bool enable);

}  // namespace brimwork
