#include "export/keyword_list.h"

#include <utility>

#include "environment/text.h"

namespace brimwork {
namespace {

std::string UpperCaseAscii(std::string_view text) {
  std::string upperCase(text);
  for (char& c : upperCase) c = ToUpperAscii(c);
  return upperCase;
}

std::string LowerCaseAscii(std::string_view text) {
  std::string lowerCase(text);
  for (char& c : lowerCase) {
    if (c >= 'A' && c <= 'Z') c = static_cast<char>(c - 'A' + 'a');
  }
  return lowerCase;
}

int PositionIn(std::string_view text, std::string_view word, int nowhere) {
  const auto found = text.find(word);
  return found == std::string_view::npos ? nowhere : static_cast<int>(found);
}

}  // namespace

void KeywordList::Pairs::Add(std::string_view left, std::string_view right) {
  for (const char c : right) single_.set(Byte(c));
  for (std::size_t i = 1; i < right.size(); ++i) pairs_.set(Index(left[i - 1], right[i]));
}

KeywordList::KeywordList(std::string text)
    : text_(std::move(text)),
      upperCase_(UpperCaseAscii(text_)),
      pairs_({text_}),
      pairsOfAnyCase_({upperCase_, LowerCaseAscii(text_)}) {}

int KeywordList::PositionOf(std::string_view word, std::size_t readable) {
  return exact_.Of(word, readable,
                   [&](std::string_view sought) { return PositionIn(text_, sought, kNowhere); });
}

int KeywordList::SearchIgnoringCase(std::string_view word) const {
  if (!word.empty() && !pairsOfAnyCase_.MayHold(word)) return kNowhere;
  return PositionIn(upperCase_, UpperCaseAscii(word), kNowhere);
}

}  // namespace brimwork
