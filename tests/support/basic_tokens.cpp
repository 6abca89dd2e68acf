#include "support/basic_tokens.h"

#include <stdexcept>

#include "environment/text.h"

namespace brimwork {
namespace {

constexpr std::string_view kLetters = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_";
constexpr std::string_view kDigits = "0123456789";
constexpr std::string_view kHexDigits = "0123456789ABCDEFabcdef";

/// Reads one logical line from left to right.
class Lexer {
 public:
  explicit Lexer(std::string_view line) : rest_(line) {}

  BasicLine Read() {
    BasicLine tokens;
    for (Skip(" "); !rest_.empty() && rest_[0] != '\''; Skip(" ")) tokens.push_back(Next());
    return tokens;
  }

 private:
  BasicToken Next() {
    using Kind = BasicToken::Kind;
    if (IsOneOf(rest_[0], kLetters)) return {Kind::kName, Take(Length(NameCharacters()))};
    if (IsOneOf(rest_[0], kDigits)) return {Kind::kNumber, TakeNumber(0, kDigits)};
    if (rest_.starts_with("&H")) return {Kind::kNumber, TakeNumber(2, kHexDigits)};
    if (rest_[0] == '"') return {Kind::kString, TakeString()};
    return {Kind::kSymbol, TakeSymbol()};
  }

  std::string TakeNumber(std::size_t prefix, std::string_view digits) {
    std::size_t length = prefix;
    while (length < rest_.size() && IsOneOf(rest_[length], digits)) ++length;
    if (length < rest_.size() && rest_[length] == '&') ++length;
    return Take(length);
  }

  std::string TakeString() {
    const auto end = rest_.find('"', 1);
    if (end == std::string_view::npos) Complain();
    const std::string text(rest_.substr(1, end - 1));
    Take(end + 1);
    return text;
  }

  std::string TakeSymbol() {
    if (rest_.starts_with("<>")) return Take(2);
    if (!IsOneOf(rest_[0], "()=<>+-*/,.")) Complain();
    return Take(1);
  }

  static std::string_view NameCharacters() {
    return "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz_0123456789";
  }

  std::size_t Length(std::string_view characters) const {
    const auto end = rest_.find_first_not_of(characters);
    return end == std::string_view::npos ? rest_.size() : end;
  }

  void Skip(std::string_view characters) { rest_.remove_prefix(Length(characters)); }

  std::string Take(std::size_t length) {
    const std::string text(rest_.substr(0, length));
    rest_.remove_prefix(length);
    return text;
  }

  [[noreturn]] void Complain() const {
    throw std::invalid_argument("no token: " + std::string(rest_));
  }

  std::string_view rest_;
};

}  // namespace

bool BasicToken::Is(std::string_view word) const {
  return kind != Kind::kString && kind != Kind::kNumber && EqualNames(text, word);
}

std::vector<BasicLine> BasicLinesOf(std::string_view source) {
  std::vector<BasicLine> lines;
  std::string logical;
  for (const std::string_view line : SplitLines(source)) {
    logical += line;
    if (IsContinued(line)) {
      logical.pop_back();
      continue;
    }
    if (BasicLine tokens = Lexer(logical).Read(); !tokens.empty()) lines.push_back(tokens);
    logical.clear();
  }
  return lines;
}

}  // namespace brimwork
