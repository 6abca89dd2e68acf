// The command line of the bench.
#pragma once

#include <filesystem>
#include <optional>
#include <stdexcept>
#include <string>
#include <vector>

namespace brimwork::bench {

enum class Job { kRun, kRegister, kUnregister };

struct Arguments {
  Job job = Job::kRun;
  std::filesystem::path project;                    // "" for none
  std::optional<std::filesystem::path> screenshot;  // where it goes
  std::optional<std::filesystem::path> report;      // on the add-ins
};

/// A command line that is not understood; what() says why and how it is meant.
class ArgumentError : public std::runtime_error {
 public:
  using std::runtime_error::runtime_error;
};

/// words: without the program's name. Throws ArgumentError.
Arguments ParseArguments(const std::vector<std::wstring>& words);

}  // namespace brimwork::bench
