// Lines by number, wherever they are held, so that the checks and the diff copy no module.
#pragma once

#include <string>
#include <string_view>
#include <utility>
#include <vector>

namespace brimwork {

/// Readers mostly ask for lines in ascending order, now and then for a near neighbour, and rarely
/// start again from the top.
class CodeLines {
 public:
  virtual ~CodeLines() = default;

  virtual int Count() const = 0;

  /// number: 1 to Count(). The text stays valid as long as this object.
  virtual std::string_view Line(int number) const = 0;
};

/// Lines held in a vector.
class VectorLines : public CodeLines {
 public:
  explicit VectorLines(std::vector<std::string> lines) : lines_(std::move(lines)) {}

  int Count() const override { return static_cast<int>(lines_.size()); }
  std::string_view Line(int number) const override {
    return lines_[static_cast<std::size_t>(number - 1)];
  }

 private:
  std::vector<std::string> lines_;
};

}  // namespace brimwork
