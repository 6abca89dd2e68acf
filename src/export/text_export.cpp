#include "export/text_export.h"

#include "export/modSaveAs.h"
#include "transform/code_source.h"

namespace brimwork {

bool ExportText(const ExportTools& tools, RichTextBox& editor, std::string& path) {
  return WriteOrReport(tools, [&] {
    if (path.empty()) path = AskWhereToSave(tools.environment, editor.hWnd(), "txt");
    if (path.empty()) return false;
    const HourglassPointer hourglass(tools.environment.screen);
    editor.SetWordWrap(false);
    editor.SaveFile(path, SaveAs::kPlainText);
    const ShownProgress shown(tools.form, "Exporting To Text",
                              "Now Converting To Text and Saving " + FileNameOf(path));
    tools.form.UpdateProgressBar(100, 100);
    return true;
  });
}

}  // namespace brimwork
