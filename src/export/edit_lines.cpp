#include "export/edit_lines.h"

namespace brimwork {

int GetLineCount(RichTextBox& editor) { return editor.LineCount(); }

int GetCurrentLineStart(RichTextBox& editor) { return editor.LineIndexOfCaret(); }

void GetCurrentLine(RichTextBox& editor, std::string& line) {
  line.clear();
  const int number = editor.LineFromCaret();
  if (editor.LineIndexOfCaret() == -1) return;
  if (editor.LineLength(editor.SelStart()) < 1) return;
  editor.ReadLine(number, line);
}

}  // namespace brimwork
