// Lists of items: the list box and the drop-down list. Items count from 0.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <vector>

#include "environment/control.h"

namespace brimwork {

/// Index of "no item".
inline constexpr int kNoItem = -1;

class ListControl : public Control {
 public:
  using Control::Control;
  bool TakesFocus() const override { return true; }

  int ListCount() const { return static_cast<int>(items_.size()); }

  /// The text of an item, "" for an index that no item has.
  std::string List(int index) const;

  const std::vector<std::string>& Items() const { return items_; }

  /// Adds an item at the end.
  void AddItem(std::string_view item);

  /// Raises error 5 for an index that no item has. Behind the chosen item the choice stays; the
  /// chosen item takes the choice along.
  void RemoveItem(int index);

  void Clear();

  /// The text of the chosen item, "" when there is none.
  std::string Text() const { return List(ListIndex); }

  /// What the user does: chooses an item. An index that no item has is nothing to click on.
  void Choose(int index);

  Property<int> ListIndex{*this, PropertyId::kListIndex, kNoItem};

  /// When the user has chosen an item, and when code has changed ListIndex.
  std::function<void()> OnClick;

 protected:
  void AfterChange(PropertyId property) override;
  void Design(const ControlLayout& layout) override;
  Color UsualForeColor() const override { return system_color::kWindowText; }
  Color UsualBackColor() const override { return system_color::kWindow; }

 private:
  bool HasItem(int index) const { return index >= 0 && index < ListCount(); }
  void ChangeList(int chosen);

  std::vector<std::string> items_;
};

class ListBox : public ListControl {
 public:
  using ListControl::ListControl;
  ControlKind Kind() const override { return ControlKind::kListBox; }
};

/// A drop-down list: its text is always one of its items.
class ComboBox : public ListControl {
 public:
  using ListControl::ListControl;
  ControlKind Kind() const override { return ControlKind::kComboBox; }
};

}  // namespace brimwork
