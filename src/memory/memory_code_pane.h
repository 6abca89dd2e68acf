// A code window as plain data: the caret and selection in a module, and what keystrokes do to them.
#pragma once

#include <memory>

#include "environment/vbe.h"
#include "memory/key_target.h"
#include "memory/memory_code_module.h"

namespace brimwork {

class MemoryCodePane : public CodePane, public KeyTarget {
 public:
  explicit MemoryCodePane(std::shared_ptr<MemoryCodeModule> module) : module_(std::move(module)) {}

  std::shared_ptr<CodeModule> Module() override { return module_; }
  std::shared_ptr<Window> ContainingWindow() override { return window_.lock(); }
  Selection GetSelection() override { return selection_; }
  void SetSelection(const Selection& selection) override;

  void Copy(Clipboard& clipboard) override;
  void Paste(Clipboard& clipboard) override;
  void SelectAll() override;
  void Delete() override;
  void Type(std::string_view text) override;

  std::string SelectedText() const;

  const std::shared_ptr<MemoryCodeModule>& Code() const { return module_; }

  void SetContainingWindow(const std::shared_ptr<Window>& window) { window_ = window; }

 private:
  std::shared_ptr<MemoryCodeModule> module_;
  std::weak_ptr<Window> window_;  // the window holds the pane
  Selection selection_;
};

}  // namespace brimwork
