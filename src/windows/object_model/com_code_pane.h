// The environment's code pane over COM.
#pragma once

#include "environment/vbe.h"
#include "windows/object_model/com_code_module.h"
#include "windows/object_model/dispatch_object.h"

namespace brimwork::windows {

class ComCodePane : public CodePane {
 public:
  static constexpr ObjectKind kKind = ObjectKind::kCodePane;

  explicit ComCodePane(DispatchObject pane) : pane_(std::move(pane)) {}

  std::shared_ptr<CodeModule> Module() override;
  std::shared_ptr<Window> ContainingWindow() override;
  Selection GetSelection() override;
  /// The environment gets positions that are in the text: what it does with others is not told.
  void SetSelection(const Selection& selection) override;

 private:
  /// Raises error 91 for a pane without a module.
  ComCodeModule Code() const;

  DispatchObject pane_;
};

}  // namespace brimwork::windows
