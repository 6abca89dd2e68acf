#include "environment/utf8.h"

#include <bit>
#include <cstdint>
#include <cstring>

namespace brimwork {
namespace {

constexpr std::uint64_t kHighBits = 0x8080808080808080;

std::uint64_t Word(const char* at) {
  std::uint64_t word;
  std::memcpy(&word, at, sizeof word);
  return word;
}

unsigned ByteAt(std::string_view text, std::size_t at) {
  return static_cast<unsigned char>(text[at]);
}

/// The second byte's range closes out overlong forms, surrogates and what lies above U+10FFFF.
bool IsSecondByte(unsigned lead, unsigned second) {
  const unsigned low = lead == 0xE0 ? 0xA0 : lead == 0xF0 ? 0x90 : 0x80;
  const unsigned high = lead == 0xED ? 0x9F : lead == 0xF4 ? 0x8F : 0xBF;
  return second >= low && second <= high;
}

}  // namespace

std::size_t FindNonAscii(std::string_view text, std::size_t from) {
  const char* const data = text.data();
  std::size_t at = from;
  for (; at + 32 <= text.size(); at += 32) {
    const char* const block = data + at;
    if (((Word(block) | Word(block + 8) | Word(block + 16) | Word(block + 24)) & kHighBits) != 0)
      break;
  }
  while (at + 8 <= text.size() && (Word(data + at) & kHighBits) == 0) at += 8;
  while (at < text.size() && ByteAt(text, at) < 0x80) ++at;
  return at;
}

std::size_t CountNonAscii(std::string_view text) {
  std::size_t count = 0;
  std::size_t at = FindNonAscii(text, 0);
  for (; at + 8 <= text.size(); at += 8) {
    const std::uint64_t high = Word(text.data() + at) & kHighBits;
    if (high != 0) count += static_cast<std::size_t>(std::popcount(high));
  }
  for (; at < text.size(); ++at) count += ByteAt(text, at) >= 0x80;
  return count;
}

std::size_t Utf8Size(std::string_view text) {
  if (text.empty()) return 0;
  const unsigned lead = ByteAt(text, 0);
  if (lead < 0x80) return 1;
  const std::size_t size = lead < 0xC2   ? 0
                           : lead < 0xE0 ? 2
                           : lead < 0xF0 ? 3
                           : lead < 0xF5 ? 4
                                         : 0;
  if (size == 0 || text.size() < size || !IsSecondByte(lead, ByteAt(text, 1))) return 0;
  for (std::size_t i = 2; i < size; ++i) {
    if ((ByteAt(text, i) & 0xC0) != 0x80) return 0;
  }
  return size;
}

char32_t Utf8Character(std::string_view text) {
  const unsigned lead = ByteAt(text, 0);
  if (lead < 0x80) return lead;
  const std::size_t size = lead < 0xE0 ? 2 : lead < 0xF0 ? 3 : 4;
  char32_t character = lead & (0x7Fu >> size);
  for (std::size_t i = 1; i < size; ++i) character = character << 6 | (ByteAt(text, i) & 0x3F);
  return character;
}

void AppendUtf8(std::string& text, char32_t character) {
  const auto continuation = [character](int shift) {
    return static_cast<char>(0x80 | (character >> shift & 0x3F));
  };
  if (character < 0x80) {
    text += static_cast<char>(character);
  } else if (character < 0x800) {
    text += {static_cast<char>(0xC0 | character >> 6), continuation(0)};
  } else if (character < 0x10000) {
    text += {static_cast<char>(0xE0 | character >> 12), continuation(6), continuation(0)};
  } else {
    text += {static_cast<char>(0xF0 | character >> 18), continuation(12), continuation(6),
             continuation(0)};
  }
}

}  // namespace brimwork
