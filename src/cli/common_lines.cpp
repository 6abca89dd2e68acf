#include "cli/common_lines.h"

#include <algorithm>
#include <cstddef>
#include <string_view>
#include <unordered_map>

// The header's own code does not keep to this project's warnings.
#pragma GCC diagnostic push
#pragma GCC diagnostic ignored "-Wconversion"
#pragma GCC diagnostic ignored "-Wshadow"
#pragma GCC diagnostic ignored "-Wextra"
#include <dtl/dtl.hpp>
#pragma GCC diagnostic pop

namespace brimwork {
namespace {

/// A line as it is compared: one that the file does not end differs from its like in the middle.
struct LineKey {
  std::string_view text;
  bool isUnended = false;

  bool operator==(const LineKey&) const = default;
};

struct LineKeyHash {
  std::size_t operator()(const LineKey& key) const {
    return std::hash<std::string_view>()(key.text) + (key.isUnended ? 1 : 0);
  }
};

template <class Value>
using LineMap = std::unordered_map<LineKey, Value, LineKeyHash>;

LineKey KeyOf(const FileLines& file, int line) {
  return {file.lines.Line(line), file.IsUnended(line)};
}

/// Lines of one side that stand on the other side too, as small numbers: equal lines, equal ones.
struct SharedLines {
  std::vector<int> ids;
  std::vector<int> lines;
};

/// A line that stands on one side only is in no common subsequence, and leaving such lines out
/// makes the comparison of pieces that changed throughout cheap.
SharedLines SharedWith(const LineMap<int>& others, const FileLines& file, int first, int count) {
  SharedLines shared;
  for (int line = first; line < first + count; ++line) {
    const auto found = others.find(KeyOf(file, line));
    if (found == others.end()) continue;
    shared.ids.push_back(found->second);
    shared.lines.push_back(line);
  }
  return shared;
}

LineMap<int> NumberLines(const FileLines& file, int first, int count) {
  LineMap<int> ids;
  for (int line = first; line < first + count; ++line) {
    ids.try_emplace(KeyOf(file, line), static_cast<int>(ids.size()));
  }
  return ids;
}

struct Occurrences {
  int before = 0;  // the line
  int after = 0;
  int beforeTimes = 0;
  int afterTimes = 0;
};

std::vector<DiffAnchor> LinesUniqueOnBothSides(const FileLines& before, const FileLines& after,
                                               const DiffPiece& piece) {
  LineMap<Occurrences> occurrences;
  for (int line = piece.before; line < piece.before + piece.beforeCount; ++line) {
    Occurrences& at = occurrences[KeyOf(before, line)];
    at.before = line;
    ++at.beforeTimes;
  }
  for (int line = piece.after; line < piece.after + piece.afterCount; ++line) {
    const auto found = occurrences.find(KeyOf(after, line));
    if (found == occurrences.end()) continue;
    found->second.after = line;
    ++found->second.afterTimes;
  }
  std::vector<DiffAnchor> unique;
  for (const auto& [key, at] : occurrences) {
    if (at.beforeTimes == 1 && at.afterTimes == 1) unique.push_back({at.before, at.after});
  }
  std::sort(unique.begin(), unique.end(),
            [](const DiffAnchor& a, const DiffAnchor& b) { return a.before < b.before; });
  return unique;
}

/// The most pairs whose lines ascend on the after side too; pairs ascend on the before side.
std::vector<DiffAnchor> LongestAscending(const std::vector<DiffAnchor>& pairs) {
  constexpr std::size_t kNone = static_cast<std::size_t>(-1);
  std::vector<std::size_t> tails;  // the pair with the lowest line that ends a run of each length
  std::vector<std::size_t> previous(pairs.size(), kNone);
  for (std::size_t i = 0; i < pairs.size(); ++i) {
    const auto place =
        std::lower_bound(tails.begin(), tails.end(), pairs[i].after,
                         [&](std::size_t tail, int line) { return pairs[tail].after < line; });
    if (place != tails.begin()) previous[i] = *std::prev(place);
    if (place == tails.end()) {
      tails.push_back(i);
    } else {
      *place = i;
    }
  }
  std::vector<DiffAnchor> ascending;
  for (std::size_t at = tails.empty() ? kNone : tails.back(); at != kNone; at = previous[at]) {
    ascending.push_back(pairs[at]);
  }
  std::reverse(ascending.begin(), ascending.end());
  return ascending;
}

}  // namespace

bool SameLine(const FileLines& before, int beforeLine, const FileLines& after, int afterLine) {
  return KeyOf(before, beforeLine) == KeyOf(after, afterLine);
}

std::vector<DiffAnchor> CommonLines(const FileLines& before, const FileLines& after,
                                    const DiffPiece& piece) {
  const auto idsBefore = NumberLines(before, piece.before, piece.beforeCount);
  const auto fromAfter = SharedWith(idsBefore, after, piece.after, piece.afterCount);
  if (fromAfter.ids.empty()) return {};
  LineMap<int> idsShared;
  for (std::size_t i = 0; i < fromAfter.ids.size(); ++i) {
    idsShared.try_emplace(KeyOf(after, fromAfter.lines[i]), fromAfter.ids[i]);
  }
  const auto fromBefore = SharedWith(idsShared, before, piece.before, piece.beforeCount);

  dtl::Diff<int> diff(fromBefore.ids, fromAfter.ids);
  diff.compose();
  std::vector<DiffAnchor> common;
  for (const auto& [id, info] : diff.getSes().getSequence()) {
    if (info.type != dtl::SES_COMMON) continue;
    common.push_back({fromBefore.lines[static_cast<std::size_t>(info.beforeIdx - 1)],
                      fromAfter.lines[static_cast<std::size_t>(info.afterIdx - 1)]});
  }
  return common;
}

std::vector<DiffAnchor> UniqueCommonLines(const FileLines& before, const FileLines& after,
                                          const DiffPiece& piece) {
  return LongestAscending(LinesUniqueOnBothSides(before, after, piece));
}

}  // namespace brimwork
