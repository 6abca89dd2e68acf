#include "memory/memory_code_pane.h"

#include <algorithm>

#include "environment/text.h"

namespace brimwork {
namespace {

struct Position {
  int line = 1;
  int column = 1;
  auto operator<=>(const Position&) const = default;
};

/// Draws a position back into the text; the column behind the last character is part of it.
Position Clamped(const ModuleText& text, int line, int column) {
  if (text.Count() == 0 || line < 1) return {};
  if (line > text.Count()) return {text.Count(), CharacterCount(text.Line(text.Count())) + 1};
  if (column <= 1) return {line, 1};
  return {line, std::min(column, CharacterCount(text.Line(line)) + 1)};
}

std::string_view Before(const ModuleText& text, Position position) {
  if (position.line > text.Count()) return {};
  const std::string_view line = text.Line(position.line);
  return line.substr(0, ByteOffset(line, position.column - 1));
}

std::string_view Behind(const ModuleText& text, Position position) {
  if (position.line > text.Count()) return {};
  const std::string_view line = text.Line(position.line);
  return line.substr(ByteOffset(line, position.column - 1));
}

}  // namespace

void MemoryCodePane::SetSelection(const Selection& selection) {
  const ModuleText& text = module_->Text();
  const Position from = Clamped(text, selection.startLine, selection.startColumn);
  const Position to = Clamped(text, selection.endLine, selection.endColumn);
  const auto [start, end] = std::minmax({from, to});
  selection_ = {start.line, start.column, end.line, end.column};
}

std::string MemoryCodePane::SelectedText() const {
  const ModuleText& text = module_->Text();
  const Position start{selection_.startLine, selection_.startColumn};
  const Position end{selection_.endLine, selection_.endColumn};
  if (start.line == end.line) {
    return std::string(Before(text, end).substr(Before(text, start).size()));
  }
  std::string selected(Behind(text, start));
  for (int line = start.line + 1; line < end.line; ++line) {
    selected.append("\r\n").append(text.Line(line));
  }
  return selected.append("\r\n").append(Before(text, end));
}

void MemoryCodePane::Copy(Clipboard& clipboard) {
  const std::string selected = SelectedText();
  if (!selected.empty()) clipboard.SetText(selected);
}

void MemoryCodePane::Paste(Clipboard& clipboard) { Type(clipboard.GetText()); }

void MemoryCodePane::SelectAll() {
  const int lines = module_->CountOfLines();
  SetSelection({1, 1, lines + 1, 1});
}

void MemoryCodePane::Delete() {
  const bool nothingSelected =
      selection_.startLine == selection_.endLine && selection_.startColumn == selection_.endColumn;
  if (nothingSelected) {
    const ModuleText& text = module_->Text();
    const bool atLineEnd = Behind(text, {selection_.startLine, selection_.startColumn}).empty();
    if (atLineEnd && selection_.startLine >= text.Count()) return;
    if (atLineEnd) {
      selection_.endLine += 1;
      selection_.endColumn = 1;
    } else {
      selection_.endColumn += 1;
    }
  }
  Type("");
}

void MemoryCodePane::Type(std::string_view typed) {
  const ModuleText& text = module_->Text();
  const Selection old = selection_;
  std::string lines(Before(text, {old.startLine, old.startColumn}));
  lines.append(typed);
  const auto typedLines = SplitLines(lines);
  const int caretLine = old.startLine + static_cast<int>(typedLines.size()) - 1;
  const int caretColumn = CharacterCount(typedLines.back()) + 1;
  lines.append(Behind(text, {old.endLine, old.endColumn}));
  if (old.endLine > old.startLine)
    module_->DeleteLines(old.startLine + 1, old.endLine - old.startLine);
  if (text.Count() == 0) {
    module_->InsertLines(1, lines);
  } else {
    module_->ReplaceLine(old.startLine, lines);
  }
  SetSelection({caretLine, caretColumn, caretLine, caretColumn});
}

}  // namespace brimwork
