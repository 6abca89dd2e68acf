// Which characters make up words, for scripts that part their words with blanks.
#pragma once

namespace brimwork {

/// Letters and the marks that stand on them. Scripts without blanks between words (Han, Kana, Thai
/// and their neighbours) have no words to be cut, so their characters are no letters here.
bool IsLetter(char32_t character);

/// Capital letters of the Latin, Greek and Cyrillic alphabets.
bool IsCapital(char32_t character);

}  // namespace brimwork
