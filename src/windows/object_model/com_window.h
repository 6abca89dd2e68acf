// The environment's window over COM.
#pragma once

#include "environment/window.h"
#include "windows/object_model/dispatch_object.h"

namespace brimwork::windows {

class ComWindow : public Window {
 public:
  static constexpr ObjectKind kKind = ObjectKind::kWindow;

  explicit ComWindow(DispatchObject window) : window_(std::move(window)) {}

  /// The native window where the environment tells it, else the object.
  std::uintptr_t Identity() override;

  std::string Caption() override;
  int Type() override;
  bool Visible() override;
  void SetVisible(bool visible) override;
  void SetFocus() override;
  void Close() override;

 private:
  DispatchObject window_;
};

}  // namespace brimwork::windows
