// One change of a text that a control shows, in the control's own units, and the changes that can
// be taken back.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brimwork::bench {

/// In UTF-16 units.
struct TextChange {
  std::size_t start = 0;
  std::wstring removed;
  std::wstring inserted;

  bool operator==(const TextChange&) const = default;
  bool IsNone() const { return removed.empty() && inserted.empty(); }
  TextChange Reversed() const { return {start, inserted, removed}; }
};

/// The smallest single change that makes after of before; line ends and pairs are not cut in two.
TextChange ChangeBetween(std::wstring_view before, std::wstring_view after);

/// All changes of a text, the latest last. Letters typed behind each other count as one, up to the
/// end of a word.
class UndoHistory {
 public:
  void Note(TextChange change);

  /// The change that takes the latest one back, or makes it again; nothing when there is none.
  std::optional<TextChange> Undo();
  std::optional<TextChange> Redo();

  bool CanUndo() const { return !done_.empty(); }
  bool CanRedo() const { return !undone_.empty(); }

 private:
  bool Continues(const TextChange& change) const;

  std::vector<TextChange> done_;
  std::vector<TextChange> undone_;
};

}  // namespace brimwork::bench
