#include "export/edit_lines.h"

namespace brimwork {

int GetLineCount(RichTextBox& editor) { return editor.LineCount(); }

int GetCurrentLineStart(RichTextBox& editor) { return editor.LineIndexOfCaret(); }

std::string GetCurrentLine(RichTextBox& editor) {
  const int line = editor.LineFromCaret();
  if (editor.LineIndexOfCaret() == -1) return {};
  if (editor.LineLength(editor.SelStart()) < 1) return {};
  return editor.Line(line);
}

}  // namespace brimwork
