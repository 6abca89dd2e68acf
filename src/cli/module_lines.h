// A module's lines before and behind a command, as the checks and the diff read them.
#pragma once

#include <string_view>
#include <vector>

#include "cli/code_lines.h"
#include "memory/module_text.h"
#include "memory/source_file.h"

namespace brimwork {

/// The lines of a module as the file had them; file outlives it.
class LinesAsRead : public CodeLines {
 public:
  explicit LinesAsRead(const SourceFile& file) {
    lines_.reserve(static_cast<std::size_t>(file.FileLines()));
    for (OriginalLines lines = file.LinesAsRead(); lines.Next();) lines_.push_back(lines.Line());
  }

  int Count() const override { return static_cast<int>(lines_.size()); }
  std::string_view Line(int number) const override {
    return lines_[static_cast<std::size_t>(number - 1)];
  }

 private:
  std::vector<std::string_view> lines_;
};

/// The lines of a module as they are now; text outlives it and is not edited meanwhile.
class LinesNow : public CodeLines {
 public:
  explicit LinesNow(const ModuleText& text) : text_(text) {}

  int Count() const override { return text_.Count(); }
  std::string_view Line(int number) const override { return text_.Line(number); }

 private:
  const ModuleText& text_;
};

}  // namespace brimwork
