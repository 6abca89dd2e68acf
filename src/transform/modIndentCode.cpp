#include "transform/modIndentCode.h"

#include <algorithm>
#include <cstdint>
#include <limits>
#include <string>

#include "environment/byte_words.h"
#include "environment/run_time_error.h"
#include "environment/text.h"
#include "settings/modRegistry.h"
#include "transform/block_keywords.h"
#include "transform/code_source.h"

namespace brimwork {
namespace {

constexpr int kDefaultTabWidth = 4;

int ReadIndentUnit(Environment& environment) {
  std::string tabWidth;
  ReadRegistryValue(environment.registry, kHiveCurrentUser,
                    "Software\\Microsoft\\VBA\\Microsoft Visual Basic", "TabWidth", tabWidth);
  return tabWidth.empty() ? kDefaultTabWidth : ToInteger(tabWidth);
}

/// The column of the blank or apostrophe behind the first word of a comment, less one: as far in do
/// the lines stand that continue it.
int ContinuedCommentColumn(std::string_view comment) {
  std::size_t column = comment.starts_with("Rem ") ? 5 : 2;
  while (comment[column - 1] != ' ' && comment[column - 1] != '\'') ++column;
  return CharacterCount(comment.substr(0, column - 1));
}

/// A line without these has no literal, no comment and no second statement.
bool HasMarks(std::string_view code) { return ContainsOneOf<'"', '\'', ':'>(code); }

std::size_t FindQuoteOrApostrophe(std::string_view code) {
  const auto quote = code.find('"');
  return std::min(quote, code.substr(0, quote).find('\''));
}

/// Keeps levels within the 16 bits that they are counted in.
int CheckedInteger(int value, int line) {
  if (value < std::numeric_limits<std::int16_t>::min() ||
      value > std::numeric_limits<std::int16_t>::max()) {
    throw RunTimeError(error_number::kOverflow, "Overflow: too many open blocks", line);
  }
  return value;
}

/// One run over a range of lines: what each line means for the lines below it.
class Indenter {
 public:
  explicit Indenter(int unit) : unit_(unit), keywords_(GetBlockKeywords()) {}

  /// The line as it is to stand in the module. Valid until the next call.
  const std::string& Indented(std::string_view text, int line) {
    line_ = line;
    result_.clear();
    std::string_view code = Trim(text);
    if (TrimLeft(code, " \t").empty()) return result_;
    code = TrimLeft(code, "\t");
    if (code.starts_with("Rem ") || code.starts_with('\'') || continuesComment_) {
      IndentComment(code);
    } else {
      IndentStatement(code);
    }
    return result_;
  }

 private:
  void AppendLevelIndent() {
    const int width = CheckedInteger(CheckedInteger(level_ * unit_, line_) + unit_, line_);
    if (width < 0) {
      throw RunTimeError(error_number::kInvalidProcedureCall,
                         "a block ends here that did not begin in this procedure", line_);
    }
    result_.append(static_cast<std::size_t>(width), ' ');
  }

  void IndentComment(std::string_view comment) {
    const int column = continuesComment_ ? continuedCommentColumn_ : 0;
    if (!continuesComment_ && IsContinued(comment)) {
      continuedCommentColumn_ = ContinuedCommentColumn(comment);
    }
    AppendLevelIndent();
    result_.append(static_cast<std::size_t>(column), ' ').append(comment);
    continuesComment_ = IsContinued(result_);
  }

  void IndentStatement(std::string_view code) {
    const bool isPlain = !HasMarks(code);
    PrepareWorkCopy(code, isPlain);
    ChangeLevel(-keywords_.procedureClosers.CountAtStart(work_));
    ChangeLevel(-keywords_.blockClosers.CountAtStart(work_));
    const bool hasColons = !isPlain && Contains(work_, ": ");
    const int closersBehindColons = hasColons ? keywords_.blockClosers.CountBehindColons(work_) : 0;
    AppendLevelIndent();
    result_.append(code);
    if (hasColons) {
      for (const std::string_view statement : Split(work_, ": ")) OpenBlocksOf(statement);
    } else {
      OpenBlocksOf(work_);
    }
    CountContinuation(IsContinued(code));
    ChangeLevel(-closersBehindColons);
  }

  /// The code as keywords are looked for in it: literals emptied, the comment cut, a blank behind.
  void PrepareWorkCopy(std::string_view code, bool isPlain) {
    work_.clear();
    if (isPlain) {
      work_.append(code) += ' ';
      return;
    }
    auto special = FindQuoteOrApostrophe(code);
    while (special != std::string_view::npos && code[special] == '"') {
      const auto closing = code.find('"', special + 1);
      if (closing == std::string_view::npos) {
        special = code.find('\'', special);
        break;
      }
      work_.append(code.substr(0, special)).append("\"\"");
      code.remove_prefix(closing + 1);
      special = FindQuoteOrApostrophe(code);
    }
    work_.append(code.substr(0, special));
    if (special == std::string_view::npos) work_ += ' ';
  }

  void OpenBlocksOf(std::string_view statement) {
    if (statement.starts_with("If ") || statement.starts_with("#If ") || pendingIf_) {
      pendingIf_ = statement.ends_with(" _ ");
      if (IsBlockIf(statement)) {
        ChangeLevel(1);
        pendingIf_ = false;
      }
    } else {
      ChangeLevel(keywords_.blockOpeners.CountAtStart(statement));
      ChangeLevel(keywords_.procedureOpeners.CountAtStart(statement));
    }
  }

  /// Nothing stands behind Then; a comment there was cut before.
  static bool IsBlockIf(std::string_view statement) {
    constexpr std::string_view kThen = " Then";
    auto then = statement.find(" Then ");
    if (then == std::string_view::npos && statement.ends_with(kThen)) {
      then = statement.size() - kThen.size();
    }
    if (then == std::string_view::npos) then = statement.find(" Then:");
    if (then == std::string_view::npos) return false;
    return Trim(statement.substr(then + kThen.size())).empty();
  }

  void CountContinuation(bool isContinued) {
    if (isContinued == continuesStatement_) return;
    ChangeLevel(isContinued ? 1 : -1);
    continuesStatement_ = isContinued;
  }

  void ChangeLevel(int by) { level_ = CheckedInteger(level_ + by, line_); }

  const int unit_;
  const BlockKeywords& keywords_;
  int level_ = 0;
  bool continuesStatement_ = false;
  bool continuesComment_ = false;
  bool pendingIf_ = false;  // an If whose condition goes on in the next line
  int continuedCommentColumn_ = 0;
  int line_ = 0;
  std::string work_;
  std::string result_;
};

}  // namespace

void IndentCode(Context& context, int firstLine, int lastLine) {
  WithCodeSource(context.environment, [&](CodeModule& module) {
    if (!context.indentUnit) context.indentUnit = ReadIndentUnit(context.environment);
    Indenter indenter(*context.indentUnit);
    std::string text;
    for (int line = firstLine; line <= lastLine; ++line) {
      module.ReadLine(line, text);
      module.ReplaceLine(line, indenter.Indented(text, line));
    }
  });
}

}  // namespace brimwork
