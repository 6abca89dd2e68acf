// Takes a rich text document apart: braces, control words, control symbols, bytes and text.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace brimwork {

struct RtfToken {
  enum class Kind {
    kGroupStart,
    kGroupEnd,
    kWord,    // name, and number when the word has one
    kSymbol,  // byte: the character behind the backslash
    kByte,    // byte: one of the code page's
    kText,    // text: ASCII
    kEnd
  };

  Kind kind = Kind::kEnd;
  char byte = 0;
  std::string_view text = {};
  std::optional<int> number = {};
};

class RtfTokens {
 public:
  explicit RtfTokens(std::string_view document) : document_(document) {}

  /// The next one, which points into the document. Raises error 32000 for a byte whose two digits
  /// are missing and for a backslash at the document's end.
  RtfToken Next();

  /// Passes over raw bytes. Raises error 32000 when there are fewer.
  void Skip(int bytes);

  /// Raises error 32000; problem says what is wrong at the place reached.
  [[noreturn]] void Refuse(std::string_view problem) const;

 private:
  RtfToken NextText();
  RtfToken NextEscape();
  RtfToken NextWord();
  RtfToken NextByte();
  std::optional<int> TakeNumber();

  std::string_view document_;
  std::size_t at_ = 0;
};

}  // namespace brimwork
