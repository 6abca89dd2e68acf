#include "spelling/known_words.h"

#include "environment/text.h"
#include "environment/utf8.h"

namespace brimwork {
namespace {

std::string WithoutCapital(std::string_view word) {
  const std::size_t first = Utf8Size(word);
  return FoldName(word.substr(0, first)) + std::string(word.substr(first));
}

}  // namespace

bool KnownWords::Holds(std::string_view word) const {
  if (HoldsAnyCase(word)) return true;
  constexpr std::string_view kPossessive = "'s";
  return word.ends_with(kPossessive) &&
         HoldsAnyCase(word.substr(0, word.size() - kPossessive.size()));
}

bool KnownWords::HoldsAnyCase(std::string_view word) const {
  return words_.contains(std::string(word)) || words_.contains(WithoutCapital(word));
}

}  // namespace brimwork
