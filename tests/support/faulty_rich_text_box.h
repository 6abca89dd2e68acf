// Rich text controls with calls that fail: each operation is counted, then handed on.
#pragma once

#include <memory>
#include <string>
#include <utility>

#include "environment/rich_text_box.h"
#include "support/faulty_calls.h"

namespace brimwork {

class FaultyRichTextBox : public RichTextBox {
 public:
  FaultyRichTextBox(std::unique_ptr<RichTextBox> inner, FaultyCalls& calls)
      : inner_(std::move(inner)), calls_(calls) {}
  WindowHandle hWnd() override {
    return calls_.Through("RichTextBox.hWnd", [&] { return inner_->hWnd(); });
  }
  std::string Text() override {
    return calls_.Through("RichTextBox.Text", [&] { return inner_->Text(); });
  }
  void SetText(std::string text) override {
    calls_.Through("RichTextBox.SetText", [&] { inner_->SetText(std::move(text)); });
  }
  int SelStart() override {
    return calls_.Through("RichTextBox.SelStart", [&] { return inner_->SelStart(); });
  }
  void SetSelStart(int position) override {
    calls_.Through("RichTextBox.SetSelStart", [&] { inner_->SetSelStart(position); });
  }
  int SelLength() override {
    return calls_.Through("RichTextBox.SelLength", [&] { return inner_->SelLength(); });
  }
  void SetSelLength(int length) override {
    calls_.Through("RichTextBox.SetSelLength", [&] { inner_->SetSelLength(length); });
  }
  void SetSelColor(Color color) override {
    calls_.Through("RichTextBox.SetSelColor", [&] { inner_->SetSelColor(color); });
  }
  void SetSelFontName(std::string_view name) override {
    calls_.Through("RichTextBox.SetSelFontName", [&] { inner_->SetSelFontName(name); });
  }
  void SetSelFontSize(int points) override {
    calls_.Through("RichTextBox.SetSelFontSize", [&] { inner_->SetSelFontSize(points); });
  }
  void SetSelText(std::string_view text) override {
    calls_.Through("RichTextBox.SetSelText", [&] { inner_->SetSelText(text); });
  }
  std::string SelRTF() override {
    return calls_.Through("RichTextBox.SelRTF", [&] { return inner_->SelRTF(); });
  }
  void SetTextRTF(std::string_view richText) override {
    calls_.Through("RichTextBox.SetTextRTF", [&] { inner_->SetTextRTF(richText); });
  }
  void SaveFile(std::string_view path, SaveAs type) override {
    calls_.Through("RichTextBox.SaveFile", [&] { inner_->SaveFile(path, type); });
  }
  void SetWordWrap(bool wraps) override {
    calls_.Through("RichTextBox.SetWordWrap", [&] { inner_->SetWordWrap(wraps); });
  }
  int LineCount() override {
    return calls_.Through("RichTextBox.LineCount", [&] { return inner_->LineCount(); });
  }
  int LineFromCaret() override {
    return calls_.Through("RichTextBox.LineFromCaret", [&] { return inner_->LineFromCaret(); });
  }
  int LineIndexOfCaret() override {
    return calls_.Through("RichTextBox.LineIndexOfCaret",
                          [&] { return inner_->LineIndexOfCaret(); });
  }
  int LineLength(int position) override {
    return calls_.Through("RichTextBox.LineLength", [&] { return inner_->LineLength(position); });
  }
  void ReadLine(int line, std::string& text) override {
    calls_.Through("RichTextBox.ReadLine", [&] { inner_->ReadLine(line, text); });
  }

 private:
  std::unique_ptr<RichTextBox> inner_;
  FaultyCalls& calls_;
};

class FaultyRichTextBoxes : public RichTextBoxes {
 public:
  FaultyRichTextBoxes(RichTextBoxes& inner, FaultyCalls& calls) : inner_(inner), calls_(calls) {}
  std::unique_ptr<RichTextBox> Create() override {
    return calls_.Through("RichTextBoxes.Create", [&] {
      return std::make_unique<FaultyRichTextBox>(inner_.Create(), calls_);
    });
  }

 private:
  RichTextBoxes& inner_;
  FaultyCalls& calls_;
};

}  // namespace brimwork
