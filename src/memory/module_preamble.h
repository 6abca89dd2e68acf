// What opens a source file and is no part of its module: the VERSION line, Object lines, the
// Begin ... End blocks that lay out a form, and the module's attributes behind them.
#pragma once

#include <string>
#include <string_view>

namespace brimwork {

struct TextSpan {
  std::size_t offset = 0;
  std::size_t size = 0;
};

struct ModulePreamble {
  std::size_t size = 0;  // bytes of the text, a byte-order mark included
  int lines = 0;
  std::string moduleName;   // "" when no attribute gives one
  std::string objectClass;  // what the first Begin lays out ("VB.Form"), "" where nothing is

  // Where the text names the module; of size 0 where it does not.
  TextSpan nameInAttribute;
  TextSpan nameInLayout;  // the name that the first Begin gives its object
};

/// Reads the preamble at the start of a file's decoded text. path is for messages only. Throws
/// SourceError when a Begin block is not closed.
ModulePreamble ReadPreamble(std::string_view text, const std::string& path);

/// The preamble that text starts with, preamble.size bytes of it, with another name for the module:
/// in its attribute, which is added where there is none, and on the line that begins its layout.
std::string WithModuleName(std::string_view text, const ModulePreamble& preamble,
                           std::string_view name);

}  // namespace brimwork
