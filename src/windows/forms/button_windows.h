// The windows of command buttons, check boxes and option buttons.
#pragma once

#include "environment/buttons.h"
#include "windows/forms/control_window.h"

namespace brimwork::windows {

/// A check box and an option button look as their data says; a click goes there first.
class ButtonWindow : public ControlWindow {
 public:
  using ControlWindow::ControlWindow;
  void Show(PropertyId property) override;
  void OnCommand(WORD notification) override;

 protected:
  void ShowAll() override;
  /// The arrow keys go to the controls beside it.
  bool TakeKey(UINT message, WPARAM key) override;

  virtual void Click() = 0;
  virtual void GoBeside(int step);
};

class CommandButtonWindow : public ButtonWindow {
 public:
  CommandButtonWindow(FormWindow& form, CommandButton& button)
      : ButtonWindow(form, button), button_(button) {}
  void Show(PropertyId property) override;
  void ShowAsDefault(bool isDefault) override;

 protected:
  Design WindowDesign() const override;
  void ShowAll() override;
  void Click() override { button_.Click(); }

 private:
  DWORD PictureStyle() const { return button_.Picture.IsEmpty() ? 0 : BS_BITMAP; }
  void ShowPicture();

  CommandButton& button_;
};

class CheckBoxWindow : public ButtonWindow {
 public:
  CheckBoxWindow(FormWindow& form, CheckBox& box) : ButtonWindow(form, box), box_(box) {}
  void Show(PropertyId property) override;

 protected:
  Design WindowDesign() const override { return {L"BUTTON", BS_CHECKBOX}; }
  void ShowAll() override;
  void Click() override { box_.Click(); }

 private:
  CheckBox& box_;
};

class OptionButtonWindow : public ButtonWindow {
 public:
  OptionButtonWindow(FormWindow& form, OptionButton& button)
      : ButtonWindow(form, button), button_(button) {}
  void Show(PropertyId property) override;

 protected:
  Design WindowDesign() const override { return {L"BUTTON", BS_RADIOBUTTON}; }
  void ShowAll() override;
  void Click() override { button_.Click(); }
  /// Chooses the next one of the group.
  void GoBeside(int step) override;

 private:
  OptionButton& button_;
};

}  // namespace brimwork::windows
