#include "environment/text.h"

#include <algorithm>
#include <cmath>
#include <cstdint>
#include <cstdlib>
#include <limits>

#include "environment/run_time_error.h"
#include "environment/utf8.h"

namespace brimwork {
namespace {

char ToLowerAscii(char c) { return c >= 'A' && c <= 'Z' ? static_cast<char>(c - 'A' + 'a') : c; }

bool IsContinuationByte(char c) { return (static_cast<unsigned char>(c) & 0xC0) == 0x80; }

std::size_t SkipDigits(std::string_view text, std::size_t at) {
  while (at < text.size() && IsDigit(text[at])) ++at;
  return at;
}

bool IsRadixNumber(std::string_view text) {
  if (text.size() < 3 || text[0] != '&') return false;
  const char radix = ToUpperAscii(text[1]);
  const std::string_view digits = radix == 'H'   ? "0123456789abcdefABCDEF"
                                  : radix == 'O' ? "01234567"
                                                 : "";
  return text.find_first_not_of(digits, 2) == std::string_view::npos;
}

bool IsDecimalNumber(std::string_view text) {
  std::size_t at = text.starts_with('+') || text.starts_with('-') ? 1 : 0;
  const std::size_t whole = at;
  at = SkipDigits(text, at);
  std::size_t digits = at - whole;
  if (at < text.size() && text[at] == '.') {
    const std::size_t fraction = ++at;
    at = SkipDigits(text, at);
    digits += at - fraction;
  }
  if (digits == 0) return false;
  if (at < text.size() && (ToUpperAscii(text[at]) == 'E' || ToUpperAscii(text[at]) == 'D')) {
    ++at;
    if (at < text.size() && (text[at] == '+' || text[at] == '-')) ++at;
    const std::size_t exponent = at;
    at = SkipDigits(text, at);
    if (at == exponent) return false;
  }
  return at == text.size();
}

char32_t FoldCodePoint(char32_t c) {
  if (c >= 0xC0 && c <= 0xDE && c != 0xD7) return c + 32;
  if (c >= 0x100 && c <= 0x17F && c != 0x130 && c != 0x131 && c != 0x138 && c != 0x149) {
    const bool evenIsUpper = c < 0x139 || (c > 0x148 && c < 0x179);
    if (c == 0x178) return 0xFF;
    if (c == 0x17F) return c;
    return (c % 2 == 0) == evenIsUpper ? c + 1 : c;
  }
  if (c >= 0x391 && c <= 0x3A9) return c + 32;
  if (c >= 0x410 && c <= 0x42F) return c + 32;
  if (c >= 0x400 && c <= 0x40F) return c + 80;
  return c;
}

}  // namespace

std::string FoldName(std::string_view name) {
  std::string folded;
  folded.reserve(name.size());
  while (!name.empty()) {
    const std::size_t size = Utf8Size(name);
    if (size > 1) {
      AppendUtf8(folded, FoldCodePoint(Utf8Character(name)));
    } else {
      folded += ToLowerAscii(name[0]);
    }
    name.remove_prefix(std::max<std::size_t>(size, 1));
  }
  return folded;
}

bool EqualNames(std::string_view a, std::string_view b) {
  return a == b || FoldName(a) == FoldName(b);
}

std::string Replace(std::string_view text, std::string_view from, std::string_view to) {
  std::string result;
  std::size_t at = 0;
  for (auto next = text.find(from); next != std::string_view::npos; next = text.find(from, at)) {
    result.append(text, at, next - at).append(to);
    at = next + from.size();
  }
  return result.append(text.substr(at));
}

std::vector<std::string_view> Split(std::string_view text, std::string_view separator) {
  std::vector<std::string_view> parts;
  std::size_t at = 0;
  for (auto next = text.find(separator); next != std::string_view::npos;
       next = text.find(separator, at)) {
    parts.push_back(text.substr(at, next - at));
    at = next + separator.size();
  }
  parts.push_back(text.substr(at));
  return parts;
}

int CountedCharacters(std::string_view text) {
  const std::size_t ascii = FindNonAscii(text, 0);
  int count = static_cast<int>(ascii);
  for (const char c : text.substr(ascii)) count += !IsContinuationByte(c);
  return count;
}

std::size_t ByteOffset(std::string_view text, int character) {
  std::size_t at = 0;
  for (int skipped = 0; at < text.size() && skipped < character; ++skipped) {
    ++at;
    while (at < text.size() && IsContinuationByte(text[at])) ++at;
  }
  return at;
}

std::vector<std::string_view> SplitLines(std::string_view text) {
  std::vector<std::string_view> lines;
  for (std::string_view line : Split(text, "\n")) lines.push_back(line);
  for (std::size_t i = 0; i + 1 < lines.size(); ++i) {
    if (lines[i].ends_with('\r')) lines[i].remove_suffix(1);
  }
  return lines;
}

std::string WithCrLf(std::string_view text) {
  return Replace(Replace(text, "\r\n", "\n"), "\n", "\r\n");
}

bool IsNumeric(std::string_view text) {
  const std::string_view bare = Trim(text);
  return IsDecimalNumber(bare) || IsRadixNumber(bare);
}

int ToInteger(std::string_view text) {
  const std::string bare(Trim(text));
  if (!IsNumeric(bare)) {
    throw RunTimeError(error_number::kTypeMismatch, "Type mismatch: \"" + bare + "\" is no number");
  }
  double value = 0;
  if (bare[0] == '&') {
    const int radix = ToUpperAscii(bare[1]) == 'H' ? 16 : 8;
    value = static_cast<double>(std::strtoull(bare.c_str() + 2, nullptr, radix));
    if (value > 0x7FFF && value <= 0xFFFF) value -= 0x10000;
  } else {
    const auto exponent = bare.find_first_of("dD");
    std::string decimal = bare;
    if (exponent != std::string::npos) decimal[exponent] = 'e';
    value = std::nearbyint(std::strtod(decimal.c_str(), nullptr));
  }
  if (value < std::numeric_limits<std::int16_t>::min() ||
      value > std::numeric_limits<std::int16_t>::max()) {
    throw RunTimeError(error_number::kOverflow, "Overflow: " + bare);
  }
  return static_cast<int>(value);
}

}  // namespace brimwork
