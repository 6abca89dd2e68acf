#include "bench/screen/edit_history.h"

#include <algorithm>
#include <utility>

namespace brimwork::bench {
namespace {

/// True where text falls apart into a half pair, or a line end into its two halves.
bool IsInside(std::wstring_view text, std::size_t at) {
  if (at == 0 || at >= text.size()) return false;
  const bool isPair = text[at] >= 0xDC00 && text[at] <= 0xDFFF;
  return isPair || (text[at] == L'\n' && text[at - 1] == L'\r');
}

std::size_t CommonStart(std::wstring_view before, std::wstring_view after) {
  const auto length = std::min(before.size(), after.size());
  const auto differs = std::mismatch(before.begin(), before.begin() + length, after.begin());
  auto start = static_cast<std::size_t>(differs.first - before.begin());
  while (IsInside(before, start) || IsInside(after, start)) --start;
  return start;
}

std::size_t CommonEnd(std::wstring_view before, std::wstring_view after, std::size_t start) {
  const auto length = std::min(before.size(), after.size()) - start;
  const auto differs = std::mismatch(before.rbegin(), before.rbegin() + length, after.rbegin());
  auto end = static_cast<std::size_t>(differs.first - before.rbegin());
  while (end > 0 &&
         (IsInside(before, before.size() - end) || IsInside(after, after.size() - end))) {
    --end;
  }
  return end;
}

bool IsBlank(wchar_t unit) { return unit == L' ' || unit == L'\t'; }

}  // namespace

TextChange ChangeBetween(std::wstring_view before, std::wstring_view after) {
  const std::size_t start = CommonStart(before, after);
  const std::size_t end = CommonEnd(before, after, start);
  return {start, std::wstring(before.substr(start, before.size() - end - start)),
          std::wstring(after.substr(start, after.size() - end - start))};
}

void UndoHistory::Note(TextChange change) {
  if (change.IsNone()) return;
  undone_.clear();
  if (Continues(change)) {
    done_.back().inserted += change.inserted;
  } else {
    done_.push_back(std::move(change));
  }
}

std::optional<TextChange> UndoHistory::Undo() {
  if (done_.empty()) return std::nullopt;
  undone_.push_back(std::move(done_.back()));
  done_.pop_back();
  return undone_.back().Reversed();
}

std::optional<TextChange> UndoHistory::Redo() {
  if (undone_.empty()) return std::nullopt;
  done_.push_back(std::move(undone_.back()));
  undone_.pop_back();
  return done_.back();
}

bool UndoHistory::Continues(const TextChange& change) const {
  if (done_.empty() || !change.removed.empty() || change.inserted.size() != 1) return false;
  const TextChange& latest = done_.back();
  if (latest.inserted.empty() || latest.start + latest.inserted.size() != change.start)
    return false;
  const bool startsWord = IsBlank(latest.inserted.back()) && !IsBlank(change.inserted.front());
  return !startsWord && latest.inserted.find(L'\n') == std::wstring::npos;
}

}  // namespace brimwork::bench
