// Where the lines of a text start, found as far as asked and kept until the text changes.
#pragma once

#include <cstddef>
#include <cstdint>
#include <string_view>
#include <vector>

namespace brimwork {

/// Each call is handed the text, whose lines are joined by CR LF. Lines count from 0.
class LineStarts {
 public:
  /// At least 1: a text that ends in a line end has an empty line behind it.
  int Count(std::string_view text) {
    LookThrough(text);
    return static_cast<int>(starts_.size());
  }

  /// The line that holds a byte, its line end included.
  int LineAt(std::string_view text, std::size_t byte) {
    LookThrough(text);
    if (!Holds(last_, byte) && !Holds(++last_, byte)) [[unlikely]]
      last_ = Search(byte);
    return static_cast<int>(last_);
  }

  /// First byte of a line; there must be so many.
  std::size_t Start(std::string_view text, int line) {
    LookThrough(text);
    return starts_[static_cast<std::size_t>(line)];
  }

  /// The text changed from a byte on.
  void Forget(std::size_t byte);

 private:
  void LookThrough(std::string_view text) {
    if (seen_ < text.size()) [[unlikely]]
      LookThroughRest(text);
  }
  void LookThroughRest(std::string_view text);
  std::size_t Search(std::size_t byte) const;
  bool Holds(std::size_t line, std::size_t byte) const {
    return line < starts_.size() && starts_[line] <= byte &&
           (line + 1 == starts_.size() || byte < starts_[line + 1]);
  }

  std::vector<std::uint32_t> starts_{0};
  std::size_t seen_ = 0;  // bytes looked through
  std::size_t last_ =
      0;  // the line asked for last; a caret mostly stays there or moves to the next
};

}  // namespace brimwork
