#include "windows/object_model/com_code_module.h"

#include <algorithm>
#include <functional>

#include "environment/resume_next.h"
#include "environment/run_time_error.h"
#include "environment/text.h"
#include "windows/object_model/unit_range.h"

namespace brimwork::windows {
namespace {

using win32::Variant;

constexpr int kToTheEnd = -1;

void CheckLine(int line) {
  if (line < 1)
    throw RunTimeError(error_number::kSubscriptOutOfRange, "Subscript out of range", line);
}

/// A range to the module's end goes to the end of its last line.
Selection WithWholeEnd(Selection range) {
  if (range.endLine == kToTheEnd) range.endColumn = kToTheEnd;
  return range;
}

}  // namespace

std::string ComCodeModule::Name() { return ToText(module_.Get(L"Name")); }

std::uintptr_t ComCodeModule::Identity() {
  if (identity_ == 0) {
    const auto failure =
        ResumeNext([&] { identity_ = std::hash<std::string>()(FoldName(QualifiedName())); });
    if (failure) identity_ = module_.Identity();
  }
  return identity_;
}

int ComCodeModule::CountOfLines() { return ToNumber(module_.Get(L"CountOfLines")); }

int ComCodeModule::CountOfDeclarationLines() {
  return ToNumber(module_.Get(L"CountOfDeclarationLines"));
}

std::string ComCodeModule::Lines(int startLine, int count) {
  std::string text;
  ReadLines(startLine, count, text);
  return text;
}

void ComCodeModule::ReadLine(int line, std::string& text) { ReadLines(line, 1, text); }

void ComCodeModule::InsertLines(int line, std::string_view text) {
  CheckLine(line);
  module_.Call(L"InsertLines", std::min(line, CountOfLines() + 1), text);
}

void ComCodeModule::DeleteLines(int startLine, int count) {
  CheckLine(startLine);
  const int removed = std::min(count, CountOfLines() - startLine + 1);
  if (removed >= 1) module_.Call(L"DeleteLines", startLine, removed);
}

void ComCodeModule::ReplaceLine(int line, std::string_view text) {
  CheckLine(line);
  module_.Call(L"ReplaceLine", line, text);
}

ProcedureName ComCodeModule::ProcOfLine(int line) {
  CheckLine(line);
  ProcedureName found;
  ReadWhereThere(line, [&] {
    long kind = 0;
    ToText(module_.Get(L"ProcOfLine", line, Variant::ByReference(kind)), found.name);
    found.kind = static_cast<ProcKind>(kind);
  });
  return found;
}

int ComCodeModule::ProcStartLine(std::string_view name, ProcKind kind) {
  return ToNumber(module_.Get(L"ProcStartLine", name, static_cast<int>(kind)));
}

int ComCodeModule::ProcCountLines(std::string_view name, ProcKind kind) {
  return ToNumber(module_.Get(L"ProcCountLines", name, static_cast<int>(kind)));
}

int ComCodeModule::ProcBodyLine(std::string_view name, ProcKind kind) {
  return ToNumber(module_.Get(L"ProcBodyLine", name, static_cast<int>(kind)));
}

bool ComCodeModule::Find(std::string_view target, Selection& range) {
  CheckLine(range.startLine);
  if (target.empty() || range.startLine > CountOfLines()) return false;
  constexpr bool kWholeWord = false;
  constexpr bool kMatchCase = true;
  constexpr bool kPattern = false;
  UnitRange found = UnitsOf(*this, WithWholeEnd(range));
  const bool isFound = ToTruth(
      module_.Call(L"Find", target, Variant::ByReference(found.startLine),
                   Variant::ByReference(found.startColumn), Variant::ByReference(found.endLine),
                   Variant::ByReference(found.endColumn), kWholeWord, kMatchCase, kPattern));
  if (isFound) range = CharactersOf(*this, found);
  return isFound;
}

/// No two projects that are open together have one name, and no two modules of a project.
std::string ComCodeModule::QualifiedName() {
  const DispatchObject component = module_.Part(ObjectKind::kComponent, L"Parent");
  const DispatchObject components = component.Part(ObjectKind::kComponents, L"Collection");
  const DispatchObject project = components.Part(ObjectKind::kProject, L"Parent");
  return ToText(project.Get(L"Name")) + '.' + Name();
}

void ComCodeModule::ReadLines(int startLine, int count, std::string& text) {
  CheckLine(startLine);
  text.clear();
  if (count < 1) return;
  ReadWhereThere(startLine, [&] { ToText(module_.Get(L"Lines", startLine, count), text); });
}

// Lines are read far more often than any other call is made, so whether they are there is looked at
// only when reading them fails.
template <class Step>
void ComCodeModule::ReadWhereThere(int line, Step step) {
  const auto failure = ResumeNext(step);
  if (failure && line <= CountOfLines()) throw *failure;
}

}  // namespace brimwork::windows
