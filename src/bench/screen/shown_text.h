// A text of the workbench as far as a window shows it and has it edited.
#pragma once

#include <cstdint>
#include <string>
#include <string_view>

#include "environment/code_module.h"
#include "memory/memory_code_pane.h"
#include "memory/memory_text_window.h"

namespace brimwork::bench {

class ShownText {
 public:
  virtual ~ShownText() = default;

  /// Another number whenever the text is another one.
  virtual std::uint64_t Revision() = 0;

  /// With CR LF between the lines.
  virtual std::string Text() = 0;

  /// Takes what the user has made of it.
  virtual void SetText(std::string_view text) = 0;

  virtual Selection GetSelection() = 0;
  virtual void SetSelection(const Selection& selection) = 0;
};

/// A module, through a code window's pane.
class PaneText : public ShownText {
 public:
  explicit PaneText(MemoryCodePane& pane) : pane_(pane), module_(pane.Code()) {}

  std::uint64_t Revision() override { return module_->Revision(); }
  std::string Text() override { return module_->Text().Joined(); }
  void SetText(std::string_view text) override;
  Selection GetSelection() override { return pane_.GetSelection(); }
  void SetSelection(const Selection& selection) override { pane_.SetSelection(selection); }

 private:
  MemoryCodePane& pane_;
  std::shared_ptr<MemoryCodeModule> module_;
};

/// The Immediate window's.
class PlainText : public ShownText {
 public:
  explicit PlainText(std::shared_ptr<MemoryTextWindow> text) : text_(std::move(text)) {}

  std::uint64_t Revision() override { return text_->Revision(); }
  std::string Text() override { return text_->Text(); }
  void SetText(std::string_view text) override { text_->SetText(text); }
  Selection GetSelection() override;
  void SetSelection(const Selection& selection) override;

 private:
  std::shared_ptr<MemoryTextWindow> text_;
};

}  // namespace brimwork::bench
