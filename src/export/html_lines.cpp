#include "export/html_lines.h"

#include <array>

#include "environment/byte_words.h"

namespace brimwork {
namespace {

constexpr std::string_view kKeywordOpenTag = "<font color=\"#000080\">";
constexpr std::string_view kCommentOpenTag = "<font color=\"#008000\">";
constexpr std::string_view kCloseTag = "</font>";

constexpr std::string_view EscapeOf(char c) {
  switch (c) {
    case '"':
      return "&quot;";
    case '&':
      return "&amp;";
    case '<':
      return "&lt;";
    case '>':
      return "&gt;";
    default:
      return {};
  }
}

/// How many characters at the start of text go into a word as they are.
std::size_t PlainSize(std::string_view text) {
  static constexpr auto kIsPlain = [] {
    std::array<bool, 256> isPlain{};
    for (std::size_t c = 0; c < isPlain.size(); ++c) {
      isPlain[c] = EscapeOf(static_cast<char>(c)).empty();
    }
    return isPlain;
  }();
  std::size_t size = 0;
  while (size < text.size() && kIsPlain[static_cast<unsigned char>(text[size])]) ++size;
  return size;
}

/// Where the word that starts at a place ends: at the next blank, which there is.
std::size_t WordEnd(const PaddedText& line, std::size_t start) {
  return start + byte_words::SizeWithout<' '>(line.Data() + start);
}

std::size_t BlanksEnd(const PaddedText& line, std::size_t start) {
  const std::string_view text = line.View();
  while (start < text.size() && text[start] == ' ') ++start;
  return start;
}

}  // namespace

std::string_view HtmlLines::Convert(std::string_view line) {
  line_.Clear();
  line_.Append(line);
  needsEscapes_ = ContainsOneOf<'"', '&', '<', '>'>(line);
  outLine_.Clear();
  for (std::size_t at = 0; at < line.size();) {
    if (inComment_) {
      at = TakeRest(at);
    } else if (line[at] == ' ') {
      at = TakeBlanks(at);
    } else {
      at = TakeWord(at);
    }
  }
  EndComment();
  return outLine_.View();
}

inline std::size_t HtmlLines::TakeWord(std::size_t start) {
  const std::size_t end = WordEnd(line_, start);
  CloseWord(Gathered(line_.View().substr(start, end - start)));
  return end + 1;
}

/// Each blank closes an empty word. One empty word behind another changes nothing more.
inline std::size_t HtmlLines::TakeBlanks(std::size_t start) {
  CloseWord(line_.View().substr(start, 0));
  const std::size_t end = BlanksEnd(line_, start);
  outLine_.AppendPadded(line_.View().substr(start + 1, end - start - 1));
  return end;
}

/// In a comment the words make no difference any more.
std::size_t HtmlLines::TakeRest(std::size_t start) {
  outLine_.Append(Gathered(line_.View().substr(start)));
  return line_.Size();
}

/// The word as it is gathered, character by character.
inline std::string_view HtmlLines::Gathered(std::string_view word) {
  if (!needsEscapes_ || PlainSize(word) == word.size()) return word;
  return Escaped(word);
}

std::string_view HtmlLines::Escaped(std::string_view word) {
  word_.Clear();
  while (true) {
    const std::size_t plain = PlainSize(word);
    word_.Append(word.substr(0, plain));
    if (plain == word.size()) return word_.View();
    if (word[plain] == '"') inString_ = !inString_;
    word_.Append(EscapeOf(word[plain]));
    word.remove_prefix(plain + 1);
  }
}

inline void HtmlLines::CloseWord(std::string_view word) {
  if (word.starts_with('\'')) OpenComment();
  if (!inComment_) ColorKeyword(word);
  outLine_.AppendPadded(word);
  outLine_.Append(' ');
}

void HtmlLines::OpenComment() {
  if (keywordOpen_) outLine_.Append(kCloseTag);
  keywordOpen_ = false;
  if (!inComment_) outLine_.Append(kCommentOpenTag);
  inComment_ = true;
}

inline void HtmlLines::ColorKeyword(std::string_view word) {
  const bool isKeyword = !inString_ && keywords_.Holds(word, word.size() + PaddedText::kPadding);
  if (isKeyword == keywordOpen_) return;
  outLine_.Append(isKeyword ? kKeywordOpenTag : kCloseTag);
  keywordOpen_ = isKeyword;
}

void HtmlLines::EndComment() {
  if (inComment_) outLine_.Append(kCloseTag);
  inComment_ = false;
}

}  // namespace brimwork
