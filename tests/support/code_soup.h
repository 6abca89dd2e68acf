// Short texts in which everything that an exporter looks for stands beside everything else.
#pragma once

#include <array>
#include <random>
#include <string>
#include <string_view>

namespace brimwork {

/// The keyword list that goes with the texts: its words, their letters and some separators occur
/// in them.
inline constexpr std::string_view kSoupWords = "If,Then,End Sub,x=1,&quot;,My_Word,\u00e4";

/// Up to 40 pieces; the same seed gives the same text everywhere.
inline std::string CodeSoup(unsigned seed) {
  constexpr std::array<std::string_view, 32> kPieces = {
      "\"", "\"", "\"", "'", "'",  " ", " ",    "  ",     "\r\n",   "\r\n", "\r\n",
      "\t", "If", "if", "n", "En", "d", "THEN", "Sub",    "x=1",    "loop", "my_word",
      "_",  "7",  "&",  "<", ">",  ",", "(",    "\u00e4", "\u20ac", "Rem "};
  std::mt19937 random(seed);
  std::string text;
  for (std::size_t left = random() % 40; left > 0; --left)
    text += kPieces[random() % kPieces.size()];
  return text;
}

}  // namespace brimwork
