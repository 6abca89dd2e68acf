#include "export/code_coloring.h"

#include <algorithm>
#include <array>
#include <utility>

#include "environment/text.h"
#include "environment/utf8.h"

namespace brimwork {
namespace {

constexpr Color kNavy = Rgb(0, 0, 128);
constexpr Color kGreen = Rgb(0, 128, 0);

enum class Kind : unsigned char { kWordCharacter, kSeparator, kQuote, kApostrophe };

constexpr auto kKinds = [] {
  std::array<Kind, 256> kinds{};
  kinds.fill(Kind::kSeparator);
  for (char c = 'A'; c <= 'Z'; ++c) kinds[static_cast<std::size_t>(c)] = Kind::kWordCharacter;
  for (char c = 'a'; c <= 'z'; ++c) kinds[static_cast<std::size_t>(c)] = Kind::kWordCharacter;
  kinds['_'] = Kind::kWordCharacter;
  kinds['"'] = Kind::kQuote;
  kinds['\''] = Kind::kApostrophe;
  return kinds;
}();

Kind KindOf(char c) { return kKinds[static_cast<unsigned char>(c)]; }

void Select(RichTextBox& control, int start, int length) {
  control.SetSelStart(start);
  control.SetSelLength(length);
}

}  // namespace

CodeColoring::CodeColoring(const ExportTools& tools, RichTextBox& work, KeywordList& keywords,
                           std::string text)
    : tools_(tools),
      work_(work),
      keywords_(keywords),
      text_(std::move(text)),
      length_(CharacterCount(text_) + 1),
      isAscii_(static_cast<std::size_t>(length_) == text_.size() + 1) {}

void CodeColoring::Run() {
  MessageLoop& messageLoop = tools_.environment.messageLoop;
  ProgressForm& form = tools_.form;
  for (Place at; at.character <= length_; at = Behind(at)) {
    messageLoop.DoEvents();
    at = Taken(at);
    form.UpdateProgressBar(at.character, length_);
  }
}

/// Does what the character at a place asks for; returns the place that was reached by that.
inline CodeColoring::Place CodeColoring::Taken(Place at) {
  const Kind kind = KindOf(text_[at.byte]);
  if (kind == Kind::kWordCharacter) [[likely]] {
    AddToWord(at);
  } else if (kind == Kind::kQuote) {
    return SkipLiteral(at);
  } else if (kind == Kind::kApostrophe) {
    return ColorComment(at);
  } else {
    CheckWord(at);
  }
  return at;
}

inline CodeColoring::Place CodeColoring::Behind(Place at) const {
  if (isAscii_) [[likely]]
    return {at.character + 1, at.byte + 1};
  const std::size_t size = Utf8Size(std::string_view(text_).substr(at.byte));
  return {at.character + 1, at.byte + std::max<std::size_t>(size, 1)};
}

inline void CodeColoring::AddToWord(Place at) {
  if (lettersStart_ != kNoLetters) [[likely]]
    return;
  lettersStart_ = at.byte;
  if (word_.empty()) wordStart_ = at.character;
}

/// The letters so far belong to the word, whatever comes next.
void CodeColoring::Interrupt(Place at) {
  if (lettersStart_ == kNoLetters) return;
  word_.append(text_, lettersStart_, at.byte - lettersStart_);
  lettersStart_ = kNoLetters;
}

CodeColoring::Place CodeColoring::SkipLiteral(Place at) {
  Interrupt(at);
  const auto closing = text_.find('"', at.byte + 1);
  if (closing == std::string::npos) RefuseOpenLiteral(at);
  return PlaceOf(closing, at);
}

CodeColoring::Place CodeColoring::ColorComment(Place at) {
  Interrupt(at);
  const auto lineEnd = text_.find("\r\n", at.byte);
  const Place end = PlaceOf(std::min(lineEnd, text_.size()), at);
  Select(work_, at.character - 1, end.character - at.character);
  work_.SetSelColor(kGreen);
  return end;
}

inline void CodeColoring::CheckWord(Place at) {
  if (word_.empty()) {
    if (lettersStart_ == kNoLetters) return;
    ColorKeyword(std::string_view(text_).substr(lettersStart_, at.byte - lettersStart_));
    lettersStart_ = kNoLetters;
  } else {
    Interrupt(at);
    ColorKeyword(word_);
    word_.clear();
  }
}

void CodeColoring::ColorKeyword(std::string_view word) {
  const auto spelling = keywords_.SpellingOf(word);
  if (!spelling) return;
  Select(work_, wordStart_ - 1, static_cast<int>(word.size()));
  work_.SetSelColor(kNavy);
  work_.SetSelText(*spelling);
}

CodeColoring::Place CodeColoring::PlaceOf(std::size_t byte, Place from) const {
  const std::string_view between = std::string_view(text_).substr(from.byte, byte - from.byte);
  const int characters = isAscii_ ? static_cast<int>(between.size()) : CharacterCount(between);
  return {from.character + characters, byte};
}

void CodeColoring::RefuseOpenLiteral(Place at) const {
  const auto linesAbove =
      std::count(text_.begin(), text_.begin() + static_cast<std::ptrdiff_t>(at.byte), '\n');
  throw RunTimeError(error_number::kInvalidProcedureCall,
                     "a quote has no further quote anywhere behind it",
                     static_cast<int>(linesAbove) + 1);
}

}  // namespace brimwork
