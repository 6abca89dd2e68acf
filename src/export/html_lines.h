// Turns lines of code into lines of a web page, one after the other.
#pragma once

#include <string>
#include <string_view>

#include "export/keyword_list.h"

namespace brimwork {

/// A keyword's colour and a text literal may go on from one line to the next.
class HtmlLines {
 public:
  explicit HtmlLines(KeywordList& keywords) : keywords_(keywords) {}

  /// The next line, coloured; valid until the one after it. line ends in a blank, which closes its
  /// last word as every other.
  std::string_view Convert(std::string_view line);

 private:
  void AddToWord(std::string_view plain) { outLine_ += plain; }
  void AddEscaped(char c);
  void CloseWord();
  void PutBeforeWord(std::string_view tag);
  std::string_view Word() const { return std::string_view(outLine_).substr(wordStart_); }
  void OpenComment();
  void ColorKeyword();
  void EndComment();

  KeywordList& keywords_;
  std::string outLine_;  // ends in the word that is being gathered, escaped
  std::size_t wordStart_ = 0;
  bool inComment_ = false;
  bool keywordOpen_ = false;
  bool inString_ = false;
};

}  // namespace brimwork
