// Remembers where words were found, so that a word that comes a thousand times is searched once.
#pragma once

#include <array>
#include <cstdint>
#include <cstring>
#include <string>
#include <string_view>
#include <vector>

namespace brimwork {

class WordPositions {
 public:
  WordPositions();

  /// The position of word: as remembered, or as search(word) finds it now. readable: how many bytes
  /// can be read from its start on.
  template <class Search>
  int Of(std::string_view word, std::size_t readable, Search search) {
    const Key key = KeyOf(word, readable);
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
  template <class Search>
  int Of(std::string_view word, Search search) {
    return Of(word, word.size(), search);
  }

 private:
  /// A word of up to 16 letters as three numbers, which no other word has: its letters, and zeros
  /// behind them. A longer word has its hash there.
  struct Key {
    std::uint64_t first = 0;
    std::uint64_t last = 0;
    std::uint32_t size = 0;

    bool operator==(const Key&) const = default;
    bool IsWholeWord() const { return size <= kLongestWhole; }
  };

  /// Of a size that is a power of two, for quick ways from slot to slot.
  struct Slot {
    std::uint64_t first = 0;
    std::uint64_t last = 0;
    std::uint32_t size = 0;
    std::uint32_t offset = 0;  // of a longer word in words_
    int position = 0;
    bool isUsed = false;

    Key Word() const { return {first, last, size}; }
  };

  static constexpr std::size_t kLongestWhole = 2 * sizeof(std::uint64_t);

  static std::uint64_t Number(const char* bytes) {
    std::uint64_t number;
    std::memcpy(&number, bytes, sizeof number);
    return number;
  }

  static Key KeyOf(std::string_view word, std::size_t readable) {
    const auto size = static_cast<std::uint32_t>(word.size());
    if (size > kLongestWhole) [[unlikely]]
      return {HashOf(word), 0, size};
    if (readable >= kLongestWhole) [[likely]]
      return KeyOfLetters(word.data(), size);
    std::array<char, kLongestWhole> letters{};
    word.copy(letters.data(), size);
    return KeyOfLetters(letters.data(), size);
  }

  static Key KeyOfLetters(const char* letters, std::uint32_t size) {
    static constexpr std::array<char, 2 * kLongestWhole> kKeptThenDropped = [] {
      std::array<char, 2 * kLongestWhole> bytes{};
      for (std::size_t i = 0; i < kLongestWhole; ++i) bytes[i] = static_cast<char>(0xFF);
      return bytes;
    }();
    const char* const mask = kKeptThenDropped.data() + kLongestWhole - size;
    return {Number(letters) & Number(mask), Number(letters + 8) & Number(mask + 8), size};
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
    // The letters behind the fifth count in high bits only.
    return static_cast<std::size_t>(mixed >> 32 ^ mixed >> 51);
  }

  bool Holds(const Slot& slot, std::string_view word, const Key& key) const {
    return slot.Word() == key && (key.IsWholeWord() || WordOf(slot) == word);
  }

  std::string_view WordOf(const Slot& slot) const {
    return std::string_view(words_).substr(slot.offset, slot.size);
  }

  static std::uint64_t HashOf(std::string_view word);
  void Fill(Slot& slot, std::string_view word, const Key& key, int position);
  void Grow();

  std::string words_;  // the longer ones, one behind the other
  std::vector<Slot> slots_;
  std::size_t count_ = 0;
};

}  // namespace brimwork
