// The keyboard as plain data: it reads the SendKeys notation and hands each keystroke to the
// focused target at once.
#pragma once

#include "environment/desktop.h"
#include "memory/key_target.h"

namespace brimwork {

class MemoryKeyboard : public Keyboard {
 public:
  explicit MemoryKeyboard(Clipboard& clipboard) : clipboard_(clipboard) {}

  /// Understands plain characters, Ctrl with c, v or a ("^(c)", "^c"), "{Del}" or "{Delete}",
  /// "{Enter}", "{Tab}", and a character with a meaning of its own in braces ("{+}"). Anything else
  /// raises error 5, and then no key was sent. Without focus the keys go nowhere. wait makes no
  /// difference: keys are processed at once.
  void SendKeys(std::string_view keys, bool wait) override;

  /// The target lives at least until the focus moves on; null takes the focus from every target.
  void SetFocus(KeyTarget* target) { focus_ = target; }
  KeyTarget* Focus() const { return focus_; }

 private:
  Clipboard& clipboard_;
  KeyTarget* focus_ = nullptr;
};

}  // namespace brimwork
