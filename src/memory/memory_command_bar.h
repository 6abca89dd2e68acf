// A command bar as plain data.
#pragma once

#include <memory>
#include <string>

#include "environment/command_bar.h"
#include "memory/memory_command_bar_controls.h"

namespace brimwork {

class MemoryCommandBar : public CommandBar {
 public:
  /// One of the environment's own bars, docked and visible.
  explicit MemoryCommandBar(std::string name);
  /// A bar that was added: hidden.
  explicit MemoryCommandBar(const NewCommandBar& bar);

  std::string Name() override;
  bool Visible() override;
  void SetVisible(bool visible) override;
  int Position() override;
  void SetPosition(int position) override;
  int RowIndex() override;
  void SetRowIndex(int row) override;
  int Left() override;
  void SetLeft(int left) override;
  int Top() override;
  void SetTop(int top) override;
  std::shared_ptr<CommandBarControls> Controls() override;
  void Delete() override;

  // For the environment and for tests; these raise nothing.

  const std::string& LastName() const { return name_; }
  const std::shared_ptr<MemoryCommandBarControls>& Entries() const { return entries_; }
  bool IsBuiltIn() const { return isBuiltIn_; }
  bool IsTemporary() const { return isTemporary_; }

  /// Makes one of the environment's own bars a menu, hidden until it is opened.
  void MakeMenu();

  /// The environment that it is in.
  void SetBars(MemoryCommandBars& bars);

 private:
  void CheckLiving() const;

  std::string name_;
  bool isBuiltIn_;
  bool isTemporary_ = false;
  bool isVisible_ = true;
  bool isDeleted_ = false;
  int position_ = bar_position::kTop;
  int row_ = 0;
  int left_ = 0;
  int top_ = 0;
  std::shared_ptr<MemoryCommandBarControls> entries_;
  MemoryCommandBars* bars_ = nullptr;
};

}  // namespace brimwork
