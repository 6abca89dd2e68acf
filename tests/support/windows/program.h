// Other programs that a test runs.
#pragma once

#include <string>
#include <vector>

namespace brimwork::bench {

struct ProgramRun {
  int exitCode = -1;
  std::string output;  // standard output and error

  std::vector<std::string> Lines() const;
};

/// Runs a program, found along the path or by its own, to its end and collects what it prints.
/// Throws std::runtime_error when it cannot be started or does not end within two minutes.
ProgramRun RunProgram(const std::vector<std::string>& words);

}  // namespace brimwork::bench
