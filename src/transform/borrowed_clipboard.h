// The clipboard, lent to a command.
#pragma once

#include <string>

#include "environment/desktop.h"
#include "environment/resume_next.h"

namespace brimwork {

/// Gives the clipboard to a command and its text back to the user afterwards. Other forms of what
/// it holds are lost. Making one raises RunTimeError when the text cannot be read.
class BorrowedClipboard {
 public:
  explicit BorrowedClipboard(Clipboard& clipboard)
      : clipboard_(clipboard), text_(clipboard.GetText()) {}
  ~BorrowedClipboard() {
    Insist([&] { clipboard_.Clear(); });
    if (!text_.empty()) Insist([&] { clipboard_.SetText(text_); });
  }
  BorrowedClipboard(const BorrowedClipboard&) = delete;
  BorrowedClipboard& operator=(const BorrowedClipboard&) = delete;

 private:
  Clipboard& clipboard_;
  std::string text_;
};

}  // namespace brimwork
