// The spell check of a module's string literals and comments, by way of a word processor.
#pragma once

#include <cstddef>
#include <string>
#include <string_view>
#include <vector>

#include "environment/word_processor.h"
#include "transform/context.h"

namespace brimwork {

/// A stretch of one line that is sent to the word processor.
struct SpellingPiece {
  std::size_t offset = 0;  // in bytes from the start of the line
  std::size_t size = 0;    // in bytes; nothing is sent of an empty piece
  int column = 1;          // of its first character, from 1
  bool isComment = false;  // reaches from the line's first apostrophe to its end

  bool operator==(const SpellingPiece&) const = default;
};

/// The pieces of a line in the order in which they are sent. A comment may hold pieces that come
/// before it. separator: a line that equals it is no comment to check.
std::vector<SpellingPiece> SpellingPieces(std::string_view line, std::string_view separator);

/// The text as the user leaves it in the word processor's spelling dialog, without the paragraph
/// mark that its document adds. word has an empty document open. The clipboard's text is lost.
/// Throws RunTimeError when the clipboard or the word processor fails.
std::string CheckSpellingInWord(Clipboard& clipboard, WordProcessor& word, std::string_view text);

/// Checks every piece of the active module and writes each corrected one into its line at once.
/// Every new line is built from the line as it was before the command, so of several corrected
/// pieces of one line the last one stays. Failures are told to the user. The clipboard's text is
/// kept.
void SpellCheckQuotesAndComments(Context& context);

}  // namespace brimwork
