#include "bench/screen/text_search.h"

#include <windows.h>

namespace brimwork::bench {
namespace {

std::wstring InLowerCase(std::wstring_view text) {
  std::wstring lower(text);
  CharLowerBuffW(lower.data(), static_cast<DWORD>(lower.size()));
  return lower;
}

bool IsOfWord(wchar_t unit) { return unit == L'_' || IsCharAlphaNumericW(unit) != 0; }

bool IsWholeWord(std::wstring_view text, std::size_t start, std::size_t size) {
  const bool isOpenBefore = start > 0 && IsOfWord(text[start - 1]);
  const bool isOpenBehind = start + size < text.size() && IsOfWord(text[start + size]);
  return !isOpenBefore && !isOpenBehind;
}

/// Between first and last, where the match begins.
std::optional<std::size_t> FindBetween(std::wstring_view text, std::wstring_view wanted,
                                       bool isWholeWord, std::size_t first, std::size_t last) {
  for (auto at = text.find(wanted, first); at < last; at = text.find(wanted, at + 1)) {
    if (!isWholeWord || IsWholeWord(text, at, wanted.size())) return at;
  }
  return std::nullopt;
}

}  // namespace

std::optional<std::size_t> FindNext(std::wstring_view text, const SearchQuery& query,
                                    std::size_t from) {
  if (query.wanted.empty()) return std::nullopt;
  const std::wstring searched = query.matchesCase ? std::wstring(text) : InLowerCase(text);
  const std::wstring wanted = query.matchesCase ? query.wanted : InLowerCase(query.wanted);
  if (auto at = FindBetween(searched, wanted, query.isWholeWord, from, searched.size())) return at;
  return FindBetween(searched, wanted, query.isWholeWord, 0, from);
}

}  // namespace brimwork::bench
