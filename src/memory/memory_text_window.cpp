#include "memory/memory_text_window.h"

#include "environment/text.h"

namespace brimwork {

void MemoryTextWindow::SetText(std::string_view text) {
  text_ = WithCrLf(text);
  ++revision_;
  start_ = text_.size();
  length_ = 0;
}

void MemoryTextWindow::Select(int start, int length) {
  start_ = ByteOffset(text_, start);
  length_ = ByteOffset(std::string_view(text_).substr(start_), length);
}

std::string MemoryTextWindow::SelectedText() const { return text_.substr(start_, length_); }

int MemoryTextWindow::Start() const {
  return CharacterCount(std::string_view(text_).substr(0, start_));
}

int MemoryTextWindow::Length() const { return CharacterCount(SelectedText()); }

void MemoryTextWindow::Copy(Clipboard& clipboard) {
  if (length_ > 0) clipboard.SetText(SelectedText());
}

void MemoryTextWindow::Paste(Clipboard& clipboard) { Type(clipboard.GetText()); }

void MemoryTextWindow::SelectAll() {
  start_ = 0;
  length_ = text_.size();
}

void MemoryTextWindow::Delete() {
  if (length_ == 0) {
    const std::string_view behind = std::string_view(text_).substr(start_);
    length_ = behind.starts_with("\r\n") ? 2 : ByteOffset(behind, 1);
  }
  Type("");
}

void MemoryTextWindow::Type(std::string_view text) {
  const std::string typed = WithCrLf(text);
  text_.replace(start_, length_, typed);
  ++revision_;
  start_ += typed.size();
  length_ = 0;
}

}  // namespace brimwork
