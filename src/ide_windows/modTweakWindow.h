// Keeps a window from redrawing while a command changes what it shows.
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

}  // namespace brimwork
