#include "windows/object_model/unit_range.h"

#include "windows/object_model/columns.h"

namespace brimwork::windows {
namespace {

// The first column is the same in both, so its line need not be read.

long UnitColumnIn(CodeModule& module, int line, int column) {
  return column < 2 ? column : UnitColumn(module.Lines(line, 1), column);
}

int CharacterColumnIn(CodeModule& module, long line, long column) {
  if (column < 2) return static_cast<int>(column);
  return CharacterColumn(module.Lines(static_cast<int>(line), 1), static_cast<int>(column));
}

}  // namespace

UnitRange UnitsOf(CodeModule& module, const Selection& range) {
  return {range.startLine, UnitColumnIn(module, range.startLine, range.startColumn), range.endLine,
          UnitColumnIn(module, range.endLine, range.endColumn)};
}

Selection CharactersOf(CodeModule& module, const UnitRange& range) {
  return {static_cast<int>(range.startLine),
          CharacterColumnIn(module, range.startLine, range.startColumn),
          static_cast<int>(range.endLine),
          CharacterColumnIn(module, range.endLine, range.endColumn)};
}

}  // namespace brimwork::windows
