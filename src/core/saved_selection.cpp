#include "core/saved_selection.h"

#include <cstdlib>

#include "environment/basic_lines.h"

namespace brimwork {
namespace {

/// The candidate nearest to a line; the first one offered wins a tie.
class Nearest {
 public:
  explicit Nearest(int line) : line_(line) {}

  void Offer(int candidate) {
    if (!best_ || Distance(candidate) < Distance(*best_)) best_ = candidate;
  }
  bool IsOnTheLine() const { return best_ == line_; }
  bool IsNearerThan(int candidate) const {
    return best_ && Distance(*best_) <= Distance(candidate);
  }
  std::optional<int> Best() const { return best_; }

 private:
  int Distance(int candidate) const { return std::abs(candidate - line_); }

  int line_;
  std::optional<int> best_;
};

/// Blank lines are told apart by nothing but their place.
std::optional<int> NearestBlankLine(CodeModule& module, int oldLine) {
  const int count = module.CountOfLines();
  for (int distance = 0; distance < count; ++distance) {
    const int above = oldLine - distance;
    const int below = oldLine + distance;
    if (above >= 1 && above <= count && IsBlankLine(module.Lines(above, 1))) return above;
    if (below <= count && IsBlankLine(module.Lines(below, 1))) return below;
  }
  return std::nullopt;
}

std::optional<int> FindLineNow(CodeModule& module, const std::string& text, int oldLine) {
  if (IsBlankLine(text)) return NearestBlankLine(module, oldLine);
  Nearest equal(oldLine);
  Nearest containing(oldLine);
  Selection match{1, 1, -1, -1};
  while (module.Find(text, match)) {
    const int line = match.startLine;
    if (line > oldLine && equal.IsNearerThan(line)) break;
    containing.Offer(line);
    if (module.Lines(line, 1) == text) equal.Offer(line);
    if (equal.IsOnTheLine()) break;
    match = {line + 1, 1, -1, -1};
  }
  return equal.Best() ? equal.Best() : containing.Best();
}

}  // namespace

std::optional<SavedSelection> SaveSelection(CodePane* pane) {
  if (pane == nullptr) return std::nullopt;
  SavedSelection saved;
  saved.selection = pane->GetSelection();
  if (const auto module = pane->Module()) {
    saved.lineText = module->Lines(saved.selection.startLine, 1);
  }
  return saved;
}

void PutCaretBack(CodePane& pane, const SavedSelection& saved) {
  const Selection& old = saved.selection;
  int line = old.startLine;
  if (const auto module = pane.Module()) {
    line = FindLineNow(*module, saved.lineText, old.startLine).value_or(line);
  }
  const bool withinOneLine = old.startLine == old.endLine;
  pane.SetSelection({line, old.startColumn, line, withinOneLine ? old.endColumn : old.startColumn});
}

}  // namespace brimwork
