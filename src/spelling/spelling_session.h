// The words that one run of the tool takes for right and for wrong, and what the user has decided
// about them so far.
#pragma once

#include <cstddef>
#include <filesystem>
#include <map>
#include <optional>
#include <string>
#include <string_view>
#include <unordered_map>
#include <vector>

#include "spelling/dictionary.h"
#include "spelling/known_words.h"
#include "spelling/words.h"

namespace brimwork {

/// A word of a text that is misspelled, or that has a replacement.
struct Misspelling {
  std::size_t offset = 0;  // in bytes
  std::size_t size = 0;
  std::string word;                        // as it is looked up, without access key
  std::optional<std::string> replacement;  // decided on already, in the word's own form

  bool operator==(const Misspelling&) const = default;
};

class SpellingSession {
 public:
  /// A word is right when one of the dictionaries or the user's own words have it. Without
  /// dictionaries every word is right but those with a replacement.
  explicit SpellingSession(std::vector<Dictionary> dictionaries = {},
                           std::filesystem::path userWords = {});

  /// What is wrong in text, from the left.
  std::vector<Misspelling> Misspellings(std::string_view text);

  /// What a misspelled word may have meant, the likeliest first; looked up once for each word.
  const std::vector<std::string>& Suggestions(const std::string& word);

  /// Takes the word for right from now on.
  void IgnoreAll(std::string_view word);

  /// From now on the word, in exactly these letters, has a replacement.
  void ReplaceAll(std::string_view word, const std::string& replacement);

  /// Takes the word for right and writes it into the file of the user's words. Throws
  /// UserWordsError; the word is right for this run all the same.
  void AddToUserWords(const std::string& word);

 private:
  using Misspelled = std::vector<Misspelling>;

  void FindIn(std::string_view text, const TextWord& word, Misspelled& found);
  void FindInParts(std::string_view text, const TextWord& compound, Misspelled& found);
  bool IsRight(std::string_view written);
  bool Knows(const std::string& word);
  bool LookUp(const std::string& word);

  std::vector<Dictionary> dictionaries_;
  std::filesystem::path userWords_;
  KnownWords known_;
  std::map<std::string, std::string, std::less<>> replacements_;
  std::unordered_map<std::string, bool> lookedUp_;
  std::unordered_map<std::string, std::vector<std::string>> suggestions_;
};

}  // namespace brimwork
