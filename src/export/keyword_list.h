// The keyword list as the exporters use it: one text, in which a word is a keyword wherever it
// occurs.
#pragma once

#include <bitset>
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
    return word.empty() || (pairs_.MayHold(word) && PositionOf(word) != kNowhere);
  }

  /// The first place in the list that equals word but for the case of its letters, as the list
  /// writes it; nothing when there is none. word: ASCII.
  std::optional<std::string_view> SpellingOf(std::string_view word);

 private:
  static constexpr int kNowhere = -1;

  /// Which characters, and which pairs of neighbours, a text holds. Most words are turned down by
  /// their first and their last pair.
  class Pairs {
   public:
    explicit Pairs(std::string_view text);

    /// False when the text lacks what word, which is not empty, starts or ends with.
    bool MayHold(std::string_view word) const {
      if (word.size() == 1) return single_[Byte(word[0])];
      return pairs_[Index(word[0], word[1])] &&
             pairs_[Index(word[word.size() - 2], word[word.size() - 1])];
    }

   private:
    static constexpr std::size_t kBytes = 256;

    static std::size_t Byte(char c) { return static_cast<unsigned char>(c); }
    static std::size_t Index(char first, char second) {
      return kBytes * Byte(first) + Byte(second);
    }

    std::bitset<kBytes> single_;
    std::bitset<kBytes * kBytes> pairs_;
  };

  int PositionOf(std::string_view word);

  std::string text_;
  std::string upperCase_;
  Pairs pairs_;
  Pairs upperCasePairs_;
  WordPositions exact_;
  WordPositions ignoringCase_;
};

}  // namespace brimwork
