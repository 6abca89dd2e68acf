// An entry of a command bar over COM.
#pragma once

#include "environment/command_bar.h"
#include "windows/object_model/dispatch_object.h"

namespace brimwork::windows {

class ComCommandBarControl : public CommandBarControl {
 public:
  static constexpr ObjectKind kKind = ObjectKind::kControl;

  explicit ComCommandBarControl(DispatchObject control);

  int Type() override;
  int Id() override;
  int Index() override;
  std::string Caption() override;
  void SetCaption(std::string_view caption) override;
  std::string Tag() override;
  void SetTag(std::string_view tag) override;
  bool BeginGroup() override;
  void SetBeginGroup(bool begins) override;
  void Execute() override;
  void Delete() override;
  int Style() override;
  void SetStyle(int style) override;
  void PasteFace() override;
  std::shared_ptr<CommandBarControls> Controls() override;

  const DispatchObject& Control() const { return control_; }

 private:
  DispatchObject control_;
  DispatchObject ofItsType_;  // what buttons and popups have numbers of their own for
};

}  // namespace brimwork::windows
