// Colours the code in a rich text control, character by character from the top.
#pragma once

#include <string>
#include <string_view>

#include "environment/byte_marks.h"
#include "export/export_tools.h"
#include "export/keyword_list.h"

namespace brimwork {

class CodeColoring {
 public:
  /// text: what the control work holds.
  CodeColoring(const ExportTools& tools, RichTextBox& work, KeywordList& keywords,
               std::string text);

  CodeColoring(const CodeColoring&) = delete;
  CodeColoring& operator=(const CodeColoring&) = delete;

  /// Raises error 5, with the line, for a quote without a further quote behind it.
  void Run();

 private:
  /// Letters and the underscore.
  struct IsWordCharacter {
    bool operator()(unsigned char c) const {
      const auto letter = static_cast<unsigned char>((c | 0x20) - 'a');
      return (letter < 26) | (c == '_');
    }
  };

  /// A place in the text: the character's number from 1, and its byte.
  struct Place {
    int character = 1;
    std::size_t byte = 0;
  };

  Place NextToTake(Place from);
  std::size_t NextMark(std::size_t from);
  std::size_t NextLetters(std::size_t from, std::size_t mark);
  void Keep(std::size_t letters, std::size_t end, Place from);
  bool EndsKeyword(std::size_t letters, std::size_t end, Place from);
  bool EndsKeptKeyword(std::size_t letters, std::size_t end, Place from);
  void PassOver(int first, int end);
  Place Taken(Place at);
  Place Behind(Place at) const;
  Place SkipLiteral(Place at);
  Place ColorComment(Place at);
  void ColorKeyword();
  Place PlaceOf(std::size_t byte, Place from) const {
    if (!isAscii_) [[unlikely]]
      return CountedPlaceOf(byte, from);
    return {static_cast<int>(byte) + 1, byte};
  }
  Place CountedPlaceOf(std::size_t byte, Place from) const;
  [[noreturn]] void RefuseOpenLiteral(Place at) const;

  const ExportTools& tools_;
  RichTextBox& work_;
  KeywordList& keywords_;
  // Behind it stands a NUL, which closes the last word as the blank would that belongs there.
  std::string text_;
  int length_;  // in characters, with the blank
  bool isAscii_;
  ByteMarks<IsWordCharacter> letters_{text_};
  std::size_t quote_;          // the next one from where the text is read
  std::size_t apostrophe_;     // the same
  std::string word_;           // the letters kept of a word with a literal or comment in it
  int wordStart_ = 0;          // of the word being kept or coloured: character, from 1
  std::string_view spelling_;  // of the keyword that ends at the next place taken
};

}  // namespace brimwork
