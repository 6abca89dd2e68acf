// Remembers where words were found, so that a word that comes a thousand times is searched once.
#pragma once

#include <cstdint>
#include <cstring>
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
    const Key key = KeyOf(word);
    std::size_t at = SlotOf(word, key);
    if (!slots_[at].isUsed) [[unlikely]] {
      if ((count_ + 1) * 2 > slots_.size()) {
        Grow();
        at = SlotOf(word, key);
      }
      Fill(slots_[at], word, key, search(word));
    }
    return slots_[at].position;
  }

 private:
  /// A word of up to 16 letters as three numbers, which no other word has: its letters, some of
  /// them twice. A longer word has its hash there.
  struct Key {
    std::uint64_t first = 0;
    std::uint64_t last = 0;
    std::uint32_t size = 0;

    bool operator==(const Key&) const = default;
    bool IsWholeWord() const { return size <= kLongestWhole; }
  };

  struct Slot {
    Key key;
    std::uint32_t offset = 0;  // of a longer word in words_
    int position = 0;
    bool isUsed = false;
  };

  static constexpr std::size_t kLongestWhole = 2 * sizeof(std::uint64_t);

  template <class Number>
  static Number Letters(const char* at) {
    Number letters;
    std::memcpy(&letters, at, sizeof letters);
    return letters;
  }

  static Key KeyOf(std::string_view word) {
    const auto size = static_cast<std::uint32_t>(word.size());
    const char* const data = word.data();
    if (word.size() > kLongestWhole) [[unlikely]]
      return {HashOf(word), 0, size};
    if (size >= 8) {
      return {Letters<std::uint64_t>(data), Letters<std::uint64_t>(data + size - 8), size};
    }
    if (size >= 4) {
      return {Letters<std::uint32_t>(data), Letters<std::uint32_t>(data + size - 4), size};
    }
    if (size == 0) return {};
    const auto letter = [data](std::uint32_t i) {
      return std::uint64_t{Letters<unsigned char>(data + i)};
    };
    return {letter(0) | letter(size / 2) << 8, letter(size - 1), size};
  }

  std::size_t SlotOf(std::string_view word, const Key& key) const {
    const std::size_t last = slots_.size() - 1;
    std::size_t at = FirstSlot(key) & last;
    while (slots_[at].isUsed && !Holds(slots_[at], word, key)) at = (at + 1) & last;
    return at;
  }

  static std::size_t FirstSlot(const Key& key) {
    constexpr std::uint64_t kMix = 0x9E3779B97F4A7C15;
    const std::uint64_t mixed = (key.first ^ (key.last << 7) ^ key.size) * kMix;
    return mixed >> 32;
  }

  bool Holds(const Slot& slot, std::string_view word, const Key& key) const {
    return slot.key == key && (key.IsWholeWord() || WordOf(slot) == word);
  }

  std::string_view WordOf(const Slot& slot) const {
    return std::string_view(words_).substr(slot.offset, slot.key.size);
  }

  static std::uint64_t HashOf(std::string_view word);
  void Fill(Slot& slot, std::string_view word, const Key& key, int position);
  void Grow();

  std::string words_;  // the longer ones, one behind the other
  std::vector<Slot> slots_;
  std::size_t count_ = 0;
};

}  // namespace brimwork
