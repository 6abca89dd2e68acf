// Questions asked of every line of a module, answered eight bytes at a time.
#pragma once

#ifdef __SSE2__
#include <emmintrin.h>
#endif

#include <bit>
#include <cstdint>
#include <cstring>
#include <string_view>

namespace brimwork {
namespace byte_words {

inline constexpr std::uint64_t kOnes = 0x0101010101010101;
inline constexpr std::uint64_t kHighBits = 0x8080808080808080;

constexpr std::uint64_t Repeated(char c) { return kOnes * static_cast<unsigned char>(c); }

/// Not zero when a byte of word is zero.
constexpr std::uint64_t HasZeroByte(std::uint64_t word) {
  return (word - kOnes) & ~word & kHighBits;
}

/// True when isMarked(word) is not zero for some eight bytes of text. A text shorter than that is
/// filled up with blanks, which no question is about.
template <class IsMarked>
bool AnyWord(std::string_view text, IsMarked isMarked) {
  std::uint64_t word = Repeated(' ');
  if (text.size() < sizeof word) {
    std::memcpy(&word, text.data(), text.size());
    return isMarked(word) != 0;
  }
  for (std::size_t at = 0; at + sizeof word <= text.size(); at += sizeof word) {
    std::memcpy(&word, text.data() + at, sizeof word);
    if (isMarked(word) != 0) return true;
  }
  std::memcpy(&word, text.data() + text.size() - sizeof word, sizeof word);
  return isMarked(word) != 0;
}

/// The high bit of each byte of word that is zero.
constexpr std::uint64_t ZeroBytes(std::uint64_t word) {
  return ~(((word & ~kHighBits) + ~kHighBits) | word | ~kHighBits);
}

/// Sixteen bytes, each 0 or 1, as the low bits of a number, the first the lowest.
inline std::uint64_t Packed(const unsigned char* flags) {
#ifdef __SSE2__
  const __m128i bytes = _mm_loadu_si128(reinterpret_cast<const __m128i*>(flags));
  return static_cast<unsigned>(_mm_movemask_epi8(_mm_slli_epi16(bytes, 7)));
#else
  std::uint64_t packed = 0;
  for (unsigned i = 0; i < 16; ++i) packed |= std::uint64_t{flags[i]} << i;
  return packed;
#endif
}

/// How many bytes stand in front of the first sought one, which there is. Up to seven bytes behind
/// that one are read.
template <char sought>
std::size_t SizeWithout(const char* text) {
  std::size_t size = 0;
  if constexpr (std::endian::native == std::endian::little) {
    std::uint64_t word;
    std::uint64_t marks;
    for (;; size += sizeof word) {
      std::memcpy(&word, text + size, sizeof word);
      marks = HasZeroByte(word ^ Repeated(sought));
      if (marks != 0) return size + static_cast<std::size_t>(std::countr_zero(marks)) / 8;
    }
  }
  while (text[size] != sought) ++size;
  return size;
}

}  // namespace byte_words

/// Whether text holds one of the characters.
template <char... sought>
bool ContainsOneOf(std::string_view text) {
  return byte_words::AnyWord(text, [](std::uint64_t word) {
    return (byte_words::HasZeroByte(word ^ byte_words::Repeated(sought)) | ...);
  });
}

/// Whether text holds a line feed or a character beyond ASCII.
inline bool HoldsLineFeedOrNonAscii(std::string_view text) {
  return byte_words::AnyWord(text, [](std::uint64_t word) {
    return byte_words::HasZeroByte(word ^ byte_words::Repeated('\n')) |
           (word & byte_words::kHighBits);
  });
}

inline bool IsAscii(std::string_view text) {
  return !byte_words::AnyWord(text,
                              [](std::uint64_t word) { return word & byte_words::kHighBits; });
}

/// Calls take(offset) for each place at which text holds the character.
template <char sought, class Take>
void ForEach(std::string_view text, Take take) {
  std::size_t at = 0;
  if constexpr (std::endian::native == std::endian::little) {
    std::uint64_t word;
    for (; at + sizeof word <= text.size(); at += sizeof word) {
      std::memcpy(&word, text.data() + at, sizeof word);
      std::uint64_t marks = byte_words::ZeroBytes(word ^ byte_words::Repeated(sought));
      for (; marks != 0; marks &= marks - 1) {
        take(at + static_cast<std::size_t>(std::countr_zero(marks)) / 8);
      }
    }
  }
  for (; at < text.size(); ++at) {
    if (text[at] == sought) take(at);
  }
}

/// How often text holds a character. Blocks that a byte can count are what compilers turn into
/// many bytes at a time.
inline std::size_t CountOf(std::string_view text, char sought) {
  constexpr std::size_t kBlock = 240;
  std::size_t count = 0;
  while (!text.empty()) {
    const std::string_view block = text.substr(0, kBlock);
    unsigned char inBlock = 0;
    for (const char c : block) inBlock = static_cast<unsigned char>(inBlock + (c == sought));
    count += inBlock;
    text.remove_prefix(block.size());
  }
  return count;
}

}  // namespace brimwork
