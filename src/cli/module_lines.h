// A module's lines before and behind a command, as the checks and the diff read them.
#pragma once

#include <string_view>
#include <vector>

#include "cli/code_lines.h"
#include "memory/module_text.h"
#include "memory/source_file.h"

namespace brimwork {

/// The lines of a module as the file had them; file outlives it. They are found again by walking
/// the file: the next line is one step away, any other at most a stretch of steps.
class LinesAsRead : public CodeLines {
 public:
  explicit LinesAsRead(const SourceFile& file)
      : count_(file.LineCount()), walk_(file.LinesAsRead()) {
    starts_.push_back(walk_);
  }

  int Count() const override { return count_; }
  std::string_view Line(int number) const override {
    if (number < reached_) {
      const int stretch = (number - 1) / kStretch;
      walk_ = starts_[static_cast<std::size_t>(stretch)];
      reached_ = stretch * kStretch;
    }
    while (reached_ < number) Step();
    return walk_.Line();
  }

 private:
  static constexpr int kStretch = 64;

  void Step() const {
    walk_.Next();
    ++reached_;
    const bool isStretch = reached_ % kStretch == 0;
    if (isStretch && static_cast<int>(starts_.size()) == reached_ / kStretch) {
      starts_.push_back(walk_);
    }
  }

  int count_;
  // Where the walk stands moves with each question; the lines themselves never change.
  mutable OriginalLines walk_;
  mutable int reached_ = 0;
  mutable std::vector<OriginalLines> starts_;  // the walk behind every so many lines
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
