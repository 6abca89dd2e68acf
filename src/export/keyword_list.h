// The keyword list as the exporters use it: one text, in which a word is a keyword wherever it
// occurs.
#pragma once

#include <array>
#include <optional>
#include <string>
#include <string_view>

#include "export/word_positions.h"

namespace brimwork {

class KeywordList {
 public:
  explicit KeywordList(std::string text);

  /// Whether word occurs in the list, letter for letter. The empty word occurs in every list.
  bool Holds(std::string_view word) {
    return word.empty() || (MayHold(word) && PositionOf(word) != kNowhere);
  }

  /// The first place in the list that equals word but for the case of its letters, as the list
  /// writes it; nothing when there is none. word: ASCII.
  std::optional<std::string_view> SpellingOf(std::string_view word);

 private:
  static constexpr int kNowhere = -1;

  /// False when the list lacks a character that word starts or ends with.
  bool MayHold(std::string_view word) const {
    return holdsByte_[static_cast<unsigned char>(word.front())] &&
           holdsByte_[static_cast<unsigned char>(word.back())];
  }
  int PositionOf(std::string_view word);

  std::string text_;
  std::string upperCase_;
  std::array<bool, 256> holdsByte_{};
  WordPositions exact_;
  WordPositions ignoringCase_;
};

}  // namespace brimwork
