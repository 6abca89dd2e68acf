#include "memory/rtf_spelling.h"

#include <algorithm>
#include <array>
#include <charconv>

#include "environment/text.h"
#include "environment/utf8.h"

namespace brimwork {
namespace {

constexpr std::size_t kPieceSize = 4096;

}  // namespace

void RtfSpelling::Finish() {
  if (piece_.Size() > 0) HandOver();
}

void RtfSpelling::AppendNumber(int number) {
  std::array<char, 12> digits;
  const auto result = std::to_chars(digits.data(), digits.data() + digits.size(), number);
  piece_.Append(std::string_view(digits.data(), result.ptr));
}

void RtfSpelling::AppendText(std::string_view text) {
  SpelledOtherwise marks(text);
  AppendText(text, {0, text.size()}, marks);
}

void RtfSpelling::AppendText(std::string_view text, ByteRange part, SpelledOtherwise& marks) {
  for (std::size_t at = part.start; at < part.end;) {
    const std::size_t plainEnd = std::min(marks.Next(at), part.end);
    if (at < plainEnd) AppendPlain(text.substr(at), plainEnd - at);
    at = plainEnd;
    if (at == part.end) return;
    at += AppendSpecial(text.substr(at));
    if (piece_.Size() >= kPieceSize) HandOver();
  }
}

void RtfSpelling::EndParagraph() { AppendSyntax("\\par\r\n"); }

void RtfSpelling::AppendName(std::string_view name) {
  for (; !name.empty(); name.remove_prefix(Utf8Size(name))) {
    const char c = name[0];
    if (IsOneOf(c, ";\r\n\t")) {
      AppendHex(c);
    } else {
      AppendText(name.substr(0, Utf8Size(name)));
    }
  }
}

void RtfSpelling::AppendSyntax(std::string_view syntax) {
  piece_.Append(syntax);
  isBehindWord_ = false;
}

/// Appends so many characters, all plain, that text starts with.
inline void RtfSpelling::AppendPlain(std::string_view text, std::size_t size) {
  if (isBehindWord_) piece_.Append(' ');
  isBehindWord_ = false;
  const std::string_view plain = text.substr(0, size);
  if (text.size() - size >= PaddedText::kPadding) [[likely]] {
    piece_.AppendPadded(plain);
  } else {
    piece_.Append(plain);
  }
}

/// Appends the character that text starts with; returns its size there.
std::size_t RtfSpelling::AppendSpecial(std::string_view text) {
  if (static_cast<unsigned char>(text[0]) < 0x80) return AppendAsciiSpecial(text[0]);
  AppendUnicode(Utf8Character(text));
  return Utf8Size(text);
}

std::size_t RtfSpelling::AppendAsciiSpecial(char c) {
  if (c == '\r') {
    EndParagraph();
    return 2;
  }
  if (c == '\t') {
    AppendWord("\\tab");
  } else if (IsOneOf(c, "\\{}")) {
    AppendSyntax("\\");
    piece_.Append(c);
  } else {
    AppendHex(c);
  }
  return 1;
}

void RtfSpelling::AppendHex(char c) {
  constexpr std::string_view kDigits = "0123456789abcdef";
  AppendSyntax("\\'");
  piece_.Append(kDigits[static_cast<unsigned char>(c) >> 4]);
  piece_.Append(kDigits[static_cast<unsigned char>(c) & 15]);
}

void RtfSpelling::AppendUnicode(char32_t character) {
  if (character < 0x10000) {
    AppendUtf16(character);
    return;
  }
  AppendUtf16(0xD800 + ((character - 0x10000) >> 10));
  AppendUtf16(0xDC00 + (character & 0x3FF));
}

/// The number is signed; readers that do not know the word show the question mark.
void RtfSpelling::AppendUtf16(char32_t unit) {
  AppendWord("\\u", unit < 0x8000 ? static_cast<int>(unit) : static_cast<int>(unit) - 0x10000);
  AppendSyntax("?");
}

void RtfSpelling::HandOver() {
  document_ += piece_.View();
  piece_.Clear();
}

}  // namespace brimwork
