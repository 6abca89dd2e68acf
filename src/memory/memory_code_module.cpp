#include "memory/memory_code_module.h"

#include <algorithm>

#include "environment/run_time_error.h"
#include "environment/text.h"

namespace brimwork {
namespace {

void CheckLine(int line) {
  if (line < 1)
    throw RunTimeError(error_number::kSubscriptOutOfRange, "Subscript out of range", line);
}

/// The byte range of [startColumn, endColumn) in a line; an end column of -1 is the line's end.
std::string_view Columns(std::string_view line, int startColumn, int endColumn) {
  const std::size_t first = ByteOffset(line, startColumn - 1);
  if (endColumn < 0) return line.substr(first);
  const std::size_t last = ByteOffset(line, endColumn - 1);
  return line.substr(first, std::max(first, last) - first);
}

/// Blanks around a line say nothing about procedures, so re-indenting a module need not find them
/// again.
bool DiffersInBlanksOnly(std::string_view before, std::string_view after) {
  return TrimBlanksAndTabs(before) == TrimBlanksAndTabs(after) &&
         IsContinued(before) == IsContinued(after);
}

}  // namespace

MemoryCodeModule::MemoryCodeModule(std::string name, ModuleText text)
    : name_(std::move(name)), text_(std::move(text)) {}

std::string MemoryCodeModule::Lines(int startLine, int count) {
  CheckLine(startLine);
  const int endLine = count > text_.Count() - startLine ? text_.Count() : startLine + count - 1;
  if (startLine > endLine) return {};
  return text_.Joined(startLine, endLine);
}

void MemoryCodeModule::ReadLine(int line, std::string& text) {
  CheckLine(line);
  text = line <= text_.Count() ? text_.Line(line) : std::string_view{};
}

void MemoryCodeModule::InsertLines(int line, std::string_view text) {
  CheckLine(line);
  const int at = std::min(line, text_.Count() + 1);
  const int before = text_.Count();
  text_.Insert(at, text);
  ++revision_;
  if (latestBody_ >= at) latestBody_ += text_.Count() - before;
  index_.NoteEdit(at);
}

void MemoryCodeModule::DeleteLines(int startLine, int count) {
  CheckLine(startLine);
  const int removed = std::min(count, text_.Count() - startLine + 1);
  if (removed < 1) return;
  text_.Delete(startLine, removed);
  ++revision_;
  if (latestBody_ >= startLine + removed) {
    latestBody_ -= removed;
  } else if (latestBody_ >= startLine) {
    latestBody_ = 0;
  }
  index_.NoteEdit(startLine);
}

void MemoryCodeModule::ReplaceLine(int line, std::string_view text) {
  CheckLine(line);
  if (line > text_.Count()) {
    throw RunTimeError(error_number::kSubscriptOutOfRange, "Subscript out of range", line);
  }
  const bool isBlanksOnly = DiffersInBlanksOnly(text_.Line(line), text);
  const int before = text_.Count();
  text_.Replace(line, text);
  ++revision_;
  if (isBlanksOnly) return;
  if (latestBody_ > line) latestBody_ += text_.Count() - before;
  index_.NoteEdit(line);
}

ProcedureName MemoryCodeModule::ProcOfLine(int line) {
  CheckLine(line);
  const auto* procedure = index_.At(text_, line);
  if (procedure == nullptr) return {};
  latestBody_ = procedure->body;
  return {std::string(ProcedureIndex::NameOf(text_, *procedure)), procedure->kind};
}

int MemoryCodeModule::ProcStartLine(std::string_view name, ProcKind kind) {
  return Named(name, kind).start;
}

int MemoryCodeModule::ProcCountLines(std::string_view name, ProcKind kind) {
  const auto& procedure = Named(name, kind);
  return procedure.end - procedure.start + 1;
}

int MemoryCodeModule::ProcBodyLine(std::string_view name, ProcKind kind) {
  return Named(name, kind).body;
}

bool MemoryCodeModule::Find(std::string_view target, Selection& range) {
  CheckLine(range.startLine);
  if (target.empty()) return false;
  const int endLine = range.endLine < 0 ? text_.Count() : std::min(range.endLine, text_.Count());
  for (int line = range.startLine; line <= endLine; ++line) {
    const std::string_view text = text_.Line(line);
    if (text.size() < target.size()) continue;
    const int startColumn = line == range.startLine ? range.startColumn : 1;
    const int endColumn = line == range.endLine ? range.endColumn : -1;
    const std::string_view searched = Columns(text, startColumn, endColumn);
    const auto found = searched.find(target);
    if (found == std::string_view::npos) continue;
    const int column = startColumn + CharacterCount(searched.substr(0, found));
    range = {line, column, line, column + CharacterCount(target)};
    return true;
  }
  return false;
}

/// The procedure meant by a name: the one asked for last when it bears it, else the first.
const ProcedureIndex::Procedure& MemoryCodeModule::Named(std::string_view name, ProcKind kind) {
  if (latestBody_ != 0) {
    const auto* latest = index_.At(text_, latestBody_);
    if (latest != nullptr && latest->body == latestBody_ && latest->kind == kind &&
        EqualNames(ProcedureIndex::NameOf(text_, *latest), name)) {
      return *latest;
    }
  }
  if (const auto* first = index_.FirstNamed(text_, name, kind)) return *first;
  throw RunTimeError(error_number::kProcedureNotDefined,
                     "Sub, Function or Property not defined: " + std::string(name));
}

}  // namespace brimwork
