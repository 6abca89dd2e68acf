#include "memory/procedure_index.h"

#include <algorithm>
#include <limits>
#include <optional>

#include "environment/byte_words.h"
#include "environment/text.h"

namespace brimwork {
namespace {

constexpr int kWholeModule = std::numeric_limits<int>::max();

/// Walks down the lines and keeps what the line at hand depends on from the lines above it. Most
/// lines are told apart by their first characters (Public, Private, Friend, Static, Sub, Function,
/// Property); the rest is looked at more closely.
class LineCursor {
 public:
  LineCursor(const ModuleText& text, int line) : text_(text), line_(line) { Read(); }

  bool AtEnd() const { return line_ > text_.Count(); }
  int LineNumber() const { return line_; }
  std::string_view Text() const { return current_; }

  /// The last line down to this one that is code: neither blank nor comment, or continuing code.
  int LastCodeLine() const { return lastCode_; }
  int LastCodeLineAbove() const { return lastCodeAbove_; }

  std::optional<Declaration> DeclarationHere() const {
    if (!StartsStatement("PFSpfs") || !IsOneOf(second_, "URTurt") || inTypeBlock_) {
      return std::nullopt;
    }
    return ParseDeclaration(current_);
  }

  bool ClosesProcedureHere() const {
    const bool mayClose = StartsStatement("Ee0123456789") || ContainsOneOf<':'>(current_);
    return mayClose && !isComment_ && ClosesProcedure(current_, above_);
  }

  bool IsConditionalHere() const {
    return StartsStatement("#") && IsConditionalCompilationLine(current_);
  }

  void Next() {
    if (inTypeBlock_) {
      inTypeBlock_ = !ClosesTypeBlock(current_);
    } else if (StartsStatement("PTEpte")) {
      inTypeBlock_ = OpensTypeBlock(current_) && !ClosesTypeBlock(current_);
    }
    above_ = IsContinued(current_) ? ContinuedBelow(current_, above_) : Continues::kNothing;
    ++line_;
    Read();
  }

 private:
  bool StartsStatement(std::string_view firstCharacters) const {
    return above_ == Continues::kNothing && IsOneOf(first_, firstCharacters);
  }

  void Read() {
    lastCodeAbove_ = lastCode_;
    if (AtEnd()) return;
    const std::string_view line = text_.Line(line_);
    const std::string_view code = TrimLeft(line, " \t");
    // A lone underscore continues only behind a blank, so one blank of the indent stays.
    current_ = line.size() > code.size() ? line.substr(line.size() - code.size() - 1) : line;
    first_ = code.empty() ? ' ' : code[0];
    second_ = code.size() < 2 ? ' ' : code[1];
    const bool mayBeComment = above_ == Continues::kComment || IsOneOf(first_, "'Rr");
    isComment_ = mayBeComment && IsCommentLine(code, above_);
    const bool continuesCode = above_ != Continues::kNothing && lastCode_ == line_ - 1;
    if (continuesCode || (!code.empty() && !isComment_)) lastCode_ = line_;
  }

  const ModuleText& text_;
  int line_;
  std::string_view current_;
  char first_ = ' ';
  char second_ = ' ';
  bool isComment_ = false;
  Continues above_ = Continues::kNothing;
  bool inTypeBlock_ = false;
  int lastCode_ = 0;
  int lastCodeAbove_ = 0;
};

/// The last line that continues the given one.
int LastContinuingLine(const ModuleText& text, int line) {
  while (line < text.Count() && IsContinued(text.Line(line))) ++line;
  return line;
}

/// Where a procedure ends, and the last line that was looked at to know it.
struct Ending {
  int line;
  int dependsOnLine;
};

Ending ClosedAt(const ModuleText& text, int closingLine) {
  const int last = LastContinuingLine(text, closingLine);
  return {last, IsContinued(text.Line(last)) ? kWholeModule : last};
}

/// The cursor stands on the declaration. Declarations with a # line between them are alternative
/// heads of one procedure; any other declaration before a closing statement ends it unclosed.
Ending FindEnding(const ModuleText& text, LineCursor cursor) {
  bool conditionalLineSinceHead = false;
  for (bool atHead = true; !cursor.AtEnd(); cursor.Next(), atHead = false) {
    if (!atHead && cursor.DeclarationHere()) {
      if (!conditionalLineSinceHead) return {cursor.LastCodeLineAbove(), cursor.LineNumber()};
      conditionalLineSinceHead = false;
    }
    if (cursor.ClosesProcedureHere()) return ClosedAt(text, cursor.LineNumber());
    if (cursor.IsConditionalHere()) conditionalLineSinceHead = true;
  }
  return {cursor.LastCodeLine(), kWholeModule};
}

}  // namespace

int ProcedureIndex::DeclarationLines(const ModuleText& text) {
  if (entries_.empty() && !complete_) ScanNext(text);
  return entries_.empty() ? text.Count() : declarationLines_;
}

const ProcedureIndex::Procedure* ProcedureIndex::At(const ModuleText& text, int line) {
  while (!IsKnownBelow(line)) ScanNext(text);
  const auto entry = std::partition_point(entries_.begin(), entries_.end(),
                                          [line](const Entry& e) { return e.end < line; });
  if (entry != entries_.end()) {
    return entry->start <= line ? Whole(text, static_cast<std::size_t>(entry - entries_.begin()))
                                : nullptr;
  }
  return IsBelowTheLast(text, line) ? Whole(text, entries_.size() - 1) : nullptr;
}

bool ProcedureIndex::IsBelowTheLast(const ModuleText& text, int line) const {
  return below_ == LinesBelow::kTheLastProcedures && !entries_.empty() && line <= text.Count();
}

/// The procedure with the lines below it where they are its own.
const ProcedureIndex::Procedure* ProcedureIndex::Whole(const ModuleText& text, std::size_t place) {
  if (below_ == LinesBelow::kNobodys) return &entries_[place];
  const bool isLast = place + 1 == entries_.size() && !ScanNext(text);
  if (!isLast) return &entries_[place];
  last_ = entries_[place];
  last_.end = text.Count();
  return &last_;
}

const ProcedureIndex::Procedure* ProcedureIndex::FirstNamed(const ModuleText& text,
                                                            std::string_view name, ProcKind kind) {
  for (std::size_t i = 0; i < entries_.size() || ScanNext(text); ++i) {
    if (entries_[i].kind == kind && EqualNames(NameOf(text, entries_[i]), name))
      return Whole(text, i);
  }
  return nullptr;
}

std::string_view ProcedureIndex::NameOf(const ModuleText& text, const Procedure& procedure) {
  const std::string_view line = TrimRight(text.Line(procedure.body), " \t");
  return line.substr(line.size() - procedure.nameFromEnd, procedure.nameSize);
}

void ProcedureIndex::NoteEdit(int firstLine) {
  complete_ = false;
  while (!entries_.empty() && entries_.back().dependsOnLine >= firstLine) entries_.pop_back();
}

/// Finds the first procedure behind the last known one; false when there is none.
bool ProcedureIndex::ScanNext(const ModuleText& text) {
  if (complete_) return false;
  const int first = entries_.empty() ? 1 : entries_.back().end + 1;
  LineCursor cursor(text, first);
  while (!cursor.AtEnd() && !cursor.DeclarationHere()) cursor.Next();
  if (cursor.AtEnd()) {
    complete_ = true;
    return false;
  }
  Entry entry;
  if (entries_.empty()) declarationLines_ = cursor.LastCodeLineAbove();
  entry.start = entries_.empty() ? declarationLines_ + 1 : first;
  entry.body = cursor.LineNumber();
  const Declaration declaration = *cursor.DeclarationHere();
  entry.kind = declaration.kind;
  entry.nameFromEnd =
      static_cast<std::uint32_t>(TrimRight(cursor.Text(), " \t").end() - declaration.name.begin());
  entry.nameSize = static_cast<std::uint32_t>(declaration.name.size());
  const Ending ending = FindEnding(text, cursor);
  entry.end = ending.line;
  entry.dependsOnLine = ending.dependsOnLine;
  entries_.push_back(entry);
  return true;
}

}  // namespace brimwork
