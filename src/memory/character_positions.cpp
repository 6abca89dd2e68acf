#include "memory/character_positions.h"

#include <bit>
#include <cstdint>
#include <cstring>

#include "environment/byte_words.h"
#include "environment/text.h"
#include "environment/utf8.h"

namespace brimwork {
namespace {

bool StartsCharacter(char byte) { return (static_cast<unsigned char>(byte) & 0xC0) != 0x80; }

constexpr std::size_t kWordSize = sizeof(std::uint64_t);

/// How many of eight bytes start a character.
std::size_t CharactersIn(const char* bytes) {
  std::uint64_t word;
  std::memcpy(&word, bytes, kWordSize);
  const std::uint64_t continuations = (word >> 7) & (~word >> 6) & byte_words::kOnes;
  return kWordSize - static_cast<std::size_t>(std::popcount(continuations));
}

std::size_t CharactersOf(std::string_view text) {
  const std::size_t ascii = FindNonAscii(text, 0);
  return ascii + static_cast<std::size_t>(CharacterCount(text.substr(ascii)));
}

std::size_t Distance(std::size_t a, std::size_t b) { return a < b ? b - a : a - b; }

}  // namespace

void CharacterPositions::Reset(std::string_view text) {
  count_ = CharactersOf(text);
  last_ = {};
}

std::size_t CharacterPositions::SearchByte(std::string_view text, std::size_t target) const {
  const Place from = Nearest(text, &Place::position, target);
  last_ = from.position <= target ? Forward(text, from, target) : Backward(text, from, target);
  return last_.byte;
}

std::size_t CharacterPositions::SearchPosition(std::string_view text, std::size_t byte) const {
  Place place = Nearest(text, &Place::byte, byte);
  if (place.byte <= byte) {
    const std::string_view between = text.substr(place.byte, byte - place.byte);
    place.position += CharactersOf(between);
  } else {
    const std::string_view between = text.substr(byte, place.byte - byte);
    place.position -= CharactersOf(between);
  }
  last_ = {byte, place.position};
  return place.position;
}

void CharacterPositions::Replace(std::string_view text, std::size_t start, std::size_t end,
                                 std::string_view added) {
  last_ = {start, static_cast<std::size_t>(PositionOf(text, start))};
  count_ -= CharactersOf(text.substr(start, end - start));
  count_ += CharactersOf(added);
}

CharacterPositions::Place CharacterPositions::Nearest(std::string_view text,
                                                      std::size_t Place::*measure,
                                                      std::size_t target) const {
  Place nearest;
  for (const Place place : {last_, Place{text.size(), count_}}) {
    if (Distance(place.*measure, target) < Distance(nearest.*measure, target)) nearest = place;
  }
  return nearest;
}

CharacterPositions::Place CharacterPositions::Forward(std::string_view text, Place place,
                                                      std::size_t position) {
  while (place.byte + kWordSize <= text.size()) {
    const std::size_t characters = CharactersIn(text.data() + place.byte);
    if (place.position + characters > position) break;
    place.byte += kWordSize;
    place.position += characters;
  }
  while (place.byte < text.size()) {
    const bool starts = StartsCharacter(text[place.byte]);
    if (starts && place.position == position) break;
    place.position += starts;
    ++place.byte;
  }
  return place;
}

CharacterPositions::Place CharacterPositions::Backward(std::string_view text, Place place,
                                                       std::size_t position) {
  while (place.position > position) place.position -= StartsCharacter(text[--place.byte]);
  return place;
}

}  // namespace brimwork
