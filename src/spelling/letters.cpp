#include "spelling/letters.h"

#include <algorithm>
#include <iterator>
#include <string>

#include "environment/text.h"
#include "environment/utf8.h"

namespace brimwork {
namespace {

struct CharacterRange {
  char32_t first;
  char32_t last;
};

/// The characters above ASCII that are no letters, in ascending order.
constexpr CharacterRange kNoLetters[] = {
    {0x80, 0xA9},     {0xAB, 0xB4},       {0xB6, 0xB9},        // Latin 1: all but its letters
    {0xBB, 0xBF},     {0xD7, 0xD7},       {0xF7, 0xF7},        //
    {0x2C2, 0x2C5},   {0x2D2, 0x2DF},     {0x37E, 0x37E},      // spacing accents
    {0x55A, 0x55F},   {0x589, 0x58A},     {0x5BE, 0x5BE},      // Armenian, Hebrew marks
    {0x5C0, 0x5C0},   {0x5C3, 0x5C3},     {0x5F3, 0x5F4},      //
    {0x600, 0x60F},   {0x61B, 0x61F},     {0x660, 0x66D},      // Arabic marks and digits
    {0x6D4, 0x6D4},   {0x6F0, 0x6F9},     {0x964, 0x96F},      // Devanagari marks and digits
    {0xE00, 0xEFF},   {0xF00, 0xFFF},     {0x1000, 0x109F},    // Thai to Burmese
    {0x1780, 0x17FF}, {0x2000, 0x200B},   {0x200E, 0x2BFF},    // Khmer; punctuation, symbols
    {0x2E00, 0xABFF}, {0xD7B0, 0xFAFF},   {0xFE10, 0xFE6F},    // East Asia, private use
    {0xFEFF, 0xFFFF}, {0x1F000, 0x1FAFF}, {0x20000, 0x10FFFF}  // full width, pictures, Han
};

constexpr CharacterRange kHangulSyllables{0xAC00, 0xD7A3};

bool Holds(const CharacterRange& range, char32_t character) {
  return range.first <= character && character <= range.last;
}

bool IsAsciiLetter(char32_t character) {
  return (character >= 'a' && character <= 'z') || (character >= 'A' && character <= 'Z');
}

}  // namespace

bool IsLetter(char32_t character) {
  if (character < 0x80) return IsAsciiLetter(character);
  if (Holds(kHangulSyllables, character)) return true;
  return std::ranges::none_of(kNoLetters,
                              [&](const CharacterRange& range) { return Holds(range, character); });
}

bool IsCapital(char32_t character) {
  std::string letter;
  AppendUtf8(letter, character);
  return FoldName(letter) != letter;
}

}  // namespace brimwork
