#include "cli/spell_answers.h"

#include <algorithm>
#include <charconv>

#include "environment/text.h"
#include "memory/text_codec.h"

namespace brimwork {
namespace {

using Kind = SpellAnswer::Kind;

/// The suggestion of that number, nothing when word is no such number.
std::optional<std::string> NumberedSuggestion(std::string_view word,
                                              const std::vector<std::string>& suggestions) {
  std::size_t number = 0;
  const auto [end, error] = std::from_chars(word.data(), word.data() + word.size(), number);
  const bool isNumber = error == std::errc() && end == word.data() + word.size();
  if (!isNumber || number == 0 || number > suggestions.size()) return std::nullopt;
  return suggestions[number - 1];
}

SpellAnswer Replacing(Kind kind, std::string_view text,
                      const std::vector<std::string>& suggestions) {
  if (text.empty()) return {Kind::kNone, "write the text behind the letter, as in \"r the\""};
  return {kind, NumberedSuggestion(text, suggestions).value_or(std::string(text))};
}

Kind KindOf(std::string_view letter) {
  if (letter == "i") return Kind::kIgnore;
  if (letter == "I") return Kind::kIgnoreAll;
  if (letter == "a") return Kind::kAdd;
  if (letter == "s" || letter == "q") return Kind::kStop;
  return letter == "?" ? Kind::kHelp : Kind::kNone;
}

bool IsControlCharacter(char c) { return static_cast<unsigned char>(c) < ' ' || c == '\x7F'; }

}  // namespace

SpellAnswer ParseSpellAnswer(std::string_view line, const std::vector<std::string>& suggestions) {
  const std::string_view answer = TrimBlanksAndTabs(line);
  if (const auto suggestion = NumberedSuggestion(answer, suggestions)) {
    return {Kind::kReplace, *suggestion};
  }
  const std::string_view letter = answer.substr(0, answer.find_first_of(" \t"));
  const std::string_view rest = TrimBlanksAndTabs(answer.substr(letter.size()));
  if (letter == "r") return Replacing(Kind::kReplace, rest, suggestions);
  if (letter == "R") return Replacing(Kind::kReplaceAll, rest, suggestions);
  const Kind kind = rest.empty() ? KindOf(letter) : Kind::kNone;
  if (kind != Kind::kNone) return {kind, {}};
  const bool isShort = !answer.empty() && answer.size() < 20;
  return {Kind::kNone, isShort ? "there is no answer \"" + std::string(answer) + '"'
                               : std::string("that is no answer")};
}

std::optional<std::string> ProblemOfReplacement(std::string_view text,
                                                const std::string& encoding) {
  if (TrimBlanksAndTabs(text).empty()) return "a replacement needs at least one character";
  if (std::ranges::any_of(text, IsControlCharacter)) {
    return "a replacement cannot hold line ends or other control characters";
  }
  if (Contains(text, "\"")) return "a replacement cannot hold quotes, which would end a literal";
  if (text.back() == '_') return "a replacement cannot end in _, which continues a line of code";
  try {
    std::string buffer;
    TextCodec(encoding).Encode(text, buffer);
    return std::nullopt;
  } catch (const TextCodecError& error) {
    return error.what();
  }
}

}  // namespace brimwork
