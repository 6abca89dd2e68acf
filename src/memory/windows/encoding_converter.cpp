// Conversions between encodings with the code pages of Windows.
#include "memory/encoding_converter.h"

#include <windows.h>

#include <array>
#include <charconv>
#include <optional>
#include <span>
#include <stdexcept>

#include "environment/text.h"

namespace brimwork {
namespace {

constexpr UINT kUtf8 = 65001;
constexpr UINT kUtf16LittleEndian = 1200;
constexpr UINT kUtf16BigEndian = 1201;
constexpr UINT kGb18030 = 54936;

struct NamedCodePage {
  std::string_view name;
  UINT codePage;
};

constexpr NamedCodePage kNamedCodePages[] = {
    {"UTF8", kUtf8},
    {"UTF16LE", kUtf16LittleEndian},
    {"UTF16BE", kUtf16BigEndian},
    {"ASCII", 20127},
    {"USASCII", 20127},
    {"LATIN1", 28591},
    {"SHIFTJIS", 932},
    {"SJIS", 932},
    {"GBK", 936},
    {"GB2312", 936},
    {"GB18030", kGb18030},
    {"BIG5", 950},
    {"EUCKR", 949},
    {"EUCJP", 20932},
    {"KOI8R", 20866},
    {"KOI8U", 21866},
    {"MACINTOSH", 10000},
};

constexpr std::string_view kNumberedPrefixes[] = {"WINDOWS", "CP", "IBM", "MS"};

/// A name without the marks that are written or left out at will.
std::string PlainName(std::string_view name) {
  std::string plain;
  for (const char c : name) {
    if (c != '-' && c != '_') plain += ToUpperAscii(c);
  }
  return plain;
}

std::optional<UINT> Number(std::string_view digits) {
  UINT number = 0;
  const auto [end, error] = std::from_chars(digits.data(), digits.data() + digits.size(), number);
  if (error != std::errc() || end != digits.data() + digits.size()) return std::nullopt;
  return number;
}

std::optional<UINT> CodePageOf(std::string_view name) {
  const std::string plain = PlainName(name);
  for (const NamedCodePage& named : kNamedCodePages) {
    if (plain == named.name) return named.codePage;
  }
  constexpr std::string_view kIso = "ISO8859";
  constexpr UINT kIsoCodePages = 28590;
  if (plain.starts_with(kIso)) {
    const auto part = Number(std::string_view(plain).substr(kIso.size()));
    return part ? std::optional(kIsoCodePages + *part) : std::nullopt;
  }
  for (const std::string_view prefix : kNumberedPrefixes) {
    if (!plain.starts_with(prefix)) continue;
    if (const auto number = Number(std::string_view(plain).substr(prefix.size()))) return number;
  }
  return std::nullopt;
}

bool IsUnicode(UINT codePage) {
  return codePage == kUtf8 || codePage == kUtf16LittleEndian || codePage == kUtf16BigEndian;
}

UINT KnownCodePage(const std::string& name) {
  const auto codePage = CodePageOf(name);
  if (codePage && (IsUnicode(*codePage) || IsValidCodePage(*codePage))) return *codePage;
  throw std::invalid_argument("no conversion from or to " + name);
}

/// One character in UTF-16.
struct Character {
  std::array<wchar_t, 2> units{};
  int count = 0;  // 0 for none
};

using Bytes = std::span<const unsigned char>;

Bytes BytesOf(std::string_view text) {
  return {reinterpret_cast<const unsigned char*>(text.data()), text.size()};
}

/// How many bytes the character takes that text starts with, as far as its first bytes tell.
std::size_t SizeOfCharacter(UINT codePage, Bytes text) {
  const unsigned char first = text[0];
  switch (codePage) {
    case kUtf8:
      return first < 0x80 ? 1 : first < 0xE0 ? 2 : first < 0xF0 ? 3 : 4;
    case kGb18030:
      if (first < 0x81) return 1;
      return text.size() > 1 && text[1] >= '0' && text[1] <= '9' ? 4 : 2;
    default:
      return IsDBCSLeadByteEx(codePage, first) ? 2 : 1;
  }
}

/// The system reads bytes that a code page of Windows does not define as control characters.
bool IsUndefined(UINT codePage, wchar_t unit) {
  constexpr UINT kThai = 874;
  constexpr UINT kFirst = 1250;
  constexpr UINT kLast = 1258;
  const bool isOfWindows = codePage == kThai || (codePage >= kFirst && codePage <= kLast);
  return isOfWindows && unit >= 0x80 && unit <= 0x9F;
}

wchar_t Utf16Unit(UINT codePage, Bytes text) {
  const bool isLittleEndian = codePage == kUtf16LittleEndian;
  const unsigned low = text[isLittleEndian ? 0 : 1];
  const unsigned high = text[isLittleEndian ? 1 : 0];
  return static_cast<wchar_t>(high * 256 + low);
}

struct Reading {
  Character character;
  std::size_t size = 0;
  EncodingConverter::Outcome outcome = EncodingConverter::Outcome::kComplete;
};

Reading ReadUtf16(UINT codePage, Bytes text) {
  using enum EncodingConverter::Outcome;
  if (text.size() < 2) return {{}, 0, kTruncated};
  const wchar_t first = Utf16Unit(codePage, text);
  if (IS_LOW_SURROGATE(first)) return {{}, 0, kInvalid};
  if (!IS_HIGH_SURROGATE(first)) return {{{first}, 1}, 2, kComplete};
  if (text.size() < 4) return {{}, 0, kTruncated};
  const wchar_t second = Utf16Unit(codePage, text.subspan(2));
  if (!IS_LOW_SURROGATE(second)) return {{}, 0, kInvalid};
  return {{{first, second}, 2}, 4, kComplete};
}

Reading ReadCharacter(UINT codePage, Bytes text) {
  using enum EncodingConverter::Outcome;
  if (codePage == kUtf16LittleEndian || codePage == kUtf16BigEndian) {
    return ReadUtf16(codePage, text);
  }
  Reading reading;
  reading.size = SizeOfCharacter(codePage, text);
  if (reading.size > text.size()) return {{}, 0, kTruncated};
  auto& units = reading.character.units;
  reading.character.count = MultiByteToWideChar(
      codePage, MB_ERR_INVALID_CHARS, reinterpret_cast<const char*>(text.data()),
      static_cast<int>(reading.size), units.data(), static_cast<int>(units.size()));
  if (reading.character.count == 0 || IsUndefined(codePage, units[0])) return {{}, 0, kInvalid};
  return reading;
}

void AppendUtf16(UINT codePage, const Character& character, std::string& converted) {
  for (int i = 0; i < character.count; ++i) {
    const unsigned unit = character.units[static_cast<std::size_t>(i)];
    const char low = static_cast<char>(unit % 256);
    const char high = static_cast<char>(unit / 256);
    const bool isLittleEndian = codePage == kUtf16LittleEndian;
    converted += isLittleEndian ? low : high;
    converted += isLittleEndian ? high : low;
  }
}

/// False for a character that the encoding has not.
bool AppendCharacter(UINT codePage, const Character& character, std::string& converted) {
  if (codePage == kUtf16LittleEndian || codePage == kUtf16BigEndian) {
    AppendUtf16(codePage, character, converted);
    return true;
  }
  // These two take no leave to replace a character, and have them all.
  const bool hasAll = codePage == kUtf8 || codePage == kGb18030;
  BOOL isReplaced = FALSE;
  std::array<char, 8> bytes;
  const int size = WideCharToMultiByte(
      codePage, hasAll ? 0 : WC_NO_BEST_FIT_CHARS, character.units.data(), character.count,
      bytes.data(), static_cast<int>(bytes.size()), nullptr, hasAll ? nullptr : &isReplaced);
  if (size == 0 || isReplaced) return false;
  converted.append(bytes.data(), static_cast<std::size_t>(size));
  return true;
}

struct Direction {
  UINT from;
  UINT to;
};

}  // namespace

void EncodingConverter::Close::operator()(void* descriptor) const {
  delete static_cast<Direction*>(descriptor);
}

EncodingConverter::EncodingConverter(const std::string& from, const std::string& to)
    : descriptor_(new Direction{KnownCodePage(from), KnownCodePage(to)}) {}

EncodingConverter::Result EncodingConverter::Convert(std::string_view text) {
  const auto& [from, to] = *static_cast<const Direction*>(descriptor_.get());
  Result result;
  const Bytes bytes = BytesOf(text);
  while (result.consumed < bytes.size()) {
    const Reading reading = ReadCharacter(from, bytes.subspan(result.consumed));
    result.outcome = reading.outcome;
    if (reading.outcome != Outcome::kComplete) break;
    if (!AppendCharacter(to, reading.character, result.converted)) {
      result.outcome = Outcome::kInvalid;
      break;
    }
    result.consumed += reading.size;
  }
  return result;
}

}  // namespace brimwork
