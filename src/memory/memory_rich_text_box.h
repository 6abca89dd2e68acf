// A rich text control as plain data.
#pragma once

#include <algorithm>
#include <memory>
#include <string>
#include <utility>

#include "environment/rich_text_box.h"
#include "memory/memory_text_files.h"
#include "memory/rich_text.h"

namespace brimwork {

/// The rich text that a control wrote last. Handed to another control as it stands it needs no
/// reading before that one saves it.
struct WrittenRichText {
  std::shared_ptr<const std::string> text = std::make_shared<std::string>();
};

/// Formatting without a selection does nothing, unless there is no text: what comes into the
/// control next takes the format.
class MemoryRichTextBox : public RichTextBox {
 public:
  /// lastWritten: shared by the controls that hand rich text to each other.
  MemoryRichTextBox(
      WindowHandle handle, MemoryTextFiles& files,
      std::shared_ptr<WrittenRichText> lastWritten = std::make_shared<WrittenRichText>())
      : handle_(handle), files_(files), lastWritten_(std::move(lastWritten)) {}

  WindowHandle hWnd() override { return handle_; }

  std::string Text() override { return Content().Text(); }
  void SetText(std::string text) override;

  int SelStart() override { return selection_.start; }
  void SetSelStart(int position) override {
    selection_ = {std::clamp(position, 0, Content().Size()), 0};
  }
  int SelLength() override { return selection_.length; }
  void SetSelLength(int length) override {
    selection_.length = std::clamp(length, 0, Content().Size() - selection_.start);
  }

  void SetSelColor(Color color) override { Edited().SetColor(selection_, color); }
  void SetSelFontName(std::string_view name) override { Edited().SetFontName(selection_, name); }
  void SetSelFontSize(int points) override { Edited().SetFontSize(selection_, points); }
  void SetSelText(std::string_view text) override;

  std::string SelRTF() override;
  void SetTextRTF(std::string_view richText) override;
  /// Plain text goes through the files' code page: error 5 for a character that it has not.
  void SaveFile(std::string_view path, SaveAs type) override;

  void SetWordWrap(bool wraps) override { wraps_ = wraps; }

  int LineCount() override { return Content().LineCount(); }
  int LineFromCaret() override { return Content().LineAt(selection_.start); }
  int LineIndexOfCaret() override { return Content().LineStart(LineFromCaret()); }
  int LineLength(int position) override;
  void ReadLine(int line, std::string& text) override;

  const RichText& Content() const {
    if (unread_) [[unlikely]]
      ReadUnread();
    return content_;
  }
  bool WrapsWords() const { return wraps_; }

 private:
  void ReadUnread() const;
  RichText& Edited() {
    Content();
    return content_;
  }
  std::string RichTextBytes(TextRange range);
  std::string PlainTextBytes(std::string_view path);

  WindowHandle handle_;
  MemoryTextFiles& files_;
  std::shared_ptr<WrittenRichText> lastWritten_;
  mutable RichText content_;
  mutable std::shared_ptr<const std::string> unread_;  // what content_ is still to be read from
  TextRange selection_;
  bool wraps_ = true;
};

class MemoryRichTextBoxes : public RichTextBoxes {
 public:
  explicit MemoryRichTextBoxes(MemoryTextFiles& files) : files_(files) {}
  std::unique_ptr<RichTextBox> Create() override {
    return std::make_unique<MemoryRichTextBox>(nextHandle_++, files_, lastWritten_);
  }

 private:
  static constexpr WindowHandle kFirstHandle = 0x100;
  WindowHandle nextHandle_ = kFirstHandle;
  MemoryTextFiles& files_;
  std::shared_ptr<WrittenRichText> lastWritten_ = std::make_shared<WrittenRichText>();
};

}  // namespace brimwork
