// Remembers where words were found, so that a word that comes a thousand times is searched once.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>
#include <vector>

namespace brimwork {

class WordPositions {
 public:
  WordPositions();

  /// The position of word: as remembered, or as search(word) finds it now.
  template <class Search>
  int Of(std::string_view word, Search search) {
    const std::uint64_t hash = HashOf(word);
    std::size_t at = SlotOf(word, hash);
    if (!slots_[at].isUsed) {
      if ((count_ + 1) * 2 > slots_.size()) {
        Grow();
        at = SlotOf(word, hash);
      }
      Fill(slots_[at], word, hash, search(word));
    }
    return slots_[at].position;
  }

 private:
  struct Slot {
    std::uint64_t hash = 0;
    std::uint32_t offset = 0;  // of the word in words_
    std::uint32_t size = 0;
    int position = 0;
    bool isUsed = false;
  };

  static std::uint64_t HashOf(std::string_view word);
  std::size_t SlotOf(std::string_view word, std::uint64_t hash) const;
  std::string_view WordOf(const Slot& slot) const {
    return std::string_view(words_).substr(slot.offset, slot.size);
  }
  void Fill(Slot& slot, std::string_view word, std::uint64_t hash, int position);
  void Grow();

  std::string words_;  // one behind the other
  std::vector<Slot> slots_;
  std::size_t count_ = 0;
};

}  // namespace brimwork
