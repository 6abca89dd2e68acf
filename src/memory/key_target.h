// What keystrokes act on: the window that has the keyboard's focus.
#pragma once

#include <string_view>

#include "environment/desktop.h"

namespace brimwork {

class KeyTarget {
 public:
  virtual ~KeyTarget() = default;

  /// Puts the selected text on the clipboard; an empty selection leaves the clipboard as it is.
  virtual void Copy(Clipboard& clipboard) = 0;

  /// Replaces the selection with the clipboard's text.
  virtual void Paste(Clipboard& clipboard) = 0;

  virtual void SelectAll() = 0;

  /// Deletes the selection, or the character behind the caret when nothing is selected.
  virtual void Delete() = 0;

  /// Replaces the selection with text.
  virtual void Type(std::string_view text) = 0;

  // Where text is typed, these two keys are text as well.

  virtual void PressEnter() { Type("\r\n"); }
  virtual void PressTab() { Type("\t"); }
};

}  // namespace brimwork
