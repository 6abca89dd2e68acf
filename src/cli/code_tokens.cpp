#include "cli/code_tokens.h"

#include "environment/text.h"

namespace brimwork {
namespace {

constexpr std::string_view kBlanks = " \t";
constexpr std::string_view kTypeCharacters = "%&!#@$";

bool IsNameStart(char c) {
  const char upper = ToUpperAscii(c);
  return (upper >= 'A' && upper <= 'Z') || static_cast<unsigned char>(c) > 127;
}

bool IsNameCharacter(char c) { return IsNameStart(c) || IsDigit(c) || c == '_'; }

char At(std::string_view text, std::size_t at) { return at < text.size() ? text[at] : '\0'; }

template <class Belongs>
std::size_t SkipWhile(std::string_view text, std::size_t at, Belongs belongs) {
  while (at < text.size() && belongs(text[at])) ++at;
  return at;
}

std::size_t SkipTypeCharacter(std::string_view text, std::size_t at) {
  return IsOneOf(At(text, at), kTypeCharacters) ? at + 1 : at;
}

bool IsWord(std::string_view text, std::string_view upperCaseWord) {
  return text.size() == upperCaseWord.size() && StartsWithIgnoringCase(text, upperCaseWord);
}

/// A "!" in front of another name parts the two ("fields!Name"); elsewhere it is a type character.
std::size_t NameLength(std::string_view text) {
  const std::size_t end = SkipWhile(text, 0, IsNameCharacter);
  const bool isBang =
      At(text, end) == '!' && (IsNameStart(At(text, end + 1)) || At(text, end + 1) == '[');
  return isBang ? end : SkipTypeCharacter(text, end);
}

/// A name in square brackets; the rest of the line when the bracket is not closed.
std::size_t BracketedLength(std::string_view text) {
  const auto closing = text.find(']');
  return closing == std::string_view::npos ? text.size() : closing + 1;
}

/// Two quotes in a row stand for one inside the literal.
std::size_t StringLength(std::string_view text) {
  std::size_t at = 1;
  while (at < text.size()) {
    if (text[at++] != '"') continue;
    if (At(text, at) != '"') return at;
    ++at;
  }
  return at;
}

std::size_t SkipExponent(std::string_view text, std::size_t at) {
  if (!IsOneOf(At(text, at), "eEdD")) return at;
  std::size_t digits = at + 1;
  if (IsOneOf(At(text, digits), "+-")) ++digits;
  return IsDigit(At(text, digits)) ? SkipWhile(text, digits, IsDigit) : at;
}

std::size_t DecimalLength(std::string_view text) {
  std::size_t at = SkipWhile(text, 0, IsDigit);
  if (At(text, at) == '.') at = SkipWhile(text, at + 1, IsDigit);
  return SkipTypeCharacter(text, SkipExponent(text, at));
}

/// Length of a hexadecimal or octal number, 0 when none stands there.
std::size_t RadixLength(std::string_view text) {
  if (At(text, 0) != '&' || !IsOneOf(At(text, 1), "hHoO")) return 0;
  const std::size_t end = SkipWhile(text, 2, IsNameCharacter);
  return end == 2 ? 0 : SkipTypeCharacter(text, end);
}

std::size_t OperatorLength(std::string_view text) {
  const std::string_view pair = text.substr(0, 2);
  return pair == "<=" || pair == ">=" || pair == "<>" || pair == ":=" ? 2 : 1;
}

bool IsMarkOfMember(std::string_view text) { return text == "." || text == "!"; }

/// A blank in a file number list ("#1, #2") would make it look like a date.
bool LooksLikeDate(std::string_view inside) {
  if (!IsNameCharacter(At(inside, 0)) || !IsNameCharacter(inside.back())) return false;
  return inside.find_first_not_of(
             "0123456789abcdefghijklmnopqrstuvwxyzABCDEFGHIJKLMNOPQRSTUVWXYZ/:-., ") ==
             std::string_view::npos &&
         inside.find_first_of("0123456789") != std::string_view::npos;
}

/// Length of the date literal at the start of text, 0 when none stands there.
std::size_t DateLength(std::string_view text) {
  if (text[0] != '#') return 0;
  const auto closing = text.find('#', 1);
  if (closing == std::string_view::npos) return 0;
  const std::string_view inside = Trim(text.substr(1, closing - 1));
  return !inside.empty() && LooksLikeDate(inside) ? closing + 1 : 0;
}

}  // namespace

bool CodeToken::SameAs(const CodeToken& other) const {
  return kind == other.kind && text == other.text &&
         (isGlued == other.isGlued || !IsMarkOfMember(text));
}

CodeTokenizer::CodeTokenizer(std::string_view line, Continues above)
    : rest_(TrimRight(line, kBlanks)),
      continuesComment_(above == Continues::kComment),
      atLineStart_(above == Continues::kNothing),
      atStatementStart_(above == Continues::kNothing) {}

std::optional<CodeToken> CodeTokenizer::Next() {
  const std::size_t before = rest_.size();
  rest_ = TrimLeft(rest_, kBlanks);
  if (rest_.empty()) return std::nullopt;
  const bool isGlued = before == rest_.size();
  CodeToken token = !isGlued && rest_ == "_" ? CodeToken{TokenKind::kContinuation, rest_}
                    : StartsComment()        ? CodeToken{TokenKind::kComment, rest_}
                                             : FirstToken();
  token.isGlued = isGlued;
  if (token.kind == TokenKind::kContinuation) below_ = Continues::kStatement;
  if (token.kind == TokenKind::kComment && AsksForContinuation(rest_)) below_ = Continues::kComment;
  rest_.remove_prefix(token.text.size());
  atStatementStart_ = StartsStatementBehind(token);
  atLineStart_ = false;
  return token;
}

bool CodeTokenizer::StartsComment() const {
  const bool isRem = atStatementStart_ && StartsWithIgnoringCase(rest_, "REM") &&
                     (rest_.size() == 3 || IsBlankOrTab(rest_[3]));
  return continuesComment_ || isRem || rest_[0] == '\'';
}

CodeToken CodeTokenizer::FirstToken() const {
  const char first = rest_[0];
  const auto token = [&](TokenKind kind, std::size_t size) {
    return CodeToken{kind, rest_.substr(0, size)};
  };
  if (IsNameStart(first) || first == '_') return token(TokenKind::kName, NameLength(rest_));
  if (first == '[') return token(TokenKind::kName, BracketedLength(rest_));
  if (IsDigit(first) || (first == '.' && IsDigit(At(rest_, 1)))) {
    return token(TokenKind::kNumber, DecimalLength(rest_));
  }
  if (first == '"') return token(TokenKind::kString, StringLength(rest_));
  if (const auto length = RadixLength(rest_)) return token(TokenKind::kNumber, length);
  if (const auto length = DateLength(rest_)) return token(TokenKind::kDate, length);
  return token(TokenKind::kOperator, OperatorLength(rest_));
}

bool CodeTokenizer::StartsStatementBehind(const CodeToken& token) const {
  if (token.text == ":" || (token.kind == TokenKind::kNumber && atLineStart_)) return true;
  return token.kind == TokenKind::kName &&
         (IsWord(token.text, "THEN") || IsWord(token.text, "ELSE"));
}

std::vector<CodeToken> TokensOf(std::string_view line, Continues above) {
  std::vector<CodeToken> tokens;
  CodeTokenizer tokenizer(line, above);
  while (const auto token = tokenizer.Next()) tokens.push_back(*token);
  return tokens;
}

bool SameTokens(std::string_view a, std::string_view b, Continues above) {
  if (TrimBlanksAndTabs(a) == TrimBlanksAndTabs(b)) return true;
  CodeTokenizer tokensOfA(a, above);
  CodeTokenizer tokensOfB(b, above);
  while (true) {
    const auto fromA = tokensOfA.Next();
    const auto fromB = tokensOfB.Next();
    if (!fromA || !fromB) return !fromA && !fromB;
    if (!fromA->SameAs(*fromB)) return false;
  }
}

bool AsksForContinuation(std::string_view line) {
  const std::string_view text = TrimRight(line, kBlanks);
  return text.size() >= 2 && text.back() == '_' && IsBlankOrTab(text[text.size() - 2]);
}

}  // namespace brimwork
