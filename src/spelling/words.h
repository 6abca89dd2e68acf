// Cuts a text for people into the words that can be looked up in a dictionary.
#pragma once

#include <cstddef>
#include <string_view>
#include <vector>

namespace brimwork {

/// A word in a text, with the apostrophes, hyphens and access keys ("E&xit") inside it.
struct TextWord {
  std::size_t offset = 0;   // in bytes
  std::size_t size = 0;     // in bytes
  bool isProse = true;      // worth looking up: no name of a variable, abbreviation or number
  bool isCompound = false;  // holds hyphens

  bool operator==(const TextWord&) const = default;
};

/// The words of a text from the left. Addresses, paths, names of files and members, format codes
/// and the like are none.
std::vector<TextWord> CutWords(std::string_view text);

/// The parts of a compound word between its hyphens, their offsets in text.
std::vector<TextWord> PartsOf(std::string_view text, const TextWord& compound);

}  // namespace brimwork
