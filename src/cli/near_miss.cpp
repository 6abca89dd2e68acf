#include "cli/near_miss.h"

#include <algorithm>
#include <numeric>
#include <utility>
#include <vector>

#include "environment/text.h"

namespace brimwork {
namespace {

/// Letters to change, add or drop to make one word of the other.
std::size_t EditDistance(std::string_view a, std::string_view b) {
  std::vector<std::size_t> row(b.size() + 1);
  std::iota(row.begin(), row.end(), std::size_t{0});
  for (std::size_t i = 1; i <= a.size(); ++i) {
    std::size_t diagonal = std::exchange(row[0], i);
    for (std::size_t j = 1; j <= b.size(); ++j) {
      const bool same = ToUpperAscii(a[i - 1]) == ToUpperAscii(b[j - 1]);
      const std::size_t best = std::min({row[j] + 1, row[j - 1] + 1, diagonal + (same ? 0 : 1)});
      diagonal = std::exchange(row[j], best);
    }
  }
  return row.back();
}

}  // namespace

std::string NearMissHint(std::string_view word, std::span<const std::string_view> known) {
  const std::size_t tolerated = std::max<std::size_t>(2, word.size() / 3);
  std::string_view nearest;
  std::size_t least = tolerated + 1;
  for (const std::string_view candidate : known) {
    const std::size_t distance = EditDistance(word, candidate);
    if (distance < least) {
      least = distance;
      nearest = candidate;
    }
  }
  if (nearest.empty()) return {};
  return ", did you mean \"" + std::string(nearest) + "\"?";
}

}  // namespace brimwork
