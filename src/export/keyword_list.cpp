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

int PositionIn(std::string_view text, std::string_view word, int nowhere) {
  const auto found = text.find(word);
  return found == std::string_view::npos ? nowhere : static_cast<int>(found);
}

}  // namespace

KeywordList::Pairs::Pairs(std::string_view text) {
  for (const char c : text) single_.set(Byte(c));
  for (std::size_t i = 1; i < text.size(); ++i) pairs_.set(Index(text[i - 1], text[i]));
}

KeywordList::KeywordList(std::string text)
    : text_(std::move(text)),
      upperCase_(UpperCaseAscii(text_)),
      pairs_(text_),
      upperCasePairs_(upperCase_) {}

int KeywordList::PositionOf(std::string_view word) {
  return exact_.Of(word,
                   [&](std::string_view sought) { return PositionIn(text_, sought, kNowhere); });
}

std::optional<std::string_view> KeywordList::KnownSpellingOf(std::string_view word) {
  const int position = ignoringCase_.Of(word, [&](std::string_view sought) {
    return PositionIn(upperCase_, UpperCaseAscii(sought), kNowhere);
  });
  if (position == kNowhere) return std::nullopt;
  return std::string_view(text_).substr(static_cast<std::size_t>(position), word.size());
}

}  // namespace brimwork
