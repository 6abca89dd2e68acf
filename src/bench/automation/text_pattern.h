// Patterns of text as Visual Basic's Like operator has them, case set aside.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brimwork::bench {

/// The characters of UTF-8 text; damaged bytes become U+FFFD.
std::u32string CharactersOf(std::string_view text);

/// Makes upper and lower case one.
void FoldCase(std::u32string& text);

class TextPattern {
 public:
  /// Raises error 5 for a list that is not closed.
  explicit TextPattern(std::u32string text);

  /// How many characters of text, from start and not beyond end, match: as few as possible; nothing
  /// when none do. text has been made one case with FoldCase.
  std::optional<std::size_t> MatchAt(std::u32string_view text, std::size_t start,
                                     std::size_t end) const;

 private:
  struct Range {
    char32_t first;
    char32_t last;
  };
  struct Step {
    enum class Kind { kRun, kOneOf, kNoneOf } kind;  // kRun: any number of any characters
    std::vector<Range> ranges;
  };

  static bool Matches(const Step& step, char32_t character);
  Step ListAt(std::u32string_view text, std::size_t& at) const;
  std::optional<std::size_t> MatchSteps(std::size_t step, std::u32string_view text, std::size_t at,
                                        std::size_t end) const;

  std::vector<Step> steps_;
};

}  // namespace brimwork::bench
