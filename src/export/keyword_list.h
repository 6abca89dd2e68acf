// The keyword list as the exporters use it: one text, in which a word is a keyword wherever it
// occurs.
#pragma once

#include <bitset>
#include <initializer_list>
#include <optional>
#include <string>
#include <string_view>

#include "export/word_positions.h"

namespace brimwork {

class KeywordList {
 public:
  explicit KeywordList(std::string text);

  // A word of which more bytes can be read than it has, 16 at best, is found sooner.

  /// Whether word occurs in the list, letter for letter. The empty word occurs in every list.
  bool Holds(std::string_view word, std::size_t readable) {
    return word.empty() || (pairs_.MayHold(word) && PositionOf(word, readable) != kNowhere);
  }
  bool Holds(std::string_view word) { return Holds(word, word.size()); }

  /// The first place in the list that equals word but for the case of its letters, as the list
  /// writes it; nothing when there is none. word: ASCII.
  std::optional<std::string_view> SpellingOf(std::string_view word) {
    return SpellingOf(word, word.size());
  }
  std::optional<std::string_view> SpellingOf(std::string_view word, std::size_t readable) {
    const int position = PositionIgnoringCase(word, readable);
    if (position == kNowhere) return std::nullopt;
    return std::string_view(text_).substr(static_cast<std::size_t>(position), word.size());
  }

 private:
  static constexpr int kNowhere = -1;

  /// Which characters, and which pairs of neighbours, a text holds. Most words are turned down by
  /// their first and their last pair.
  class Pairs {
   public:
    /// forms: the text as it may be written, each character in any of them.
    explicit Pairs(std::initializer_list<std::string_view> forms) {
      for (const std::string_view left : forms) {
        for (const std::string_view right : forms) Add(left, right);
      }
    }

    /// False when the text lacks what word, which is not empty, starts or ends with.
    bool MayHold(std::string_view word) const {
      const std::size_t size = word.size();
      if (size == 1) return single_[Byte(word[0])];
      return pairs_[Index(word[0], word[1])] && pairs_[Index(word[size - 2], word[size - 1])];
    }

   private:
    static constexpr std::size_t kBytes = 256;

    void Add(std::string_view left, std::string_view right);

    static std::size_t Byte(char c) { return static_cast<unsigned char>(c); }
    static std::size_t Index(char first, char second) {
      return kBytes * Byte(first) + Byte(second);
    }

    std::bitset<kBytes> single_;
    std::bitset<kBytes * kBytes> pairs_;
  };

  int PositionOf(std::string_view word, std::size_t readable);
  int PositionIgnoringCase(std::string_view word, std::size_t readable) {
    return ignoringCase_.Of(word, readable,
                            [&](std::string_view sought) { return SearchIgnoringCase(sought); });
  }
  int SearchIgnoringCase(std::string_view word) const;

  std::string text_;
  std::string upperCase_;
  Pairs pairs_;
  Pairs pairsOfAnyCase_;
  WordPositions exact_;
  WordPositions ignoringCase_;
};

}  // namespace brimwork
