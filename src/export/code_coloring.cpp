#include "export/code_coloring.h"

#include <algorithm>

#include "environment/text.h"
#include "environment/utf8.h"

namespace brimwork {
namespace {

constexpr Color kNavy = Rgb(0, 0, 128);
constexpr Color kGreen = Rgb(0, 128, 0);

constexpr bool IsWordCharacter(char c) {
  return (c >= 'A' && c <= 'Z') || (c >= 'a' && c <= 'z') || c == '_';
}

void Select(RichTextBox& control, int start, int length) {
  control.SetSelStart(start);
  control.SetSelLength(length);
}

}  // namespace

CodeColoring::CodeColoring(const ExportTools& tools, RichTextBox& work, KeywordList& keywords,
                           std::string_view text)
    : tools_(tools),
      work_(work),
      keywords_(keywords),
      text_(std::string(text) + ' '),
      length_(CharacterCount(text_)),
      isAscii_(static_cast<std::size_t>(length_) == text_.size()) {}

void CodeColoring::Run() {
  while (at_.character <= length_) {
    tools_.environment.messageLoop.DoEvents();
    Take();
    tools_.form.UpdateProgressBar(at_.character, length_);
    at_.byte +=
        isAscii_ ? 1 : std::max<std::size_t>(Utf8Size(std::string_view(text_).substr(at_.byte)), 1);
    ++at_.character;
  }
}

void CodeColoring::Take() {
  const char c = text_[at_.byte];
  if (IsWordCharacter(c)) {
    AddToWord();
  } else if (c == '"') {
    SkipLiteral();
  } else if (c == '\'') {
    ColorComment();
  } else {
    CheckWord();
  }
}

void CodeColoring::AddToWord() {
  if (lettersStart_ != kNoLetters) return;
  lettersStart_ = at_.byte;
  if (word_.empty()) wordStart_ = at_.character;
}

/// The letters so far belong to the word, whatever comes next.
void CodeColoring::Interrupt() {
  if (lettersStart_ == kNoLetters) return;
  word_.append(text_, lettersStart_, at_.byte - lettersStart_);
  lettersStart_ = kNoLetters;
}

void CodeColoring::SkipLiteral() {
  Interrupt();
  const auto closing = text_.find('"', at_.byte + 1);
  if (closing == std::string::npos) RefuseOpenLiteral();
  at_ = PlaceOf(closing);
}

void CodeColoring::ColorComment() {
  Interrupt();
  const auto lineEnd = text_.find("\r\n", at_.byte);
  const Place end = PlaceOf(lineEnd == std::string::npos ? text_.size() - 1 : lineEnd);
  Select(work_, at_.character - 1, end.character - at_.character);
  work_.SetSelColor(kGreen);
  at_ = end;
}

void CodeColoring::CheckWord() {
  Interrupt();
  if (word_.empty()) return;
  if (const auto spelling = keywords_.SpellingOf(word_)) {
    Select(work_, wordStart_ - 1, static_cast<int>(word_.size()));
    work_.SetSelColor(kNavy);
    work_.SetSelText(*spelling);
  }
  word_.clear();
}

CodeColoring::Place CodeColoring::PlaceOf(std::size_t byte) const {
  const std::string_view between = std::string_view(text_).substr(at_.byte, byte - at_.byte);
  const int characters = isAscii_ ? static_cast<int>(between.size()) : CharacterCount(between);
  return {at_.character + characters, byte};
}

void CodeColoring::RefuseOpenLiteral() const {
  const auto linesAbove =
      std::count(text_.begin(), text_.begin() + static_cast<std::ptrdiff_t>(at_.byte), '\n');
  throw RunTimeError(error_number::kInvalidProcedureCall,
                     "a quote has no further quote anywhere behind it",
                     static_cast<int>(linesAbove) + 1);
}

}  // namespace brimwork
