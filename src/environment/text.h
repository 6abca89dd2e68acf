// The few string operations that the rules are written in: Visual Basic's Trim (blanks only), and
// characters instead of bytes where a rule counts.
#pragma once

#include <string>
#include <string_view>
#include <vector>

#include "environment/byte_words.h"

namespace brimwork {

constexpr bool IsDigit(char c) { return c >= '0' && c <= '9'; }

inline bool IsBlankOrTab(char c) { return c == ' ' || c == '\t'; }

constexpr bool IsOneOf(char c, std::string_view set) {
  for (const char member : set) {
    if (c == member) return true;
  }
  return false;
}

// Every line of a module passes through these several times, so they are plain loops.

inline std::string_view TrimLeft(std::string_view text, std::string_view dropped = " ") {
  std::size_t first = 0;
  while (first < text.size() && IsOneOf(text[first], dropped)) ++first;
  return text.substr(first);
}

inline std::string_view TrimRight(std::string_view text, std::string_view dropped = " ") {
  std::size_t end = text.size();
  while (end > 0 && IsOneOf(text[end - 1], dropped)) --end;
  return text.substr(0, end);
}

/// Visual Basic's Trim: blanks only, never tabs.
inline std::string_view Trim(std::string_view text) { return TrimRight(TrimLeft(text)); }

inline std::string_view TrimBlanksAndTabs(std::string_view text) {
  return TrimRight(TrimLeft(text, " \t"), " \t");
}

inline bool Contains(std::string_view text, std::string_view part) {
  return text.find(part) != std::string_view::npos;
}

/// True for a line that the next line continues: it ends in a blank and an underscore.
inline bool IsContinued(std::string_view line) { return line.ends_with(" _"); }

constexpr char ToUpperAscii(char c) {
  return c >= 'a' && c <= 'z' ? static_cast<char>(c - 'a' + 'A') : c;
}

/// True when text starts with upperCasePrefix, ASCII letters of text in any case.
constexpr bool StartsWithIgnoringCase(std::string_view text, std::string_view upperCasePrefix) {
  if (text.size() < upperCasePrefix.size()) return false;
  for (std::size_t i = 0; i < upperCasePrefix.size(); ++i) {
    if (ToUpperAscii(text[i]) != upperCasePrefix[i]) return false;
  }
  return true;
}

/// Compares two names as Visual Basic does: without regard to case, accented Latin, Greek and
/// Cyrillic letters included.
bool EqualNames(std::string_view a, std::string_view b);

/// A name in the one case in which equal names are equal texts.
std::string FoldName(std::string_view name);

std::string Replace(std::string_view text, std::string_view from, std::string_view to);

std::vector<std::string_view> Split(std::string_view text, std::string_view separator);

/// CharacterCount, by counting them.
int CountedCharacters(std::string_view text);

/// Number of characters of UTF-8 text; a byte that is no UTF-8 counts as one character.
inline int CharacterCount(std::string_view text) {
  return IsAscii(text) ? static_cast<int>(text.size()) : CountedCharacters(text);
}

/// Byte offset of a character (from 0), or the text's size when there are fewer characters.
std::size_t ByteOffset(std::string_view text, int character);

/// Splits text into lines at CR LF and at a lone LF: n separators give n + 1 lines.
std::vector<std::string_view> SplitLines(std::string_view text);

/// Any lone LF becomes CR LF.
std::string WithCrLf(std::string_view text);

/// Whether Visual Basic takes text for a number: one optional sign, digits with an optional decimal
/// point and exponent (E or D), or an &H or &O form, blanks around it allowed.
bool IsNumeric(std::string_view text);

/// Visual Basic's CInt for a whole number or an "&h" form. Raises error 13 for no number and error
/// 6 beyond 16 bits.
int ToInteger(std::string_view text);

}  // namespace brimwork
