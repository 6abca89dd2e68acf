// Colours the code in a rich text control, character by character from the top.
#pragma once

#include <string>
#include <string_view>

#include "export/export_tools.h"
#include "export/keyword_list.h"

namespace brimwork {

class CodeColoring {
 public:
  /// text: what the control work holds.
  CodeColoring(const ExportTools& tools, RichTextBox& work, KeywordList& keywords,
               std::string text);

  /// Raises error 5, with the line, for a quote without a further quote behind it.
  void Run();

 private:
  static constexpr std::size_t kNoLetters = std::string::npos;

  /// A place in the text: the character's number from 1, and its byte.
  struct Place {
    int character = 1;
    std::size_t byte = 0;
  };

  Place Taken(Place at);
  Place Behind(Place at) const;
  void AddToWord(Place at);
  void Interrupt(Place at);
  Place SkipLiteral(Place at);
  Place ColorComment(Place at);
  void CheckWord(Place at);
  void ColorKeyword(std::string_view word);
  Place PlaceOf(std::size_t byte, Place from) const;
  [[noreturn]] void RefuseOpenLiteral(Place at) const;

  const ExportTools& tools_;
  RichTextBox& work_;
  KeywordList& keywords_;
  // Behind it stands a NUL, which closes the last word as the blank would that belongs there.
  std::string text_;
  int length_;  // in characters, with the blank
  bool isAscii_;
  // The word that is being gathered: what came in front of a literal or comment, and the letters
  // right in front of here.
  std::string word_;
  std::size_t lettersStart_ = kNoLetters;
  int wordStart_ = 0;  // character, from 1
};

}  // namespace brimwork
