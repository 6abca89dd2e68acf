#include "benchmark_module.h"

#include <string_view>

#include "environment/text.h"
#include "support/module_generator.h"

namespace brimwork {
namespace {

/// A small generator of our own, because the standard distributions differ between libraries.
class Numbers {
 public:
  unsigned Below(unsigned limit) {
    state_ = state_ * 1103515245U + 12345U;
    return (state_ >> 16) % limit;
  }

 private:
  unsigned state_ = 12345;
};

}  // namespace

std::string BenchmarkModule(int lines) {
  constexpr unsigned kWidestIndent = 13;
  GeneratorOptions options;
  options.lines = lines;
  options.continuations = true;
  const std::string tidy = GenerateModule(options).text;
  Numbers numbers;
  std::string module;
  module.reserve(tidy.size() + tidy.size() / 4);
  for (const std::string_view line : Split(tidy, "\r\n")) {
    if (!module.empty()) module += "\r\n";
    module.append(line.empty() ? 0 : numbers.Below(kWidestIndent), ' ').append(TrimLeft(line));
  }
  return module;
}

}  // namespace brimwork
