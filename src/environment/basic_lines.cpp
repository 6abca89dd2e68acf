#include "environment/basic_lines.h"

#include <array>
#include <initializer_list>

#include "environment/text.h"

namespace brimwork {
namespace {

constexpr std::string_view kBlanks = " \t";

bool IsLetter(char c) { return ToUpperAscii(c) >= 'A' && ToUpperAscii(c) <= 'Z'; }
bool IsAboveAscii(char c) { return static_cast<unsigned char>(c) > 127; }
bool IsNameCharacter(char c) { return IsLetter(c) || IsDigit(c) || c == '_' || IsAboveAscii(c); }

std::string_view SkipBlanks(std::string_view text) { return TrimLeft(text, kBlanks); }

/// Takes the word off text when it stands there in any case and ends there.
bool TakeWord(std::string_view& text, std::string_view upperCaseWord) {
  if (!StartsWithIgnoringCase(text, upperCaseWord)) return false;
  if (text.size() > upperCaseWord.size() && IsNameCharacter(text[upperCaseWord.size()]))
    return false;
  text.remove_prefix(upperCaseWord.size());
  return true;
}

/// Takes the word and the blanks that must follow it.
bool TakeWordAndBlanks(std::string_view& text, std::string_view upperCaseWord) {
  std::string_view rest = text;
  if (!TakeWord(rest, upperCaseWord) || rest.empty() || !IsBlankOrTab(rest[0])) return false;
  text = SkipBlanks(rest);
  return true;
}

bool StartsWithRem(std::string_view text) {
  return StartsWithIgnoringCase(text, "REM") && (text.size() == 3 || text[3] == ' ');
}

/// Takes one of the words off text and returns it as written, or "" when none stands there.
std::string_view TakeOneOf(std::string_view& text, std::initializer_list<std::string_view> words) {
  for (const std::string_view word : words) {
    if (text.empty() || ToUpperAscii(text[0]) != word[0]) continue;
    const std::string_view written = text.substr(0, word.size());
    if (TakeWordAndBlanks(text, word)) return written;
  }
  return {};
}

/// True when text starts with End and one of the words, and nothing is glued to them.
bool IsEndOf(std::string_view text, std::initializer_list<std::string_view> words) {
  if (!TakeWordAndBlanks(text, "END")) return false;
  for (const std::string_view word : words) {
    if (TakeWord(text, word)) return true;
  }
  return false;
}

std::string_view BehindNumericLabel(std::string_view text) {
  const auto digits = text.find_first_not_of("0123456789");
  if (digits == 0 || digits == std::string_view::npos) return text;
  return SkipBlanks(text.substr(digits));
}

/// Calls visit with the text behind each ":" that stands outside literals and comments, until it
/// returns true. Returns the offset of the line's comment, npos when there is none (or visit ended
/// the search).
template <class Visit>
std::size_t ForEachStatementBehindColon(std::string_view line, Visit visit) {
  const std::string_view firstStatement = BehindNumericLabel(SkipBlanks(line));
  if (StartsWithRem(firstStatement)) return line.size() - firstStatement.size();
  bool inLiteral = false;
  for (std::size_t at = 0; at < line.size(); ++at) {
    const char c = line[at];
    if (c == '"') {
      inLiteral = !inLiteral;
    } else if (!inLiteral && c == '\'') {
      return at;
    } else if (!inLiteral && c == ':') {
      const std::string_view statement = SkipBlanks(line.substr(at + 1));
      if (StartsWithRem(statement)) return line.size() - statement.size();
      if (visit(statement)) return std::string_view::npos;
    }
  }
  return std::string_view::npos;
}

bool HoldsEndOf(std::string_view line, Continues above,
                std::initializer_list<std::string_view> words) {
  const std::string_view start = SkipBlanks(line);
  if (start.empty() || IsCommentLine(start, above)) return false;
  if (above == Continues::kNothing) {
    const char first = start[0];
    if ((first == 'E' || first == 'e' || IsDigit(first)) &&
        IsEndOf(BehindNumericLabel(start), words)) {
      return true;
    }
  }
  if (start.find(':') == std::string_view::npos) return false;
  bool found = false;
  ForEachStatementBehindColon(
      start, [&](std::string_view statement) { return found = IsEndOf(statement, words); });
  return found;
}

bool IsTypeCharacter(char c) { return IsOneOf(c, "%&!#@$"); }

}  // namespace

Continues ContinuedBelow(std::string_view line, Continues above) {
  if (!IsContinued(line)) return Continues::kNothing;
  if (IsCommentLine(line, above)) return Continues::kComment;
  const auto comment = ForEachStatementBehindColon(line, [](std::string_view) { return false; });
  return comment == std::string_view::npos ? Continues::kStatement : Continues::kComment;
}

bool IsBlankLine(std::string_view line) { return SkipBlanks(line).empty(); }

bool IsCommentLine(std::string_view line, Continues above) {
  if (above == Continues::kComment) return true;
  const std::string_view start = SkipBlanks(line);
  if (start.empty()) return false;
  if (start[0] == '\'') return true;
  return ToUpperAscii(start[0]) == 'R' && StartsWithRem(TrimRight(start, kBlanks));
}

ConditionalLine ConditionalLineOf(std::string_view line) {
  std::string_view text = SkipBlanks(line);
  if (!text.starts_with('#')) return ConditionalLine::kNone;
  text.remove_prefix(1);
  if (TakeWord(text, "IF")) return ConditionalLine::kIf;
  if (TakeWord(text, "ELSEIF") || TakeWord(text, "ELSE")) return ConditionalLine::kElse;
  return IsEndOf(text, {"IF"}) ? ConditionalLine::kEndIf : ConditionalLine::kNone;
}

bool IsConditionalCompilationLine(std::string_view line) {
  std::string_view text = SkipBlanks(line);
  if (!text.starts_with('#')) return false;
  if (ConditionalLineOf(text) != ConditionalLine::kNone) return true;
  text.remove_prefix(1);
  return TakeWord(text, "CONST");
}

std::optional<Declaration> ParseDeclaration(std::string_view line) {
  std::string_view text = SkipBlanks(line);
  if (text.empty() || !IsOneOf(text[0], "PFSpfs")) {
    return std::nullopt;
  }
  while (!TakeOneOf(text, {"PUBLIC", "PRIVATE", "FRIEND", "STATIC"}).empty()) {
  }
  Declaration declaration;
  declaration.word = TakeOneOf(text, {"SUB", "FUNCTION", "PROPERTY"});
  if (declaration.word.empty()) return std::nullopt;
  if (ToUpperAscii(declaration.word[0]) == 'P') {
    const std::string_view accessor = TakeOneOf(text, {"GET", "LET", "SET"});
    if (accessor.empty()) return std::nullopt;
    const char first = ToUpperAscii(accessor[0]);
    declaration.kind = first == 'G'   ? ProcKind::kPropertyGet
                       : first == 'L' ? ProcKind::kPropertyLet
                                      : ProcKind::kPropertySet;
  }
  if (text.empty() || !(IsLetter(text[0]) || IsAboveAscii(text[0]))) return std::nullopt;
  declaration.name = text.substr(0, text.find_first_of("( \t:'"));
  if (declaration.name.size() > 1 && IsTypeCharacter(declaration.name.back())) {
    declaration.name.remove_suffix(1);
  }
  return declaration;
}

bool OpensTypeBlock(std::string_view line) {
  std::string_view text = SkipBlanks(line);
  if (text.empty() || !IsOneOf(text[0], "PTEpte")) {
    return false;
  }
  TakeOneOf(text, {"PUBLIC", "PRIVATE"});
  return !TakeOneOf(text, {"TYPE", "ENUM"}).empty() && !text.empty() &&
         (IsLetter(text[0]) || IsAboveAscii(text[0]));
}

bool ClosesTypeBlock(std::string_view line) {
  return HoldsEndOf(line, Continues::kNothing, {"TYPE", "ENUM"});
}

bool ClosesProcedure(std::string_view line, Continues above) {
  return HoldsEndOf(line, above, {"SUB", "FUNCTION", "PROPERTY"});
}

}  // namespace brimwork
