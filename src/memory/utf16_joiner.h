// Puts together the characters that come as one or two UTF-16 units.
#pragma once

#include <cstdint>
#include <string>

#include "environment/utf8.h"

namespace brimwork {

class Utf16Joiner {
 public:
  /// The characters, as UTF-8, that are complete with this unit. A half without its other half
  /// becomes U+FFFD.
  std::string Add(std::uint16_t unit) {
    const bool isLow = unit >= 0xDC00 && unit < 0xE000;
    if (isLow && high_ != 0) return Pair(unit);
    std::string text = Finish();
    if (unit >= 0xD800 && unit < 0xDC00) {
      high_ = unit;
    } else {
      AppendUtf8(text, isLow ? kReplacement : unit);
    }
    return text;
  }

  bool HasHalf() const { return high_ != 0; }

  /// What is left when no unit follows.
  std::string Finish() {
    std::string text;
    if (high_ != 0) AppendUtf8(text, kReplacement);
    high_ = 0;
    return text;
  }

 private:
  static constexpr char32_t kReplacement = 0xFFFD;

  std::string Pair(std::uint16_t low) {
    std::string text;
    AppendUtf8(text, 0x10000 + ((high_ - 0xD800) << 10) + (low - 0xDC00u));
    high_ = 0;
    return text;
  }

  char32_t high_ = 0;  // a first half; 0 when there is none
};

}  // namespace brimwork
