// The module that every benchmark works on: code as people write it, each line indented at random,
// so that a command has to touch nearly every line.
#pragma once

#include <string>

namespace brimwork {

/// Text of at least that many lines, CR LF between them; the same on every machine.
std::string BenchmarkModule(int lines);

}  // namespace brimwork
