#include "export/html_export.h"

#include "environment/text.h"
#include "export/edit_lines.h"
#include "export/html_lines.h"
#include "export/modSaveAs.h"
#include "transform/code_source.h"

namespace brimwork {
namespace {

/// Converts line after line, the caret moving down with it.
void WriteLines(const ExportTools& tools, RichTextBox& editor, KeywordList& keywords,
                OutputFile& file) {
  HtmlLines lines(keywords);
  const int count = GetLineCount(editor);
  editor.SetSelStart(1);
  std::string line;
  for (int i = 1; i <= count; ++i) {
    GetCurrentLine(editor, line);
    line += ' ';
    file.PrintLine(lines.Convert(line));
    // One character into the next line: the line's blank is not in the control, its CR LF is.
    editor.SetSelStart(GetCurrentLineStart(editor) + CharacterCount(line) + 2);
    tools.form.UpdateProgressBar(i, count);
  }
}

}  // namespace

bool ExportHtml(const ExportTools& tools, RichTextBox& editor, KeywordList& keywords) {
  return WriteOrReport(tools, [&] {
    editor.SetWordWrap(false);
    const std::string path = AskWhereToSave(tools.environment, editor.hWnd(), "htm");
    if (path.empty()) return false;
    const HourglassPointer hourglass(tools.environment.screen);
    const ShownProgress shown(tools.form, "Exporting to HTM",
                              "Now Converting To HTML and Saving " + FileNameOf(path));
    const auto file =
        tools.environment.textFiles.OpenForOutput(path, UnencodableText::kCharacterReference);
    file->PrintLine("<pre>");
    WriteLines(tools, editor, keywords, *file);
    file->PrintLine("</pre>");
    file->Close();
    return true;
  });
}

}  // namespace brimwork
