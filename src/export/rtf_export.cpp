#include "export/rtf_export.h"

#include <utility>

#include "environment/text.h"
#include "export/code_coloring.h"
#include "export/modSaveAs.h"
#include "transform/code_source.h"

namespace brimwork {
namespace {

constexpr Color kBlack = Rgb(0, 0, 0);

void SelectAll(RichTextBox& control, int length) {
  control.SetSelStart(0);
  control.SetSelLength(length);
}

void SetInPlainType(RichTextBox& work, int length) {
  SelectAll(work, length);
  work.SetSelColor(kBlack);
  work.SetSelFontName("Courier New");
  work.SetSelFontSize(10);
}

/// Formats the editor's text by way of the working copy.
void Format(const ExportTools& tools, RichTextBox& editor, RichTextBox& work,
            KeywordList& keywords) {
  editor.SetWordWrap(false);
  work.SetWordWrap(false);
  work.SetText(editor.Text());
  std::string text = work.Text();
  const int length = CharacterCount(text);
  SetInPlainType(work, length);
  CodeColoring(tools, work, keywords, std::move(text)).Run();
  SelectAll(work, length);
  editor.SetTextRTF(work.SelRTF());
}

}  // namespace

bool ExportRtf(const ExportTools& tools, RichTextBox& editor, RichTextBox& work,
               KeywordList& keywords) {
  return WriteOrReport(tools, [&] {
    const std::string path = AskWhereToSave(tools.environment, editor.hWnd(), "rtf");
    if (path.empty()) return false;
    const HourglassPointer hourglass(tools.environment.screen);
    const ShownProgress shown(tools.form, "Exporting To RTF",
                              "Now Converting To RTF and Saving " + FileNameOf(path));
    Format(tools, editor, work, keywords);
    editor.SaveFile(path, SaveAs::kRichText);
    return true;
  });
}

}  // namespace brimwork
