// Takes what a user did in an editor over into the module that it shows.
#pragma once

#include <string_view>

#include "memory/memory_code_module.h"

namespace brimwork::bench {

/// Which lines became others: removed of the module's lines from first on gave way to inserted
/// ones. Both are 0 when nothing changed.
struct LineChange {
  int first = 1;
  int removed = 0;
  int inserted = 0;

  bool operator==(const LineChange&) const = default;
};

/// Makes the module's text the editor's, whose lines end in CR LF but for the last. Only the
/// smallest run of lines that differ is edited, so that every other line keeps its line end and
/// the hidden lines behind it.
LineChange TakeOverText(MemoryCodeModule& module, std::string_view editorText);

}  // namespace brimwork::bench
