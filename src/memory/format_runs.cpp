#include "memory/format_runs.h"

#include <algorithm>
#include <limits>

#include "environment/run_time_error.h"

namespace brimwork {
namespace {

std::ptrdiff_t Signed(std::size_t index) { return static_cast<std::ptrdiff_t>(index); }

}  // namespace

FormatRuns::FormatRuns() { FontIndex(kDefaultFontName); }

// Most questions are about the end of what is formatted so far, so the search gallops back from
// there.
std::size_t FormatRuns::SearchIndex(std::size_t byte) const {
  std::size_t reach = 1;
  while (reach < runs_.size() && runs_[runs_.size() - reach].start > byte) reach *= 2;
  const auto from = runs_.end() - Signed(std::min(reach, runs_.size()));
  const auto next = std::upper_bound(
      from, runs_.end(), byte, [](std::size_t at, const FormatRun& run) { return at < run.start; });
  return static_cast<std::size_t>(next - runs_.begin()) - 1;
}

TextFormat FormatRuns::Unpacked(const PackedFormat& format) const {
  TextFormat unpacked{FontName(format.font), format.halfPoints, {}};
  if (format.color != PackedFormat::kAutomatic) unpacked.color = format.color;
  return unpacked;
}

std::uint16_t FormatRuns::FontIndex(std::string_view name) {
  const auto known = fontIndexes_.find(name);
  if (known != fontIndexes_.end()) return known->second;
  if (fonts_.size() > std::numeric_limits<std::uint16_t>::max()) {
    throw RunTimeError(error_number::kOverflow, "a text can have 65536 fonts at most");
  }
  const auto index = static_cast<std::uint16_t>(fonts_.size());
  fonts_.emplace_back(name);
  fontIndexes_.emplace(name, index);
  return index;
}

void FormatRuns::Continue(std::size_t byte, const PackedFormat& format) {
  if (runs_.back().format == format) return;
  if (runs_.back().start != byte) {
    runs_.push_back({static_cast<std::uint32_t>(byte), format});
    return;
  }
  runs_.back().format = format;
  Merge(runs_.size() - 1, runs_.size());
}

void FormatRuns::Replace(ByteRange range, std::size_t newSize, std::size_t textSize) {
  if (range.Size() == 0) {
    Insert(range.start, newSize);
  } else {
    Erase(range, newSize, textSize);
  }
}

void FormatRuns::Cut(std::size_t textSize) {
  while (runs_.size() > 1 && runs_.back().start >= textSize) runs_.pop_back();
}

FormatRuns FormatRuns::Emptied() const {
  FormatRuns emptied;
  emptied.runs_ = {{0, runs_.front().format}};
  emptied.fonts_ = fonts_;
  emptied.fontIndexes_ = fontIndexes_;
  return emptied;
}

bool FormatRuns::operator==(const FormatRuns& other) const {
  return std::equal(runs_.begin(), runs_.end(), other.runs_.begin(), other.runs_.end(),
                    [&](const FormatRun& mine, const FormatRun& theirs) {
                      return mine.start == theirs.start &&
                             Unpacked(mine.format) == other.Unpacked(theirs.format);
                    });
}

/// Lets a run start at the byte; returns its index.
std::size_t FormatRuns::Split(std::size_t byte) {
  const std::size_t index = IndexAt(byte);
  if (runs_[index].start == byte) return index;
  runs_.insert(runs_.begin() + Signed(index + 1),
               {static_cast<std::uint32_t>(byte), runs_[index].format});
  return index + 1;
}

/// Index of the first run behind a range, which is made to start where the range ends.
std::size_t FormatRuns::SplitEnd(std::size_t end, std::size_t textSize) {
  return end < textSize ? Split(end) : runs_.size();
}

void FormatRuns::Insert(std::size_t byte, std::size_t size) {
  const std::size_t extended = byte == 0 ? 0 : IndexAt(byte - 1);
  Shift(extended + 1, size);
}

void FormatRuns::Erase(ByteRange range, std::size_t newSize, std::size_t textSize) {
  const std::size_t behind = SplitEnd(range.end, textSize);
  const std::size_t first = IndexAt(range.start);
  const bool isAllText = range.start == 0 && behind == runs_.size();
  const bool staysInUse = newSize > 0 || runs_[first].start < range.start || isAllText;
  const std::size_t kept = staysInUse ? first + 1 : first;
  runs_.erase(runs_.begin() + Signed(kept), runs_.begin() + Signed(behind));
  Shift(kept, newSize - range.Size());
  Merge(kept, kept + 1);
}

/// Moves the runs from index on. A growth below 0 has wrapped around, and so do the sums.
void FormatRuns::Shift(std::size_t index, std::size_t growth) {
  if (growth == 0) return;
  for (std::size_t i = index; i < runs_.size(); ++i) {
    runs_[i].start = static_cast<std::uint32_t>(runs_[i].start + growth);
  }
}

/// Drops each of the runs from first to last, that one included, that goes on as the one before.
void FormatRuns::Merge(std::size_t first, std::size_t last) {
  const auto begin = runs_.begin() + Signed(first == 0 ? 0 : first - 1);
  const auto end = runs_.begin() + Signed(std::min(last + 1, runs_.size()));
  const auto sameFormat = [](const FormatRun& a, const FormatRun& b) {
    return a.format == b.format;
  };
  runs_.erase(std::unique(begin, end, sameFormat), end);
}

}  // namespace brimwork
