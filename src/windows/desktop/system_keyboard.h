// Keystrokes for whatever window has the focus.
#pragma once

#include "environment/desktop.h"
#include "windows/desktop/thread_messages.h"

namespace brimwork::windows {

class SystemKeyboard : public Keyboard {
 public:
  /// messages: those of this thread; they outlive the keyboard.
  explicit SystemKeyboard(ThreadMessages& messages) : messages_(messages) {}

  /// Raises error 5 for a text that is no SendKeys notation, or when the system takes no keys.
  void SendKeys(std::string_view keys, bool wait) override;

 private:
  ThreadMessages& messages_;
};

}  // namespace brimwork::windows
