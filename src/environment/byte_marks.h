// Finds the bytes of a kind in a text, 64 at a time: a loop from byte to byte that ends somewhere
// else each time costs more than what it looks at.
#pragma once

#include <algorithm>
#include <array>
#include <bit>
#include <cstdint>
#include <cstring>
#include <string_view>

#include "environment/byte_words.h"

namespace brimwork {

/// IsMarked: bool(unsigned char), without branches. No place asked for lies in front of the one
/// asked for before.
template <class IsMarked>
class ByteMarks {
 public:
  /// The text is kept by reference.
  explicit ByteMarks(std::string_view text) : text_(text), next_(Find(0, 0)) {}

  /// The first marked byte from a place on; the text's size when there is none.
  std::size_t Next(std::size_t from) {
    if (next_ < from) next_ = Find(from, 0);
    return next_;
  }

  /// The first byte that is not marked.
  std::size_t NextUnmarked(std::size_t from) { return Find(from, kAll); }

 private:
  static constexpr std::size_t kBlock = 64;
  static constexpr std::uint64_t kAll = ~std::uint64_t{0};
  using Flags = std::array<unsigned char, kBlock>;

  /// The first byte whose mark differs from those of unwanted.
  std::size_t Find(std::size_t from, std::uint64_t unwanted) {
    std::uint64_t behind = kAll << (from % kBlock);
    for (std::size_t start = from / kBlock * kBlock; start < text_.size(); start += kBlock) {
      if (start != marked_) MarkBlock(start);
      const std::uint64_t found = (marks_ ^ unwanted) & behind;
      if (found != 0) [[likely]] {
        return std::min(start + static_cast<std::size_t>(std::countr_zero(found)), text_.size());
      }
      behind = kAll;
    }
    return text_.size();
  }

  void MarkBlock(std::size_t start) {
    marks_ = Marks(text_.substr(start, kBlock));
    marked_ = start;
  }

  static std::uint64_t Marks(std::string_view bytes) {
    if (bytes.size() == kBlock) [[likely]]
      return Packed(Flagged(bytes.data()));
    std::array<char, kBlock> padded{};
    std::copy(bytes.begin(), bytes.end(), padded.begin());
    return Packed(Flagged(padded.data()));
  }

  static Flags Flagged(const char* bytes) {
    Flags flags;
    for (std::size_t i = 0; i < kBlock; ++i) {
      flags[i] = IsMarked{}(static_cast<unsigned char>(bytes[i]));
    }
    return flags;
  }

  /// The flags as bits, the first the lowest.
  static std::uint64_t Packed(const Flags& flags) {
    std::uint64_t bits = 0;
    for (std::size_t i = 0; i < kBlock; i += 16) bits |= byte_words::Packed(&flags[i]) << i;
    return bits;
  }

  std::string_view text_;
  std::uint64_t marks_ = 0;                            // of a block
  std::size_t marked_ = static_cast<std::size_t>(-1);  // where that block starts
  std::size_t next_;
};

}  // namespace brimwork
