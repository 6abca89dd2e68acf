#include "windows/object_model/com_code_pane.h"

#include <algorithm>

#include "environment/text.h"
#include "windows/object_model/com_window.h"
#include "windows/object_model/unit_range.h"

namespace brimwork::windows {
namespace {

using win32::Variant;

struct Position {
  int line = 1;
  int column = 1;
  auto operator<=>(const Position&) const = default;
};

/// Draws a position back into the text; the column behind the last character is part of it.
Position Clamped(CodeModule& module, int line, int column) {
  const int count = module.CountOfLines();
  if (count == 0 || line < 1) return {};
  const int behindTheEnd = CharacterCount(module.Lines(std::min(line, count), 1)) + 1;
  if (line > count) return {count, behindTheEnd};
  return {line, std::clamp(column, 1, behindTheEnd)};
}

Selection Clamped(CodeModule& module, const Selection& selection) {
  const Position from = Clamped(module, selection.startLine, selection.startColumn);
  const Position to = Clamped(module, selection.endLine, selection.endColumn);
  const auto [start, end] = std::minmax({from, to});
  return {start.line, start.column, end.line, end.column};
}

}  // namespace

std::shared_ptr<CodeModule> ComCodePane::Module() {
  return pane_.GetAs<ComCodeModule>(L"CodeModule");
}

std::shared_ptr<Window> ComCodePane::ContainingWindow() {
  return pane_.GetAs<ComWindow>(L"Window");
}

Selection ComCodePane::GetSelection() {
  UnitRange selected;
  pane_.Call(L"GetSelection", Variant::ByReference(selected.startLine),
             Variant::ByReference(selected.startColumn), Variant::ByReference(selected.endLine),
             Variant::ByReference(selected.endColumn));
  ComCodeModule module = Code();
  return CharactersOf(module, selected);
}

void ComCodePane::SetSelection(const Selection& selection) {
  ComCodeModule module = Code();
  const UnitRange range = UnitsOf(module, Clamped(module, selection));
  pane_.Call(L"SetSelection", static_cast<int>(range.startLine),
             static_cast<int>(range.startColumn), static_cast<int>(range.endLine),
             static_cast<int>(range.endColumn));
}

ComCodeModule ComCodePane::Code() const {
  return ComCodeModule(pane_.Part(ComCodeModule::kKind, L"CodeModule"));
}

}  // namespace brimwork::windows
