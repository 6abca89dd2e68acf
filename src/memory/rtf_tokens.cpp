#include "memory/rtf_tokens.h"

#include <algorithm>
#include <array>

#include "environment/run_time_error.h"
#include "environment/text.h"

namespace brimwork {
namespace {

using Kind = RtfToken::Kind;

constexpr std::array<bool, 256> TextBytes() {
  std::array<bool, 256> isText{};
  for (std::size_t byte = 0; byte < 0x80; ++byte) {
    isText[byte] = !IsOneOf(static_cast<char>(byte), "\\{}\r\n");
  }
  return isText;
}

constexpr std::array<bool, 256> kIsText = TextBytes();

bool IsText(char c) { return kIsText[static_cast<unsigned char>(c)]; }
bool IsLetter(char c) { return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z'); }

int HexDigit(char c) {
  const char upper = ToUpperAscii(c);
  if (IsDigit(c)) return c - '0';
  return upper >= 'A' && upper <= 'F' ? upper - 'A' + 10 : -1;
}

}  // namespace

RtfToken RtfTokens::Next() {
  while (at_ < document_.size() && IsOneOf(document_[at_], "\r\n")) ++at_;
  if (at_ == document_.size()) return {};
  const char c = document_[at_];
  if (IsText(c)) return NextText();
  ++at_;
  if (c == '{') return {.kind = Kind::kGroupStart};
  if (c == '}') return {.kind = Kind::kGroupEnd};
  if (c == '\\') return NextEscape();
  return {.kind = Kind::kByte, .byte = c};
}

void RtfTokens::Skip(int bytes) {
  const auto count = static_cast<std::size_t>(std::max(bytes, 0));
  if (count > document_.size() - at_) Refuse("binary data is cut off");
  at_ += count;
}

void RtfTokens::Refuse(std::string_view problem) const {
  throw RunTimeError(
      error_number::kInvalidFileFormat,
      "no valid rich text: " + std::string(problem) + " at byte " + std::to_string(at_));
}

RtfToken RtfTokens::NextText() {
  const std::size_t start = at_;
  while (at_ < document_.size() && IsText(document_[at_])) ++at_;
  return {.kind = Kind::kText, .text = document_.substr(start, at_ - start)};
}

RtfToken RtfTokens::NextEscape() {
  if (at_ == document_.size()) Refuse("a backslash has nothing behind it");
  if (IsLetter(document_[at_])) return NextWord();
  const char symbol = document_[at_++];
  if (symbol == '\'') return NextByte();
  return {.kind = Kind::kSymbol, .byte = symbol};
}

/// One blank behind a word belongs to it.
RtfToken RtfTokens::NextWord() {
  const std::size_t start = at_;
  while (at_ < document_.size() && IsLetter(document_[at_])) ++at_;
  RtfToken word{.kind = Kind::kWord, .text = document_.substr(start, at_ - start)};
  word.number = TakeNumber();
  if (at_ < document_.size() && document_[at_] == ' ') ++at_;
  return word;
}

RtfToken RtfTokens::NextByte() {
  const std::string_view digits = document_.substr(at_, 2);
  if (digits.size() < 2 || HexDigit(digits[0]) < 0 || HexDigit(digits[1]) < 0) {
    Refuse("a byte is not given as two hexadecimal digits");
  }
  at_ += 2;
  return {.kind = Kind::kByte,
          .byte = static_cast<char>(HexDigit(digits[0]) << 4 | HexDigit(digits[1]))};
}

/// The number behind a word; one beyond any use counts as the largest there is.
std::optional<int> RtfTokens::TakeNumber() {
  constexpr int kLargest = 1'000'000'000;
  const bool isNegative = at_ < document_.size() && document_[at_] == '-';
  std::size_t at = at_ + isNegative;
  if (at >= document_.size() || !IsDigit(document_[at])) return {};
  int number = 0;
  for (; at < document_.size() && IsDigit(document_[at]); ++at) {
    number = number > kLargest / 10 - 1 ? kLargest : number * 10 + (document_[at] - '0');
  }
  at_ = at;
  return isNegative ? -number : number;
}

}  // namespace brimwork
