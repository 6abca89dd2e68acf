#include "spelling/access_key.h"

#include "environment/text.h"
#include "environment/utf8.h"
#include "spelling/apostrophes.h"

namespace brimwork {
namespace {

constexpr char kMark = '&';

/// The letter behind the mark of word, "" when there is none.
std::string_view KeyOf(std::string_view word) {
  const auto mark = word.find(kMark);
  if (mark == std::string_view::npos) return {};
  const std::string_view behind = word.substr(mark + 1);
  return behind.substr(0, Utf8Size(behind));
}

std::string WithKey(std::string_view key, std::string replacement) {
  const auto letter = FoldName(replacement).find(FoldName(key));
  // Folding may change the size of letters other than those of ASCII; then the first one is taken.
  const bool isThere = letter < replacement.size() &&
                       EqualNames(std::string_view(replacement).substr(letter, key.size()), key);
  return replacement.insert(isThere ? letter : 0, 1, kMark);
}

}  // namespace

std::string LookedUpForm(std::string_view word) {
  return Replace(Replace(word, std::string_view(&kMark, 1), ""), kTypographicApostrophe,
                 kPlainApostrophe);
}

std::string InFormOf(std::string_view word, std::string_view replacement) {
  std::string formed(replacement);
  if (Contains(word, kTypographicApostrophe)) {
    formed = Replace(formed, kPlainApostrophe, kTypographicApostrophe);
  }
  const std::string_view key = KeyOf(word);
  const bool hasOwnKey = Contains(formed, std::string_view(&kMark, 1));
  return key.empty() || hasOwnKey ? formed : WithKey(key, formed);
}

}  // namespace brimwork
