// The clipboard as plain data: a text and a picture beside each other.
#pragma once

#include <string>

#include "environment/desktop.h"

namespace brimwork {

class MemoryClipboard : public Clipboard {
 public:
  std::string GetText() override { return text_; }
  void SetText(std::string_view text) override { text_ = text; }
  void SetData(std::string_view picture) override { picture_ = picture; }
  void Clear() override {
    text_.clear();
    picture_.clear();
  }

  /// The name of the picture's resource, "" when it holds none.
  const std::string& Picture() const { return picture_; }

 private:
  std::string text_;
  std::string picture_;
};

}  // namespace brimwork
