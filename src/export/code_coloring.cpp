#include "export/code_coloring.h"

#include <algorithm>
#include <utility>

#include "environment/text.h"
#include "environment/utf8.h"

namespace brimwork {
namespace {

constexpr Color kNavy = Rgb(0, 0, 128);
constexpr Color kGreen = Rgb(0, 128, 0);

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
      isAscii_(static_cast<std::size_t>(length_) == text_.size() + 1),
      quote_(std::min(text_.find('"'), text_.size())),
      apostrophe_(std::min(text_.find('\''), text_.size())) {}

// Most characters do nothing that anybody sees, so they only cost their calls, which are made in a
// row. What a character does comes between its two calls.
void CodeColoring::Run() {
  MessageLoop& messageLoop = tools_.environment.messageLoop;
  for (Place at; at.character <= length_; at = Behind(at)) {
    const Place next = NextToTake(at);
    PassOver(at.character, next.character);
    messageLoop.DoEvents();
    at = Taken(next);
    tools_.form.UpdateProgressBar(at.character, length_);
  }
}

/// The next place, from this one on, at which something is coloured or skipped; the last one when
/// there is none.
CodeColoring::Place CodeColoring::NextToTake(Place from) {
  const std::size_t mark = NextMark(from.byte);
  std::size_t letters = NextLetters(from.byte, mark);
  std::size_t end = letters_.NextUnmarked(letters);
  while (end < mark) {
    if (EndsKeyword(letters, end, from)) return PlaceOf(end, from);
    letters = NextLetters(end + 1, mark);
    end = letters_.NextUnmarked(letters);
  }
  if (mark < text_.size()) {
    Keep(letters, end, from);
  } else {
    EndsKeyword(letters, end, from);
  }
  return PlaceOf(mark, from);
}

/// The next quote or apostrophe; the text's end when there is none.
std::size_t CodeColoring::NextMark(std::size_t from) {
  if (quote_ < from) quote_ = std::min(text_.find('"', from), text_.size());
  if (apostrophe_ < from) apostrophe_ = std::min(text_.find('\'', from), text_.size());
  return std::min(quote_, apostrophe_);
}

/// Where the next letters in front of a mark start; none may do for a word kept, which ends here.
std::size_t CodeColoring::NextLetters(std::size_t from, std::size_t mark) {
  return word_.empty() ? std::min(letters_.Next(from), mark) : from;
}

/// The letters so far belong to the word, whatever comes next.
void CodeColoring::Keep(std::size_t letters, std::size_t end, Place from) {
  if (letters == end) return;
  if (word_.empty()) wordStart_ = PlaceOf(letters, from).character;
  word_.append(text_, letters, end - letters);
}

/// Checks the word that ends with these letters; true when it is a keyword.
inline bool CodeColoring::EndsKeyword(std::size_t letters, std::size_t end, Place from) {
  if (!word_.empty()) [[unlikely]]
    return EndsKeptKeyword(letters, end, from);
  if (letters == end) return false;
  const std::string_view rest = std::string_view(text_).substr(letters);
  const auto spelling = keywords_.SpellingOf(rest.substr(0, end - letters), rest.size());
  if (!spelling) return false;
  spelling_ = *spelling;
  wordStart_ = PlaceOf(letters, from).character;
  return true;
}

bool CodeColoring::EndsKeptKeyword(std::size_t letters, std::size_t end, Place from) {
  Keep(letters, end, from);
  spelling_ = keywords_.SpellingOf(std::exchange(word_, {})).value_or(std::string_view());
  return !spelling_.empty();
}

/// Makes the calls of the characters in front of end.
void CodeColoring::PassOver(int first, int end) {
  MessageLoop& messageLoop = tools_.environment.messageLoop;
  ProgressForm& form = tools_.form;
  const int length = length_;
  for (int character = first; character < end; ++character) {
    messageLoop.DoEvents();
    form.UpdateProgressBar(character, length);
  }
}

/// Does what the character at a place asks for; returns the place that was reached by that.
CodeColoring::Place CodeColoring::Taken(Place at) {
  if (text_[at.byte] == '"') return SkipLiteral(at);
  if (text_[at.byte] == '\'') return ColorComment(at);
  ColorKeyword();
  return at;
}

CodeColoring::Place CodeColoring::Behind(Place at) const {
  if (isAscii_) return {at.character + 1, at.byte + 1};
  const std::size_t size = Utf8Size(std::string_view(text_).substr(at.byte));
  return {at.character + 1, at.byte + std::max<std::size_t>(size, 1)};
}

CodeColoring::Place CodeColoring::SkipLiteral(Place at) {
  const auto closing = text_.find('"', at.byte + 1);
  if (closing == std::string::npos) RefuseOpenLiteral(at);
  return PlaceOf(closing, at);
}

CodeColoring::Place CodeColoring::ColorComment(Place at) {
  const auto lineEnd = text_.find("\r\n", at.byte);
  const Place end = PlaceOf(std::min(lineEnd, text_.size()), at);
  Select(work_, at.character - 1, end.character - at.character);
  work_.SetSelColor(kGreen);
  return end;
}

void CodeColoring::ColorKeyword() {
  if (spelling_.empty()) return;
  Select(work_, wordStart_ - 1, static_cast<int>(spelling_.size()));
  work_.SetSelColor(kNavy);
  work_.SetSelText(spelling_);
  spelling_ = {};
}

CodeColoring::Place CodeColoring::CountedPlaceOf(std::size_t byte, Place from) const {
  const std::string_view between = std::string_view(text_).substr(from.byte, byte - from.byte);
  return {from.character + CharacterCount(between), byte};
}

void CodeColoring::RefuseOpenLiteral(Place at) const {
  const auto linesAbove =
      std::count(text_.begin(), text_.begin() + static_cast<std::ptrdiff_t>(at.byte), '\n');
  throw RunTimeError(error_number::kInvalidProcedureCall,
                     "a quote has no further quote anywhere behind it",
                     static_cast<int>(linesAbove) + 1);
}

}  // namespace brimwork
