// Rich text controls of the system, which are never shown: their windows serve as a text engine.
#pragma once

#include <windows.h>

#include <richedit.h>

#include <memory>
#include <optional>
#include <string>

#include "environment/rich_text_box.h"
#include "win32/system_library.h"
#include "windows/desktop/code_page_text.h"
#include "windows/desktop/rich_edit_text.h"

namespace brimwork::windows {

/// Nobody but this object writes into the control, so what its text is and where its lines are is
/// known here; the control is asked for formats and rich text alone. Formatting without a selection
/// does nothing, unless there is no text: what comes into the control next takes the format.
class RichEditBox : public RichTextBox {
 public:
  /// library: the one that the control's class is in.
  RichEditBox(std::shared_ptr<win32::SystemLibrary> library, const CodePageText& encoding);
  RichEditBox(const RichEditBox&) = delete;
  RichEditBox& operator=(const RichEditBox&) = delete;
  ~RichEditBox() override;

  WindowHandle hWnd() override;
  std::string Text() override;
  void SetText(std::string text) override;
  int SelStart() override { return selStart_; }
  void SetSelStart(int position) override;
  int SelLength() override { return selLength_; }
  void SetSelLength(int length) override;
  void SetSelColor(Color color) override;
  void SetSelFontName(std::string_view name) override;
  void SetSelFontSize(int points) override;
  void SetSelText(std::string_view text) override;
  std::string SelRTF() override;
  void SetTextRTF(std::string_view richText) override;
  /// Plain text is written in the code page: error 5 for a character that it has not. Rich text
  /// that the control took in is written as it came.
  void SaveFile(std::string_view path, SaveAs type) override;
  void SetWordWrap(bool wraps) override;
  int LineCount() override { return Content().LineCount(); }
  int LineFromCaret() override { return Content().LineAt(selStart_); }
  int LineIndexOfCaret() override { return Content().LineStart(LineFromCaret()); }
  int LineLength(int position) override { return Content().LineLength(Content().LineAt(position)); }
  void ReadLine(int line, std::string& text) override;

 private:
  LRESULT Send(UINT message, WPARAM wide = 0, LPARAM longer = 0) const;
  void Select(UnitRange range);
  UnitRange Selection();
  void Format(CHARFORMAT2W format);
  bool HasOneFormat() const;
  void Insert(const std::wstring& units);
  const RichEditText& Content();
  void TakeIn();
  std::wstring ControlText() const;
  void BecomeOwn();
  std::string RichTextOf(UnitRange range);
  std::string PlainText();

  std::shared_ptr<win32::SystemLibrary> library_;
  CodePageText encoding_;
  HWND window_;
  RichEditText text_;
  // What was taken in: until it is changed, the content is that, and the control has no stand-ins.
  std::optional<std::string> richText_;
  bool isUnread_ = false;  // the control is still to take it in
  int selStart_ = 0;
  int selLength_ = 0;
  std::optional<UnitRange> selected_;  // in the control, where that is known
};

class RichEditBoxes : public RichTextBoxes {
 public:
  /// codePage: the one that plain text is saved in, the system's own where nothing is said.
  explicit RichEditBoxes(UINT codePage = CP_ACP) : encoding_(codePage) {}

  /// Raises error 429 when the system has no rich text control.
  std::unique_ptr<RichTextBox> Create() override;

 private:
  CodePageText encoding_;
  std::shared_ptr<win32::SystemLibrary> library_;
};

}  // namespace brimwork::windows
