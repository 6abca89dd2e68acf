#include "cli/jump_scanner.h"

#include "cli/code_tokens.h"
#include "cli/line_label.h"
#include "environment/text.h"

namespace brimwork {
namespace {

bool IsWord(std::string_view text, std::string_view upperCaseWord) {
  return text.size() == upperCaseWord.size() && StartsWithIgnoringCase(text, upperCaseWord);
}

/// A quick look that lets most lines pass: true when some word of the line may start a jump.
bool MayJump(std::string_view line) {
  for (std::size_t at = 0; at < line.size(); ++at) {
    const std::string_view rest = line.substr(at);
    switch (ToUpperAscii(line[at])) {
      case 'G':
        if (StartsWithIgnoringCase(rest, "GO")) return true;
        break;
      case 'R':
        if (StartsWithIgnoringCase(rest, "RESUME")) return true;
        break;
      case 'T':
        if (StartsWithIgnoringCase(rest, "THEN")) return true;
        break;
      case 'E':
        if (StartsWithIgnoringCase(rest, "ELSE")) return true;
        break;
      default:
        break;
    }
  }
  return false;
}

bool IsPlainNumber(const CodeToken& token) {
  return token.kind == TokenKind::kNumber &&
         token.text.find_first_not_of("0123456789") == std::string_view::npos;
}

}  // namespace

void JumpScanner::Scan(std::string_view text, int line, std::vector<NumericJump>& jumps) {
  if (above_ == Continues::kNothing) EndStatement();
  if (above_ != Continues::kNothing || AsksForContinuation(text) || MayJump(text)) {
    ScanTokens(text, line, jumps);
  }
}

void JumpScanner::ScanTokens(std::string_view text, int line, std::vector<NumericJump>& jumps) {
  CodeTokenizer tokenizer(text, above_);
  while (const auto token = tokenizer.Next()) {
    if (token->kind == TokenKind::kContinuation) break;
    if (token->text == ":") {
      EndStatement();
    } else if (token->kind == TokenKind::kName) {
      if (!TakeWord(token->text)) word_ = {};
    } else if (!word_.empty() && IsPlainNumber(*token)) {
      const std::string_view target = WithoutLeadingZeros(token->text);
      const bool isNoLine = target == "0" && (isErrorTrap_ || IsWord(word_, "RESUME"));
      if (!isNoLine) jumps.push_back({target, word_, line});
      if (!isList_) word_ = {};
    } else if (token->text != "," || !isList_) {
      word_ = {};
    }
    previous_ = token->text;
  }
  above_ = tokenizer.Below();
}

void JumpScanner::EndStatement() {
  word_ = previous_ = {};
  isList_ = isErrorTrap_ = false;
}

/// Takes a name for a jump word where it is one. A member of that name ("rs.Resume") is none.
bool JumpScanner::TakeWord(std::string_view name) {
  if (previous_ == "." || previous_ == "!") return false;
  if (IsWord(name, "ERROR") && IsWord(previous_, "ON")) isErrorTrap_ = true;
  const bool isJoined = IsWord(name, "GOTO") || IsWord(name, "GOSUB");
  const bool isSplit = IsWord(previous_, "GO") && (IsWord(name, "TO") || IsWord(name, "SUB"));
  const bool isBranch = IsWord(name, "THEN") || IsWord(name, "ELSE");
  if (!isJoined && !isSplit && !isBranch && !IsWord(name, "RESUME")) return false;
  word_ = isJoined ? name : isSplit ? (IsWord(name, "TO") ? "GoTo" : "GoSub") : name;
  isList_ = isJoined || isSplit;
  if (isBranch) isErrorTrap_ = false;
  return true;
}

}  // namespace brimwork
