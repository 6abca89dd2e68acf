// The environment's command bar over COM.
#pragma once

#include "environment/command_bar.h"
#include "windows/object_model/dispatch_object.h"

namespace brimwork::windows {

class ComCommandBar : public CommandBar {
 public:
  static constexpr ObjectKind kKind = ObjectKind::kCommandBar;

  explicit ComCommandBar(DispatchObject bar) : bar_(std::move(bar)) {}

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

 private:
  DispatchObject bar_;
};

}  // namespace brimwork::windows
