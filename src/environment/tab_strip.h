// A row of tabs. What a tab stands for is shown and hidden by the form.
#pragma once

#include <functional>
#include <span>
#include <string>

#include "environment/control.h"

namespace brimwork {

class TabStrip : public Control {
 public:
  using Control::Control;
  ControlKind Kind() const override { return ControlKind::kTabStrip; }
  bool TakesFocus() const override { return true; }

  std::span<const TabLayout> Tabs() const { return Layout().tabs; }

  std::string AccessKeys() const override;
  void PressAccessKey(char key) override;

  /// What the user does: clicks the tab with that number. A number that no tab has is nothing to
  /// click on.
  void Choose(int tab);

  /// The tab in front; tabs count from 1.
  Property<int> SelectedItem{*this, PropertyId::kValue, 1};

  /// When the user has clicked a tab, and when code has changed SelectedItem.
  std::function<void()> OnClick;

 protected:
  void AfterChange(PropertyId property) override;
  void Design(const ControlLayout& layout) override;
};

}  // namespace brimwork
