// One hunspell dictionary.
#pragma once

#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "spelling/dictionary_files.h"

namespace brimwork {

/// Words go in and come out as UTF-8, whatever the dictionary's own encoding. One object is used by
/// one thread at a time.
class Dictionary {
 public:
  /// Throws DictionaryError when a file cannot be read or is in an encoding that nobody knows.
  explicit Dictionary(const DictionaryFiles& files);
  Dictionary(Dictionary&&) noexcept;
  Dictionary& operator=(Dictionary&&) noexcept;
  ~Dictionary();

  /// A capital first letter and other forms that the language has are known as well.
  bool Knows(std::string_view word);

  /// Words that may have been meant, the likeliest first. Takes long: up to tenths of a second.
  std::vector<std::string> Suggestions(std::string_view word);

 private:
  class Library;
  std::unique_ptr<Library> library_;
};

}  // namespace brimwork
