#include "memory/rtf_content.h"

#include <algorithm>
#include <utility>

#include "environment/utf8.h"

namespace brimwork {
namespace {

constexpr int kMostHalfPoints = 4320;
constexpr std::string_view kReplacement = "\uFFFD";

}  // namespace

void RtfContent::StartGroup() {
  FinishCharacters();
  outer_.push_back(state_);
}

void RtfContent::EndGroup() {
  FinishCharacters();
  state_ = outer_.back();
  outer_.pop_back();
  isFormatSet_ = false;
}

void RtfContent::TakeText(std::string_view text) {
  if (HasPieces()) text = FinishPieces(text);
  switch (state_.destination) {
    case rtf_destination::kBody:
      return AppendToBody(text);
    case rtf_destination::kFontTable:
      return fonts_.AppendText(text);
    case rtf_destination::kColorTable:
      return colors_.AppendText(text);
  }
}

void RtfContent::TakeByte(char byte) {
  Append(joiner_.Finish());
  bytes_ += byte;
}

void RtfContent::TakeUtf16(int unit) {
  FinishBytes();
  Append(WithLineEnds(joiner_.Add(static_cast<std::uint16_t>(unit))));
}

void RtfContent::AppendCharacter(int character) {
  FinishCharacters();
  std::string text;
  AppendUtf8(text, static_cast<char32_t>(character));
  Append(text);
}

void RtfContent::EndLine(int) {
  FinishCharacters();
  Append("\r\n");
}

void RtfContent::EndParagraph(int) {
  FinishCharacters();
  if (state_.destination != rtf_destination::kBody) return;
  AppendToBody("\r\n");
  paragraphEnd_ = text_.size();
}

void RtfContent::SetFont(int number) {
  if (state_.destination == rtf_destination::kFontTable) return fonts_.StartEntry(number);
  state_.font = number;
  isFormatSet_ = false;
}

void RtfContent::SetFontSize(int halfPoints) {
  state_.halfPoints = std::clamp(halfPoints, 1, kMostHalfPoints);
  isFormatSet_ = false;
}

void RtfContent::SetColor(int index) {
  state_.color = index;
  isFormatSet_ = false;
}

void RtfContent::SetPlain(int) {
  SetFont(plainFont_);
  SetFontSize(kPlainHalfPoints);
  SetColor(0);
}

void RtfContent::SetFallbackSize(int characters) { state_.fallbackSize = std::max(characters, 0); }

void RtfContent::SetPlainFont(int number) {
  plainFont_ = number;
  SetFont(number);
}

void RtfContent::SetCharset(int charset) {
  if (RtfFont* const font = fonts_.Entry()) font->charset = charset;
}

void RtfContent::SetFontCodePage(int codePage) {
  if (RtfFont* const font = fonts_.Entry()) font->codePage = codePage;
}

RichText RtfContent::TakeBody() {
  if (paragraphEnd_ > 0 && paragraphEnd_ == text_.size()) text_.resize(text_.size() - 2);
  formats_.Cut(text_.size());
  return RichText(std::move(text_), std::move(formats_));
}

/// Appends what the pieces of characters met so far make; returns what is left of the text that
/// follows them.
std::string_view RtfContent::FinishPieces(std::string_view following) {
  Append(joiner_.Finish());
  return DecodeBytes(following);
}

/// In some code pages an ASCII character can be the last byte of another one.
std::string_view RtfContent::DecodeBytes(std::string_view following) {
  if (bytes_.empty()) return following;
  auto decoded = codePages_.Decode(CodePageInUse(), bytes_);
  if (decoded.isCutOff && !following.empty()) {
    bytes_ += following[0];
    following.remove_prefix(1);
    decoded = codePages_.Decode(CodePageInUse(), bytes_);
  }
  if (decoded.isCutOff) decoded.text += kReplacement;
  bytes_.clear();
  Append(WithLineEnds(decoded.text));
  return following;
}

/// Text that was escaped in the document, so that no semicolon in it divides entries.
void RtfContent::Append(std::string_view text) {
  if (text.empty()) return;
  if (state_.destination == rtf_destination::kBody) AppendToBody(text);
  if (state_.destination == rtf_destination::kFontTable) fonts_.AppendName(text);
}

void RtfContent::AppendToBody(std::string_view text) {
  if (text.empty()) return;
  if (!isFormatSet_) formats_.Continue(text_.size(), FormatInUse());
  isFormatSet_ = true;
  text_ += text;
}

/// None when the document's tables do not have it.
const RtfFont* RtfContent::FontInUse() {
  const bool isTable = state_.destination == rtf_destination::kFontTable;
  return isTable ? fonts_.Entry() : fonts_.Find(state_.font);
}

int RtfContent::CodePageInUse() {
  const RtfFont* const font = FontInUse();
  if (font == nullptr) return codePage_;
  if (font->codePage) return *font->codePage;
  return font->charset ? CodePageOfCharset(*font->charset, codePage_) : codePage_;
}

PackedFormat RtfContent::FormatInUse() {
  PackedFormat format;
  RtfFont* const font = fonts_.Find(state_.font);
  if (font != nullptr) {
    if (!font->index) font->index = formats_.FontIndex(font->name);
    format.font = *font->index;
  }
  format.halfPoints = static_cast<std::uint16_t>(state_.halfPoints);
  format.color = colors_.At(state_.color);
  return format;
}

}  // namespace brimwork
