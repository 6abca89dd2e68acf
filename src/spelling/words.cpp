#include "spelling/words.h"

#include <algorithm>

#include "environment/text.h"
#include "environment/utf8.h"
#include "spelling/apostrophes.h"
#include "spelling/letters.h"
#include "spelling/technical_text.h"

namespace brimwork {
namespace {

constexpr std::string_view kBlanks = " \t\r\n\v\f";
/// None of them stands inside an address, a path or a name.
constexpr std::string_view kSeparators = "\"<>|()[]{},;";
constexpr std::string_view kNoBreakBlank = "\u00A0";

/// Size of the separator at the start of text, 0 when none stands there.
std::size_t SeparatorSize(std::string_view text) {
  if (IsOneOf(text[0], kBlanks) || IsOneOf(text[0], kSeparators)) return 1;
  return text.starts_with(kNoBreakBlank) ? kNoBreakBlank.size() : 0;
}

/// Size of the letter at the start of text, 0 when none stands there.
std::size_t LetterSize(std::string_view text) {
  const std::size_t size = Utf8Size(text);
  return size > 0 && IsLetter(Utf8Character(text)) ? size : 0;
}

std::size_t WordCharacterSize(std::string_view text) {
  if (!text.empty() && (IsDigit(text[0]) || text[0] == '_')) return 1;
  return LetterSize(text);
}

/// An access key's mark stands in front of a letter; two in a row stand for one sign.
bool IsAccessKey(std::string_view text, std::size_t at) {
  if (text[at] != '&' || (at > 0 && text[at - 1] == '&')) return false;
  return LetterSize(text.substr(at + 1)) > 0;
}

/// Size of the mark at a place inside a word that joins what is in front of it and behind it.
std::size_t JoinerSize(std::string_view text, std::size_t at) {
  const std::string_view rest = text.substr(at);
  if (rest.empty()) return 0;
  if (rest[0] == '&') return IsAccessKey(text, at) ? 1 : 0;
  const std::size_t size = rest[0] == '\'' || rest[0] == '-' ? 1
                           : rest.starts_with(kTypographicApostrophe)
                               ? kTypographicApostrophe.size()
                               : 0;
  return size > 0 && WordCharacterSize(rest.substr(size)) > 0 ? size : 0;
}

std::size_t EndOfWord(std::string_view text, std::size_t at) {
  while (at < text.size()) {
    const std::size_t character = WordCharacterSize(text.substr(at));
    const std::size_t size = character > 0 ? character : JoinerSize(text, at);
    if (size == 0) break;
    at += size;
  }
  return at;
}

/// What the letters of a word say about it.
struct Lettering {
  int letters = 0;
  bool hasCapitalInside = false;
  bool hasOtherLetter = false;  // than its first
  bool hasDigit = false;        // or an underscore
};

Lettering LetteringOf(std::string_view word) {
  Lettering lettering;
  std::string_view first;
  while (!word.empty()) {
    const std::size_t size = std::max<std::size_t>(Utf8Size(word), 1);
    if (LetterSize(word) > 0) {
      if (lettering.letters == 0) first = word.substr(0, size);
      lettering.hasOtherLetter |= word.substr(0, size) != first;
      lettering.hasCapitalInside |= lettering.letters > 0 && IsCapital(Utf8Character(word));
      ++lettering.letters;
    }
    lettering.hasDigit |= IsDigit(word[0]) || word[0] == '_';
    word.remove_prefix(size);
  }
  return lettering;
}

/// Left out are variables (total_2, cmdSave), abbreviations (SQL) and formats (yyyy).
bool IsProse(std::string_view word) {
  const Lettering lettering = LetteringOf(word);
  return lettering.letters > 1 && !lettering.hasDigit && !lettering.hasCapitalInside &&
         lettering.hasOtherLetter;
}

TextWord WordAt(std::string_view text, std::size_t offset, std::size_t end) {
  const std::string_view word = text.substr(offset, end - offset);
  return {offset, end - offset, IsProse(word), Contains(word, "-")};
}

void CutChunk(std::string_view text, std::size_t at, std::size_t end,
              std::vector<TextWord>& words) {
  const std::string_view upToEnd = text.substr(0, end);
  while (at < end) {
    const bool starts = WordCharacterSize(upToEnd.substr(at)) > 0 || IsAccessKey(upToEnd, at);
    if (!starts) {
      at += std::max<std::size_t>(Utf8Size(upToEnd.substr(at)), 1);
      continue;
    }
    const std::size_t behind = EndOfWord(upToEnd, at + (upToEnd[at] == '&' ? 1 : 0));
    if (!IsCode(text, at, behind)) words.push_back(WordAt(text, at, behind));
    at = behind;
  }
}

}  // namespace

std::vector<TextWord> CutWords(std::string_view text) {
  std::vector<TextWord> words;
  for (std::size_t at = 0; at < text.size();) {
    std::size_t end = at;
    while (end < text.size() && SeparatorSize(text.substr(end)) == 0) ++end;
    if (!IsTechnical(text.substr(at, end - at))) CutChunk(text, at, end, words);
    at = end;
    if (at < text.size()) at += SeparatorSize(text.substr(at));
  }
  return words;
}

std::vector<TextWord> PartsOf(std::string_view text, const TextWord& compound) {
  std::vector<TextWord> parts;
  std::size_t offset = compound.offset;
  for (const std::string_view part : Split(text.substr(compound.offset, compound.size), "-")) {
    parts.push_back(WordAt(text, offset, offset + part.size()));
    offset += part.size() + 1;
  }
  return parts;
}

}  // namespace brimwork
