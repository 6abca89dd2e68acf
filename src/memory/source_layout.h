// Which lines of a source file are the module and which the environment hides, and the numbering of
// both: file lines count everything, module lines count what the environment shows.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <string_view>
#include <vector>

#include "memory/module_preamble.h"
#include "memory/module_text.h"
#include "memory/raw_line.h"

namespace brimwork {

/// A hidden line behind the preamble.
struct HiddenAttribute {
  std::size_t offset;  // in the decoded text
  std::uint32_t size;
  LineEnd end;
  int behind;  // the module line that it hangs on; 0: it stands directly behind the preamble
};

struct SourceLayout {
  ModulePreamble preamble;
  std::vector<HiddenAttribute> hidden;  // named by their index in the module's text
  int moduleLines = 0;
  LineEnd commonerEnd = LineEnd::kCrLf;
  bool endsLastLine = true;  // also when the file is empty

  int FileLines() const { return preamble.lines + moduleLines + static_cast<int>(hidden.size()); }

  /// The file's line of a module line, which is there.
  int FileLineOf(int moduleLine) const;

  /// The module's line of a file line, which is there: for a hidden line the one it hangs on, 1 for
  /// what stands above line 1.
  int ModuleLineOf(int fileLine) const;
};

struct ParsedSource {
  SourceLayout layout;
  ModuleText text;
};

/// path is for messages only. Throws SourceError for a damaged preamble.
ParsedSource ReadLayout(std::shared_ptr<const std::string> text, const std::string& path);

/// Goes over the module's lines as they were read. The layout and the text outlive it.
class OriginalLines {
 public:
  OriginalLines(const SourceLayout& layout, std::string_view text);

  /// Steps to the next line; false behind the last one.
  bool Next();

  std::string_view Line() const { return line_; }
  int FileLine() const { return fileLine_; }

 private:
  std::string_view rest_;
  const char* textStart_;
  const HiddenAttribute* nextHidden_;
  const HiddenAttribute* hiddenEnd_;
  std::string_view line_;
  int fileLine_;
};

}  // namespace brimwork
