// Visual Basic source as tokens, line by line, for tests that run a module's source.
#pragma once

#include <string>
#include <string_view>
#include <vector>

namespace brimwork {

struct BasicToken {
  enum class Kind { kName, kNumber, kString, kSymbol };

  Kind kind = Kind::kSymbol;
  std::string text;  // of a string: what stands between the quotes

  /// True for that name, in any case, or that symbol.
  bool Is(std::string_view word) const;
};

using BasicLine = std::vector<BasicToken>;

/// The lines that hold code, continued ones joined, without comments. Throws std::invalid_argument
/// for what is no token.
std::vector<BasicLine> BasicLinesOf(std::string_view source);

}  // namespace brimwork
