// The control words of rich text that matter here, and what they do.
#pragma once

#include <optional>
#include <string_view>

#include "memory/rtf_content.h"

namespace brimwork {

struct RtfWord {
  void (RtfContent::*apply)(int number) = nullptr;
  std::optional<int> number;  // what is applied; none: the number that stands behind the word
};

/// None for any other word; name is not empty.
const RtfWord* FindRtfWord(std::string_view name);

}  // namespace brimwork
