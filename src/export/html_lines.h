// Turns lines of code into lines of a web page, one after the other.
#pragma once

#include <string_view>

#include "environment/padded_text.h"
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
  std::size_t TakeWord(std::size_t start);
  std::size_t TakeBlanks(std::size_t start);
  std::size_t TakeRest(std::size_t start);
  std::string_view Gathered(std::string_view word);
  std::string_view Escaped(std::string_view word);
  void CloseWord(std::string_view word);
  void OpenComment();
  void ColorKeyword(std::string_view word);
  void EndComment();

  KeywordList& keywords_;
  PaddedText line_;
  bool needsEscapes_ = false;  // somewhere in line_
  PaddedText word_;            // the word that is being gathered, where it needs escapes
  PaddedText outLine_;
  bool inComment_ = false;
  bool keywordOpen_ = false;
  bool inString_ = false;
};

}  // namespace brimwork
