// A rich text control as plain data.
#pragma once

#include <memory>
#include <string>
#include <vector>

#include "environment/rich_text_box.h"
#include "memory/memory_text_files.h"

namespace brimwork {

class MemoryRichTextBox : public RichTextBox {
 public:
  MemoryRichTextBox(WindowHandle handle, MemoryTextFiles& files) : handle_(handle), files_(files) {}

  WindowHandle hWnd() override { return handle_; }

  std::string Text() override { return text_; }
  void SetText(std::string_view text) override;

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
  void SaveFile(std::string_view path, SaveAs type) override;

  void SetWordWrap(bool wraps) override { wraps_ = wraps; }

  int LineCount() override;
  int LineFromCaret() override;
  int LineIndexOfCaret() override;
  int LineLength(int position) override;
  std::string Line(int line) override;

  bool WrapsWords() const { return wraps_; }

 private:
  WindowHandle handle_;
  MemoryTextFiles& files_;
  std::string text_;
  int selStart_ = 0;
  int selLength_ = 0;
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
