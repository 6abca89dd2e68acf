// A rich text control as plain data.
#pragma once

#include <memory>
#include <string>

#include "environment/rich_text_box.h"
#include "memory/memory_text_files.h"
#include "memory/rich_text.h"

namespace brimwork {

/// Formatting without a selection does nothing, unless there is no text: what comes into the
/// control next takes the format.
class MemoryRichTextBox : public RichTextBox {
 public:
  MemoryRichTextBox(WindowHandle handle, MemoryTextFiles& files) : handle_(handle), files_(files) {}

  WindowHandle hWnd() override { return handle_; }

  std::string Text() override { return content_.Text(); }
  void SetText(std::string_view text) override;

  int SelStart() override { return selection_.start; }
  void SetSelStart(int position) override;
  int SelLength() override { return selection_.length; }
  void SetSelLength(int length) override;

  void SetSelColor(Color color) override { content_.SetColor(selection_, color); }
  void SetSelFontName(std::string_view name) override { content_.SetFontName(selection_, name); }
  void SetSelFontSize(int points) override { content_.SetFontSize(selection_, points); }
  void SetSelText(std::string_view text) override;

  std::string SelRTF() override;
  void SetTextRTF(std::string_view richText) override;
  /// Plain text goes through the files' code page: error 5 for a character that it has not.
  void SaveFile(std::string_view path, SaveAs type) override;

  void SetWordWrap(bool wraps) override { wraps_ = wraps; }

  int LineCount() override { return content_.LineCount(); }
  int LineFromCaret() override { return content_.LineAt(selection_.start); }
  int LineIndexOfCaret() override { return content_.LineStart(LineFromCaret()); }
  int LineLength(int position) override;
  std::string Line(int line) override;

  // For tests.

  const RichText& Content() const { return content_; }
  bool WrapsWords() const { return wraps_; }

 private:
  std::string RichTextBytes();
  std::string PlainTextBytes(std::string_view path);

  WindowHandle handle_;
  MemoryTextFiles& files_;
  RichText content_;
  TextRange selection_;
  bool wraps_ = true;
};

class MemoryRichTextBoxes : public RichTextBoxes {
 public:
  explicit MemoryRichTextBoxes(MemoryTextFiles& files) : files_(files) {}
  std::unique_ptr<RichTextBox> Create() override {
    return std::make_unique<MemoryRichTextBox>(nextHandle_++, files_);
  }

 private:
  static constexpr WindowHandle kFirstHandle = 0x100;
  WindowHandle nextHandle_ = kFirstHandle;
  MemoryTextFiles& files_;
};

}  // namespace brimwork
