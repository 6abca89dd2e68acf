// One line of Visual Basic code as tokens, the blanks and tabs between them set aside: two lines
// with the same tokens mean the same.
#pragma once

#include <optional>
#include <string_view>
#include <vector>

#include "environment/basic_lines.h"

namespace brimwork {

enum class TokenKind {
  kName,          // identifiers and keywords, with a type character glued to them
  kNumber,        // with its type character
  kString,        // with its quotes
  kDate,          // with its number signs
  kComment,       // from ' or Rem on; blanks at the line's end are not part of it
  kOperator,      // all other characters
  kContinuation,  // the _ that carries a statement on to the next line
};

struct CodeToken {
  TokenKind kind = TokenKind::kOperator;
  std::string_view text;
  bool isGlued = false;  // no blank between it and the token in front

  /// Case counts, and so does a blank in front of "." and "!": there it changes the meaning.
  bool SameAs(const CodeToken& other) const;
};

class CodeTokenizer {
 public:
  /// above: what the line continues.
  CodeTokenizer(std::string_view line, Continues above);

  /// The next token, nothing at the line's end.
  std::optional<CodeToken> Next();

  /// What the next line continues; known when Next has given the last token.
  Continues Below() const { return below_; }

 private:
  bool StartsComment() const;
  CodeToken FirstToken() const;
  bool StartsStatementBehind(const CodeToken& token) const;

  std::string_view rest_;
  Continues below_ = Continues::kNothing;
  bool continuesComment_ = false;
  bool atLineStart_ = true;
  bool atStatementStart_ = true;
};

std::vector<CodeToken> TokensOf(std::string_view line, Continues above);

/// True when both lines hold the same tokens; above: what both of them continue.
bool SameTokens(std::string_view a, std::string_view b, Continues above);

/// True when the line asks to be continued: it ends in a blank or tab and an underscore, blanks
/// behind it not counted.
bool AsksForContinuation(std::string_view line);

}  // namespace brimwork
