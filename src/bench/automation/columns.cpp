#include "bench/automation/columns.h"

#include <string>

#include "bench/model/text_positions.h"

namespace brimwork::bench {
namespace {

/// A column of a line that converts; convert is asked with the line's text and a column in it.
template <typename Convert>
int Converted(CodeModule& module, int line, int column, Convert convert) {
  if (column < 1 || line < 1 || line > module.CountOfLines()) return column;
  return convert(module.Lines(line, 1), column);
}

template <typename Convert>
Selection Converted(CodeModule& module, const Selection& from, Convert convert) {
  return {from.startLine, Converted(module, from.startLine, from.startColumn, convert),
          from.endLine, Converted(module, from.endLine, from.endColumn, convert)};
}

}  // namespace

Selection InUnits(CodeModule& module, const Selection& characters) {
  return Converted(module, characters, [](const std::string& line, int column) {
    return static_cast<int>(UnitsBefore(line, column)) + 1;
  });
}

Selection InCharacters(CodeModule& module, const Selection& units) {
  return Converted(module, units, [](const std::string& line, int column) {
    return ColumnBehind(line, static_cast<std::size_t>(column - 1));
  });
}

}  // namespace brimwork::bench
