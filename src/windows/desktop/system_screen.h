// The mouse pointer, top-level windows by title, and the freeze of a window's drawing.
#pragma once

#include <windows.h>

#include "environment/desktop.h"

namespace brimwork::windows {

class SystemScreen : public Screen {
 public:
  int MousePointer() override { return pointer_; }
  /// Shown until the pointer is moved over a window that chooses one of its own.
  void SetMousePointer(int pointer) override;
  WindowHandle FindWindowByTitle(std::string_view title) override;
  void LockWindowUpdate(WindowHandle window) override;

 private:
  int pointer_ = mouse_pointer::kDefault;
};

}  // namespace brimwork::windows
