#include "export/modExportCode.h"

#include <memory>
#include <utility>

#include "export/html_export.h"
#include "export/rtf_export.h"
#include "export/text_export.h"
#include "ide_windows/modTweakWindow.h"
#include "settings/setting_keys.h"
#include "transform/borrowed_clipboard.h"
#include "transform/code_source.h"

namespace brimwork {
namespace {

std::string WholeCode(CodeModule& module) {
  const int lines = module.CountOfLines();
  return lines > 0 ? module.Lines(1, lines) : std::string();
}

/// An object that a step cannot do without.
template <class Object>
Object& Required(const std::shared_ptr<Object>& object) {
  if (!object) throw RunTimeError(error_number::kObjectNotSet, "there is no code window");
  return *object;
}

/// Copies the selection as the user would, and gives the user's own text back.
std::string SelectedCode(Environment& environment) {
  const auto pane = environment.vbe.ActiveCodePane();
  const BorrowedClipboard borrowed(environment.clipboard);
  environment.clipboard.Clear();
  Required(Required(pane).ContainingWindow()).SetFocus();
  environment.keyboard.SendKeys("^(c)", true);
  return environment.clipboard.GetText();
}

void WriteInFormat(const ExportTools& tools, RichTextBox& editor, std::string_view format) {
  if (format == export_format::kText) {
    ExportToFormat(tools, editor, ExportKind::kText, nullptr);
  } else if (format == export_format::kRtf) {
    ExportToFormat(tools, editor, ExportKind::kRtf, &tools.form.rtfTemp());
  } else if (format == export_format::kHtm) {
    ExportToFormat(tools, editor, ExportKind::kHtml, nullptr);
  } else if (format == export_format::kQuickExport) {
    const std::string folder = GetCommandSetting(tools.environment, setting::kQuickExportPath);
    QuickExportToFile(tools, editor, folder + std::string(kQuickExportFile));
  }
}

void TellOfError(Environment& environment) {
  environment.dialogs.MsgBox("Error encountered while exporting code",
                             message_box::kCritical + message_box::kOkOnly, "Error Encountered");
}

/// Freezes the drawing of a text control for the guard's life.
class ControlLock {
 public:
  ControlLock(Environment& environment, RichTextBox& control)
      : environment_(environment), handle_(control.hWnd()) {
    SetWindowUpdateLock(environment_, true, handle_, "");
  }
  ~ControlLock() { SetWindowUpdateLock(environment_, false, handle_, ""); }
  ControlLock(const ControlLock&) = delete;
  ControlLock& operator=(const ControlLock&) = delete;

 private:
  Environment& environment_;
  WindowHandle handle_;
};

bool ExportRtfLocked(const ExportTools& tools, RichTextBox& editor, RichTextBox& work,
                     KeywordList& keywords) {
  const ControlLock editorLock(tools.environment, editor);
  const ControlLock workLock(tools.environment, work);
  return ExportRtf(tools, editor, work, keywords);
}

bool WriteKind(const ExportTools& tools, RichTextBox& editor, ExportKind kind, RichTextBox* work,
               KeywordList& keywords) {
  switch (kind) {
    case ExportKind::kText: {
      std::string asked;
      return ExportText(tools, editor, asked);
    }
    case ExportKind::kRtf:
      return work != nullptr && ExportRtfLocked(tools, editor, *work, keywords);
    case ExportKind::kHtml:
      return ExportHtml(tools, editor, keywords);
  }
  return false;
}

}  // namespace

void ExportCode(const ExportTools& tools, std::string_view format, bool selectedOnly) {
  Environment& environment = tools.environment;
  WithCodeSource(environment, [&](CodeModule& module) {
    const auto error = ResumeNext([&] {
      std::string code = selectedOnly ? SelectedCode(environment) : WholeCode(module);
      RichTextBox& editor = tools.form.rtf();
      editor.SetText(std::move(code));
      WriteInFormat(tools, editor, format);
    });
    if (error) TellOfError(environment);
  });
}

bool ExportToFormat(const ExportTools& tools, RichTextBox& editor, ExportKind kind,
                    RichTextBox* work) {
  return WriteOrReport(tools, [&] {
    KeywordList keywords = LoadKeywordList(tools.environment);
    return WriteKind(tools, editor, kind, work, keywords);
  });
}

bool QuickExportToFile(const ExportTools& tools, RichTextBox& editor, std::string path) {
  const HourglassPointer hourglass(tools.environment.screen);
  return ExportText(tools, editor, path);
}

KeywordList LoadKeywordList(Environment& environment) {
  return KeywordList(GetCommandSetting(environment, setting::kKeyWordList));
}

}  // namespace brimwork
