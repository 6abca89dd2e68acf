#include "memory/rtf_reader.h"

#include <algorithm>

#include "environment/run_time_error.h"
#include "memory/rtf_content.h"
#include "memory/rtf_tokens.h"
#include "memory/rtf_words.h"

namespace brimwork {
namespace {

using Kind = RtfToken::Kind;

constexpr std::size_t kDeepestNesting = 1000;

class RtfReader {
 public:
  explicit RtfReader(std::string_view document) : tokens_(document), content_(document.size()) {}

  RichText Read() {
    RequireStart();
    do {
      Take(tokens_.Next());
    } while (content_.Depth() > 0);
    return content_.TakeBody();
  }

 private:
  void RequireStart();
  void Take(RtfToken&& token);
  bool IsFallback(RtfToken& token);
  void StartGroup();
  void TakeWord(const RtfToken& token);
  void TakeSymbol(char symbol);

  RtfTokens tokens_;
  RtfContent content_;
  int fallbackLeft_ = 0;  // characters behind \u yet to be passed over
};

void RtfReader::RequireStart() {
  const bool startsGroup = tokens_.Next().kind == Kind::kGroupStart;
  const RtfToken word = startsGroup ? tokens_.Next() : RtfToken{};
  if (word.kind != Kind::kWord || word.text != "rtf") {
    tokens_.Refuse("\"{\\rtf\" is missing");
  }
  content_.StartGroup();
}

void RtfReader::Take(RtfToken&& token) {
  if (IsFallback(token)) return;
  switch (token.kind) {
    case Kind::kGroupStart:
      return StartGroup();
    case Kind::kGroupEnd:
      return content_.EndGroup();
    case Kind::kWord:
      return TakeWord(token);
    case Kind::kSymbol:
      return TakeSymbol(token.byte);
    case Kind::kByte:
      return content_.TakeByte(token.byte);
    case Kind::kText:
      return content_.TakeText(token.text);
    case Kind::kEnd:
      tokens_.Refuse("a group is not closed");
  }
}

/// Whether the token only stands for a character that \u has given. A word counts as one
/// character, and a brace ends what stands for it; of a text the part that does is taken away.
bool RtfReader::IsFallback(RtfToken& token) {
  if (fallbackLeft_ == 0) return false;
  if (token.kind == Kind::kGroupStart || token.kind == Kind::kGroupEnd) fallbackLeft_ = 0;
  if (fallbackLeft_ == 0 || token.kind == Kind::kEnd) return false;
  const int size = token.kind == Kind::kText ? static_cast<int>(token.text.size()) : 1;
  const int passed = std::min(size, fallbackLeft_);
  fallbackLeft_ -= passed;
  if (token.kind == Kind::kText) token.text.remove_prefix(static_cast<std::size_t>(passed));
  if (token.kind == Kind::kWord && token.text == "bin") tokens_.Skip(token.number.value_or(0));
  return passed == size;
}

void RtfReader::StartGroup() {
  if (content_.Depth() == kDeepestNesting) tokens_.Refuse("groups are nested too deep");
  content_.StartGroup();
}

void RtfReader::TakeWord(const RtfToken& token) {
  content_.FinishBytes();  // the word may choose another font, and thereby another code page
  if (token.text == "bin") return tokens_.Skip(token.number.value_or(0));
  const RtfWord* const word = FindRtfWord(token.text);
  if (word == nullptr) return;
  const std::optional<int> number = word->number ? word->number : token.number;
  if (!number) return;
  (content_.*word->apply)(*number);
  if (token.text == "u") fallbackLeft_ = content_.FallbackSize();
}

void RtfReader::TakeSymbol(char symbol) {
  content_.FinishCharacters();
  switch (symbol) {
    case '*':  // what only programs that know the next word are to read
      return content_.SetDestination(rtf_destination::kNone);
    case '\r':
    case '\n':
      return content_.EndParagraph();
    case '~':
      return content_.AppendCharacter(0xA0);
    case '_':
      return content_.AppendCharacter(0x2011);
    case '\\':
    case '{':
    case '}':
      return content_.AppendCharacter(symbol);
    default:
      return;
  }
}

}  // namespace

RichText ReadRtf(std::string_view document) {
  if (document.size() > RichText::kMostBytes) {
    throw RunTimeError(error_number::kOverflow, "a text box holds 2 GB of rich text at most");
  }
  return RtfReader(document).Read();
}

}  // namespace brimwork
