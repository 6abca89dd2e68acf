// What the user answers to the question for one misspelled word.
#pragma once

#include <optional>
#include <string>
#include <string_view>
#include <vector>

namespace brimwork {

struct SpellAnswer {
  enum class Kind {
    kReplace,
    kReplaceAll,  // here and wherever the word comes up again
    kIgnore,
    kIgnoreAll,
    kAdd,  // to the user's own words
    kStop,
    kHelp,
    kNone,  // nothing that could be done
  };

  Kind kind = Kind::kNone;
  std::string text;  // what takes the word's place; for kNone what is wrong with the answer

  bool operator==(const SpellAnswer&) const = default;
};

/// line: what the user typed, without its line end.
SpellAnswer ParseSpellAnswer(std::string_view line, const std::vector<std::string>& suggestions);

/// What keeps text from standing in a word's place in a file of that encoding; nothing when it may.
std::optional<std::string> ProblemOfReplacement(std::string_view text, const std::string& encoding);

}  // namespace brimwork
