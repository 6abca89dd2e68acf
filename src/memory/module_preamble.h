// What opens a source file and is no part of its module: the VERSION line, Object lines, the
// Begin ... End blocks that lay out a form, and the module's attributes behind them.
#pragma once

#include <string>
#include <string_view>

namespace brimwork {

struct ModulePreamble {
  std::size_t size = 0;  // bytes of the text, a byte-order mark included
  int lines = 0;
  std::string moduleName;  // "" when no attribute gives one
};

/// Reads the preamble at the start of a file's decoded text. path is for messages only. Throws
/// SourceError when a Begin block is not closed.
ModulePreamble ReadPreamble(std::string_view text, const std::string& path);

}  // namespace brimwork
