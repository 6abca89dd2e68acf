// The controls that are clicked: command buttons, check boxes and option buttons.
#pragma once

#include <functional>

#include "environment/captioned_control.h"

namespace brimwork {

class CommandButton : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;
  ControlKind Kind() const override { return ControlKind::kCommandButton; }
  bool TakesFocus() const override { return true; }

  /// What the user does: clicks it.
  void Click();

  /// The Enter or the Escape key clicks it, which leaves the focus where it is.
  void Press();

  void PressAccessKey(char /*key*/) override { Click(); }

  TextProperty Picture{*this, PropertyId::kPicture};  // name of the resource, "" for none

  std::function<void()> OnClick;

 protected:
  void Design(const ControlLayout& layout) override;
};

class CheckBox : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;
  ControlKind Kind() const override { return ControlKind::kCheckBox; }
  bool TakesFocus() const override { return true; }

  /// What the user does: clicks it, which turns it over.
  void Click();

  void PressAccessKey(char /*key*/) override { Click(); }

  Property<bool> Value{*this, PropertyId::kValue};

  /// Whenever Value has changed, by the user or by code.
  std::function<void()> OnClick;

 protected:
  void AfterChange(PropertyId property) override;
  void Design(const ControlLayout& layout) override;
};

/// Of the option buttons in one container at most one is chosen.
class OptionButton : public CaptionedControl {
 public:
  using CaptionedControl::CaptionedControl;
  ControlKind Kind() const override { return ControlKind::kOptionButton; }
  bool TakesFocus() const override { return true; }

  /// The Tab key stops at the chosen one of a group.
  bool IsTabStop() const override;

  /// What the user does: clicks it, which chooses it.
  void Click();

  void PressAccessKey(char /*key*/) override { Click(); }

  Property<bool> Value{*this, PropertyId::kValue};

  /// When it becomes the chosen one, by the user or by code.
  std::function<void()> OnClick;

 protected:
  void AfterChange(PropertyId property) override;
  void Design(const ControlLayout& layout) override;

 private:
  template <class Visit>
  void ForOthersInGroup(Visit visit) const;
};

}  // namespace brimwork
