// Writes the lines of a generated module: the layout (tidy or messy), the old line numbers and the
// places where statements are broken are decided here, so that the code above says only what
// stands there.
#pragma once

#include <cstddef>
#include <random>
#include <span>
#include <string>
#include <string_view>
#include <utility>

#include "support/module_generator.h"

namespace brimwork::module_generator {

/// Marks the places in a text where it may be continued on the next line; a blank elsewhere.
inline constexpr char kBreak = '~';

class Writer {
 public:
  explicit Writer(const GeneratorOptions& options);

  // Chance. The standard distributions differ between libraries, so none is used.
  unsigned Below(unsigned limit) { return static_cast<unsigned>(random_()) % limit; }
  bool OneIn(unsigned times) { return Below(times) == 0; }
  std::string_view AnyOf(std::span<const std::string_view> texts) {
    return texts[Below(static_cast<unsigned>(texts.size()))];
  }

  int Lines() const { return lines_; }
  const GeneratorOptions& Options() const { return options_; }

  void Deeper(int steps = 1) { depth_ += steps; }
  void Shallower(int steps = 1) { depth_ -= steps; }

  void StartProcedure();

  /// A line that must not be labelled or broken: comments, Case, closing lines.
  void Line(std::string_view text);

  /// A statement: may get an old line number, and may be continued at its breaks.
  void Statement(std::string_view text);

  /// A declaration: may be continued, never numbered.
  void Breakable(std::string_view text);

  void Blank();

  /// The text just as it is.
  void Raw(std::string_view text);

  std::string TakeText() { return std::move(text_); }

 private:
  void WriteIndent();
  void WriteMessyIndent();
  void WriteLabel();
  void WriteBroken(std::string_view text);
  void EndLine();

  const GeneratorOptions& options_;
  std::mt19937 random_;
  std::string text_;
  int lines_ = 0;
  int depth_ = 0;
  int label_ = -1;  // the latest old line number, -1 in a procedure without them
};

}  // namespace brimwork::module_generator
