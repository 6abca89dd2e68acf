// What was decided about the words of one line whose pieces are corrected one after the other.
#pragma once

#include <cstddef>
#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brimwork {

/// Places are byte offsets in the line as it is at the moment.
class LineDecisions {
 public:
  /// True when a word there, or a part of it, was decided on before.
  bool Cover(std::size_t offset, std::size_t size) const;

  /// Words are added from the left within a piece. replacement: nothing to leave the word.
  void Add(std::size_t offset, std::size_t size, std::optional<std::string> replacement);

  /// The line from offset up to end as it shall be.
  std::string Corrected(std::string_view line, std::size_t offset, std::size_t end) const;

  /// The line was written with the stretch corrected, and so everything behind it has moved.
  void TakeOver(std::size_t offset, std::size_t end);

 private:
  struct Decision {
    std::size_t offset = 0;
    std::size_t size = 0;
    std::optional<std::string> replacement;  // until it is written

    bool IsIn(std::size_t from, std::size_t end) const { return from <= offset && offset < end; }
  };

  std::vector<Decision> decisions_;  // in the order of the line
};

}  // namespace brimwork
