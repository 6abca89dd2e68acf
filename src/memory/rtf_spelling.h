// Text as a rich text document spells it: ASCII, with everything else escaped.
#pragma once

#include <string>
#include <string_view>

#include "environment/byte_marks.h"
#include "environment/padded_text.h"
#include "memory/format_runs.h"

namespace brimwork {

/// The bytes of text that are not spelled as they are.
struct IsSpelledOtherwise {
  bool operator()(unsigned char c) const {
    const bool isPrintable = static_cast<unsigned char>(c - ' ') <= '~' - ' ';
    return !isPrintable | (c == '\\') | (c == '{') | (c == '}');
  }
};
using SpelledOtherwise = ByteMarks<IsSpelledOtherwise>;

/// Appends what belongs to the body of a document. Control words and text that go to the same
/// document must all pass through here, so that text never runs into a control word. What is
/// spelled reaches the document by and by, and whole with Finish.
class RtfSpelling {
 public:
  explicit RtfSpelling(std::string& document) : document_(document) {}

  /// Nothing follows.
  void Finish();

  /// word: with its backslash.
  void AppendWord(std::string_view word) {
    piece_.Append(word);
    isBehindWord_ = true;
  }
  void AppendWord(std::string_view word, int number) {
    AppendWord(word);
    if (number >= 0 && number < 10) {
      piece_.Append(static_cast<char>('0' + number));
    } else {
      AppendNumber(number);
    }
  }

  /// text: UTF-8, its line ends CR LF, each of which becomes the end of a paragraph.
  void AppendText(std::string_view text);
  /// The same for a part of it; marks: those of the text.
  void AppendText(std::string_view text, ByteRange part, SpelledOtherwise& marks);

  void EndParagraph();

  /// A name within a list that semicolons divide.
  void AppendName(std::string_view name);

  /// What divides words from each other by itself: a brace, a semicolon.
  void AppendSyntax(std::string_view syntax);

 private:
  void AppendPlain(std::string_view text, std::size_t size);
  std::size_t AppendSpecial(std::string_view text);
  std::size_t AppendAsciiSpecial(char c);
  void AppendHex(char c);
  void AppendUnicode(char32_t character);
  void AppendUtf16(char32_t unit);

  void AppendNumber(int number);
  void HandOver();

  std::string& document_;
  PaddedText piece_;           // of the document, its latest
  bool isBehindWord_ = false;  // text that follows needs a blank in front of it
};

}  // namespace brimwork
