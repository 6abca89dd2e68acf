#include "export/html_lines.h"

namespace brimwork {
namespace {

constexpr std::string_view kKeywordOpenTag = "<font color=\"#000080\">";
constexpr std::string_view kCommentOpenTag = "<font color=\"#008000\">";
constexpr std::string_view kCloseTag = "</font>";

}  // namespace

std::string_view HtmlLines::Convert(std::string_view line) {
  outLine_.clear();
  for (const char c : line) {
    if (c == ' ') {
      CloseWord();
    } else {
      AddToWord(c);
    }
  }
  EndComment();
  return outLine_;
}

void HtmlLines::AddToWord(char c) {
  switch (c) {
    case '"':
      inString_ = !inString_;
      word_ += "&quot;";
      break;
    case '&':
      word_ += "&amp;";
      break;
    case '<':
      word_ += "&lt;";
      break;
    case '>':
      word_ += "&gt;";
      break;
    default:
      word_ += c;
  }
}

void HtmlLines::CloseWord() {
  if (word_.starts_with('\'')) OpenComment();
  if (!inComment_) ColorKeyword();
  outLine_.append(word_).append(" ");
  word_.clear();
}

// The tags are put straight into the line: they stand in front of the word, the last one first.

void HtmlLines::OpenComment() {
  if (keywordOpen_) outLine_ += kCloseTag;
  keywordOpen_ = false;
  if (!inComment_) outLine_ += kCommentOpenTag;
  inComment_ = true;
}

void HtmlLines::ColorKeyword() {
  const bool isKeyword = !inString_ && keywords_.Holds(word_);
  if (isKeyword == keywordOpen_) return;
  outLine_ += isKeyword ? kKeywordOpenTag : kCloseTag;
  keywordOpen_ = isKeyword;
}

void HtmlLines::EndComment() {
  if (inComment_) outLine_ += kCloseTag;
  inComment_ = false;
}

}  // namespace brimwork
