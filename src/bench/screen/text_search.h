// Finding a text in a longer one, as the Find dialog does.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>

namespace brimwork::bench {

struct SearchQuery {
  std::wstring wanted;
  bool matchesCase = false;
  bool isWholeWord = false;
};

/// Where it is found next at or behind from, from the start on when it is not there; nothing when
/// the text does not hold it.
std::optional<std::size_t> FindNext(std::wstring_view text, const SearchQuery& query,
                                    std::size_t from);

}  // namespace brimwork::bench
