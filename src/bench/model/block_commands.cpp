#include "bench/model/block_commands.h"

#include <algorithm>
#include <string>
#include <string_view>

#include "environment/text.h"

namespace brimwork::bench {
namespace {

constexpr int kIndentColumns = 4;

using LineEdit = std::string (*)(std::string_view line);

int LastLine(const Selection& selection) {
  const bool endsBehindALine = selection.endLine > selection.startLine && selection.endColumn == 1;
  return endsBehindALine ? selection.endLine - 1 : selection.endLine;
}

/// A column of a line that became longer or shorter; its start stays its start.
int Moved(int column, int growth) { return column == 1 ? 1 : std::max(1, column + growth); }

int EditLine(MemoryCodeModule& module, int line, LineEdit edit) {
  const std::string before = module.Lines(line, 1);
  const std::string after = edit(before);
  if (after != before) module.ReplaceLine(line, after);
  return CharacterCount(after) - CharacterCount(before);
}

void EditLines(MemoryCodePane& pane, LineEdit edit) {
  MemoryCodeModule& module = *pane.Code();
  Selection selection = pane.GetSelection();
  const int last = std::min(LastLine(selection), module.CountOfLines());
  for (int line = selection.startLine; line <= last; ++line) {
    const int growth = EditLine(module, line, edit);
    if (line == selection.startLine) selection.startColumn = Moved(selection.startColumn, growth);
    if (line == selection.endLine) selection.endColumn = Moved(selection.endColumn, growth);
  }
  pane.SetSelection(selection);
}

std::string Commented(std::string_view line) { return "'" + std::string(line); }

std::string Uncommented(std::string_view line) {
  const std::string_view text = TrimLeft(line, " \t");
  if (!text.starts_with('\'')) return std::string(line);
  return std::string(line).erase(line.size() - text.size(), 1);
}

std::string Indented(std::string_view line) {
  return TrimBlanksAndTabs(line).empty() ? std::string(line)
                                         : std::string(kIndentColumns, ' ').append(line);
}

std::string Outdented(std::string_view line) {
  if (line.starts_with('\t')) return std::string(line.substr(1));
  const auto blanks = std::min<std::size_t>(line.size() - TrimLeft(line).size(), kIndentColumns);
  return std::string(line.substr(blanks));
}

}  // namespace

void CommentBlock(MemoryCodePane& pane) { EditLines(pane, Commented); }

void UncommentBlock(MemoryCodePane& pane) { EditLines(pane, Uncommented); }

void IndentBlock(MemoryCodePane& pane) { EditLines(pane, Indented); }

void OutdentBlock(MemoryCodePane& pane) { EditLines(pane, Outdented); }

}  // namespace brimwork::bench
