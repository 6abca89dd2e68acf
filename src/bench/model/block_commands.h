// The commands on the lines of a selection. A line on which a selection of whole lines ends, in
// column 1, is none of them; without a selection it is the caret's line. The selection stays over
// the same lines.
#pragma once

#include "memory/memory_code_pane.h"

namespace brimwork::bench {

/// Puts an apostrophe in front of each line.
void CommentBlock(MemoryCodePane& pane);

/// Takes the apostrophe that opens a line, behind blanks at most, away.
void UncommentBlock(MemoryCodePane& pane);

/// Moves each line that holds anything four columns to the right.
void IndentBlock(MemoryCodePane& pane);

/// Takes up to four blanks, or a tab, away from the start of each line.
void OutdentBlock(MemoryCodePane& pane);

}  // namespace brimwork::bench
