// The clipboard as plain data; it holds text only.
#pragma once

#include <string>

#include "environment/desktop.h"

namespace brimwork {

class MemoryClipboard : public Clipboard {
 public:
  std::string GetText() override { return text_; }
  void SetText(std::string_view text) override { text_ = text; }
  void Clear() override { text_.clear(); }

 private:
  std::string text_;
};

}  // namespace brimwork
