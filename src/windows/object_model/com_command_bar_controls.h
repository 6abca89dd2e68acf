// The entries of a command bar or popup over COM.
#pragma once

#include "environment/command_bar.h"
#include "windows/object_model/dispatch_object.h"

namespace brimwork::windows {

class ComCommandBarControls : public CommandBarControls {
 public:
  static constexpr ObjectKind kKind = ObjectKind::kControls;

  explicit ComCommandBarControls(DispatchObject controls) : controls_(std::move(controls)) {}

  int Count() override;
  std::shared_ptr<CommandBarControl> Item(int index) override;
  std::shared_ptr<CommandBarControl> Item(std::string_view caption) override;
  std::shared_ptr<CommandBarControl> Add(const NewControl& control) override;

 private:
  DispatchObject controls_;
};

}  // namespace brimwork::windows
