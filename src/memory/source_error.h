// What is wrong with a file, in the one line that the user reads.
#pragma once

#include <stdexcept>
#include <string>

namespace brimwork {

class SourceError : public std::runtime_error {
 public:
  /// The message reads "path:line:column: problem". line and column count from 1; 0 means that the
  /// problem belongs to none, and leaves the number out.
  SourceError(const std::string& path, int line, int column, const std::string& problem)
      : std::runtime_error(path + Number(line) + Number(line == 0 ? 0 : column) + ": " + problem),
        line_(line),
        column_(column) {}

  SourceError(const std::string& path, const std::string& problem)
      : SourceError(path, 0, 0, problem) {}

  int Line() const { return line_; }
  int Column() const { return column_; }

 private:
  static std::string Number(int number) {
    return number == 0 ? std::string() : ":" + std::to_string(number);
  }

  int line_;
  int column_;
};

}  // namespace brimwork
