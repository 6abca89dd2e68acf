// Words that count as right beside those of the dictionaries.
#pragma once

#include <string>
#include <string_view>
#include <unordered_set>

namespace brimwork {

class KnownWords {
 public:
  void Add(std::string_view word) { words_.emplace(word); }

  /// The word as it was added, with a capital at the start of a sentence, and with a possessive 's.
  bool Holds(std::string_view word) const;

 private:
  bool HoldsAnyCase(std::string_view word) const;

  std::unordered_set<std::string> words_;
};

}  // namespace brimwork
