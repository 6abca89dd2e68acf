// Where the caret stood before a command, and putting it back on the same source line.
#pragma once

#include <optional>
#include <string>

#include "environment/vbe.h"

namespace brimwork {

struct SavedSelection {
  Selection selection;
  std::string lineText;  // of the selection's start line
};

/// The pane's selection; nothing without a pane.
std::optional<SavedSelection> SaveSelection(CodePane* pane);

/// Puts the caret on the line with the saved text: of several equal lines the one nearest to the
/// old line, the upper one in a tie; else, in the same way, on a line that contains the text (a
/// command may have indented it); else on the old line number. Raises what the environment raises.
void PutCaretBack(CodePane& pane, const SavedSelection& saved);

}  // namespace brimwork
