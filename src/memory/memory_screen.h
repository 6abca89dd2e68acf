// The screen as plain data: the pointer, the redraw lock and the top-level windows by title.
#pragma once

#include <functional>
#include <map>
#include <string>

#include "environment/desktop.h"

namespace brimwork {

class MemoryScreen : public Screen {
 public:
  int MousePointer() override { return pointer_; }
  void SetMousePointer(int pointer) override { pointer_ = pointer; }

  WindowHandle FindWindowByTitle(std::string_view title) override {
    const auto window = windows_.find(title);
    return window == windows_.end() ? 0 : window->second;
  }

  void LockWindowUpdate(WindowHandle window) override { lockedWindow_ = window; }

  void AddWindow(std::string title, WindowHandle handle) { windows_[std::move(title)] = handle; }
  void RemoveWindow(const std::string& title) { windows_.erase(title); }

  /// The window whose drawing is frozen, 0 when none is.
  WindowHandle LockedWindow() const { return lockedWindow_; }

 private:
  int pointer_ = mouse_pointer::kDefault;
  WindowHandle lockedWindow_ = 0;
  std::map<std::string, WindowHandle, std::less<>> windows_;
};

}  // namespace brimwork
