#include "bench/automation/module_search.h"

#include <algorithm>
#include <optional>
#include <string>
#include <vector>

#include "bench/automation/text_pattern.h"
#include "environment/run_time_error.h"

namespace brimwork::bench {
namespace {

/// Characters of one line, from start to end (counted from 0).
struct Stretch {
  std::size_t start;
  std::size_t end;
};

/// What a target can be compared with: one line's characters.
using Characters = std::u32string;

bool IsPartOfWord(char32_t character) {
  return character == U'_' || character > 127 || (character >= U'0' && character <= U'9') ||
         (character >= U'a' && character <= U'z') || (character >= U'A' && character <= U'Z');
}

bool IsWholeWord(const Characters& line, const Stretch& match) {
  const bool startsOne = match.start == 0 || !IsPartOfWord(line[match.start - 1]);
  const bool endsOne = match.end >= line.size() || !IsPartOfWord(line[match.end]);
  return startsOne && endsOne;
}

class Searcher {
 public:
  Searcher(std::string_view target, const SearchOptions& options)
      : options_(options), target_(Prepared(CharactersOf(target))) {
    if (options.pattern) pattern_.emplace(CharactersOf(target));
  }

  /// The first match within a stretch of the line.
  std::optional<Stretch> FirstIn(std::string_view text, const Stretch& within) const {
    const Characters line = Prepared(CharactersOf(text));
    const std::size_t end = std::min(within.end, line.size());
    for (std::size_t start = within.start; start <= end; ++start) {
      const auto size = SizeOfMatch(line, start, end);
      if (!size) continue;
      const Stretch match{start, start + *size};
      if (!options_.wholeWord || IsWholeWord(line, match)) return match;
    }
    return std::nullopt;
  }

 private:
  Characters Prepared(Characters text) const {
    if (!options_.matchCase) FoldCase(text);
    return text;
  }

  std::optional<std::size_t> SizeOfMatch(const Characters& line, std::size_t start,
                                         std::size_t end) const {
    if (pattern_) return pattern_->MatchAt(line, start, end);
    if (end - start < target_.size()) return std::nullopt;
    if (line.compare(start, target_.size(), target_) != 0) return std::nullopt;
    return target_.size();
  }

  SearchOptions options_;
  Characters target_;
  std::optional<TextPattern> pattern_;
};

/// The columns of range that lie on a line, as a stretch.
Stretch ColumnsOn(int line, const Selection& range, int lastLine) {
  constexpr auto kWholeLine = static_cast<std::size_t>(-1);
  const bool endsHere = line == lastLine && range.endLine != -1 && range.endColumn != -1;
  return {
      line == range.startLine ? static_cast<std::size_t>(std::max(range.startColumn, 1) - 1) : 0,
      endsHere ? static_cast<std::size_t>(std::max(range.endColumn, 1) - 1) : kWholeLine};
}

}  // namespace

bool FindInModule(CodeModule& module, std::string_view target, const SearchOptions& options,
                  Selection& range) {
  if (options.matchCase && options.pattern) {
    throw RunTimeError(error_number::kInvalidProcedureCall, "Invalid procedure call or argument");
  }
  if (range.startLine < 1) {
    throw RunTimeError(error_number::kSubscriptOutOfRange, "Subscript out of range");
  }
  if (target.empty()) return false;
  const Searcher searcher(target, options);
  const int count = module.CountOfLines();
  const int lastLine = range.endLine == -1 ? count : std::min(range.endLine, count);
  for (int line = range.startLine; line <= lastLine; ++line) {
    const auto match = searcher.FirstIn(module.Lines(line, 1), ColumnsOn(line, range, lastLine));
    if (!match) continue;
    range = {line, static_cast<int>(match->start + 1), line, static_cast<int>(match->end + 1)};
    return true;
  }
  return false;
}

}  // namespace brimwork::bench
