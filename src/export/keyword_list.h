// The keyword list as the exporters use it: one text, in which a word is a keyword wherever it
// occurs.
#pragma once

#include <bitset>
#include <optional>
#include <string>
#include <string_view>

#include "environment/text.h"
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
  std::optional<std::string_view> SpellingOf(std::string_view word) {
    if (!word.empty() && !upperCasePairs_.MayHold(word, [](char c) { return ToUpperAscii(c); }))
      return std::nullopt;
    return KnownSpellingOf(word);
  }

 private:
  static constexpr int kNowhere = -1;

  /// Which characters, and which pairs of neighbours, a text holds. Most words are turned down by
  /// their first and their last pair.
  class Pairs {
   public:
    explicit Pairs(std::string_view text);

    /// False when the text lacks what word, which is not empty, starts or ends with.
    bool MayHold(std::string_view word) const {
      return MayHold(word, [](char c) { return c; });
    }

    /// The same for the word of which each character is changed so.
    template <class Change>
    bool MayHold(std::string_view word, Change change) const {
      const auto at = [&](std::size_t i) { return change(word[i]); };
      const std::size_t size = word.size();
      if (size == 1) return single_[Byte(at(0))];
      return pairs_[Index(at(0), at(1))] && pairs_[Index(at(size - 2), at(size - 1))];
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
  std::optional<std::string_view> KnownSpellingOf(std::string_view word);

  std::string text_;
  std::string upperCase_;
  Pairs pairs_;
  Pairs upperCasePairs_;
  WordPositions exact_;
  WordPositions ignoringCase_;
};

}  // namespace brimwork
