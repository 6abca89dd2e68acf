#include "export/html_lines.h"

#include <array>

#include "environment/text.h"

namespace brimwork {
namespace {

constexpr std::string_view kKeywordOpenTag = "<font color=\"#000080\">";
constexpr std::string_view kCommentOpenTag = "<font color=\"#008000\">";
constexpr std::string_view kCloseTag = "</font>";

/// Where the characters from at on end that go into a word as they are.
std::size_t PlainEnd(std::string_view line, std::size_t at) {
  static constexpr auto kIsPlain = [] {
    std::array<bool, 256> isPlain{};
    for (std::size_t c = 0; c < isPlain.size(); ++c) {
      isPlain[c] = !IsOneOf(static_cast<char>(c), " \"&<>");
    }
    return isPlain;
  }();
  while (at < line.size() && kIsPlain[static_cast<unsigned char>(line[at])]) ++at;
  return at;
}

}  // namespace

std::string_view HtmlLines::Convert(std::string_view line) {
  outLine_.clear();
  wordStart_ = 0;
  for (std::size_t at = 0; at < line.size(); ++at) {
    const std::size_t end = PlainEnd(line, at);
    AddToWord(line.substr(at, end - at));
    at = end;
    if (at == line.size()) break;
    if (line[at] == ' ') {
      CloseWord();
    } else {
      AddEscaped(line[at]);
    }
  }
  EndComment();
  return outLine_;
}

void HtmlLines::AddEscaped(char c) {
  switch (c) {
    case '"':
      inString_ = !inString_;
      outLine_ += "&quot;";
      break;
    case '&':
      outLine_ += "&amp;";
      break;
    case '<':
      outLine_ += "&lt;";
      break;
    case '>':
      outLine_ += "&gt;";
      break;
  }
}

void HtmlLines::CloseWord() {
  if (Word().starts_with('\'')) OpenComment();
  if (!inComment_) ColorKeyword();
  outLine_ += ' ';
  wordStart_ = outLine_.size();
}

void HtmlLines::PutBeforeWord(std::string_view tag) {
  outLine_.insert(wordStart_, tag);
  wordStart_ += tag.size();
}

void HtmlLines::OpenComment() {
  if (keywordOpen_) PutBeforeWord(kCloseTag);
  keywordOpen_ = false;
  if (!inComment_) PutBeforeWord(kCommentOpenTag);
  inComment_ = true;
}

void HtmlLines::ColorKeyword() {
  const bool isKeyword = !inString_ && keywords_.Holds(Word());
  if (isKeyword == keywordOpen_) return;
  PutBeforeWord(isKeyword ? kKeywordOpenTag : kCloseTag);
  keywordOpen_ = isKeyword;
}

void HtmlLines::EndComment() {
  if (inComment_) outLine_ += kCloseTag;
  inComment_ = false;
}

}  // namespace brimwork
