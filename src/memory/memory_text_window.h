// A window of plain text, such as the Immediate window: the text with its caret and selection, and
// what keystrokes do to them.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "memory/key_target.h"

namespace brimwork {

class MemoryTextWindow : public KeyTarget {
 public:
  const std::string& Text() const { return text_; }

  /// The lines end in CR LF, whatever they ended in; the caret stands behind the text.
  void SetText(std::string_view text);

  /// Counts from 0 in characters, a line's end as two; what lies outside the text is drawn back
  /// into it. length 0 puts the caret there.
  void Select(int start, int length);
  std::string SelectedText() const;

  // The selection, counted like that.

  int Start() const;
  int Length() const;

  /// Goes up with each change of the text.
  std::uint64_t Revision() const { return revision_; }

  void Copy(Clipboard& clipboard) override;
  void Paste(Clipboard& clipboard) override;
  void SelectAll() override;
  void Delete() override;
  void Type(std::string_view text) override;

 private:
  std::string text_;
  std::size_t start_ = 0;   // of the selection, in bytes
  std::size_t length_ = 0;  // of the selection, in bytes
  std::uint64_t revision_ = 0;
};

}  // namespace brimwork
