// Looks for text in a code module as the object model's Find does.
#pragma once

#include <string_view>

#include "environment/code_module.h"

namespace brimwork::bench {

struct SearchOptions {
  bool wholeWord = false;
  bool matchCase = false;
  /// The text is a pattern: ? one character, * any, # a digit, [list] and [!list] one of or none of
  /// a list, which may hold ranges.
  bool pattern = false;
};

/// Looks through range, whose end line or end column of -1 is the end of the module or line. When
/// found, returns true and sets range to the match, which lies on one line. Raises error 5 for a
/// pattern that is to match case, and for one that is not closed; error 9 for a start line below 1.
bool FindInModule(CodeModule& module, std::string_view target, const SearchOptions& options,
                  Selection& range);

}  // namespace brimwork::bench
