// The windows of list boxes and drop-down lists.
#pragma once

#include <string>
#include <vector>

#include "environment/list_box.h"
#include "windows/forms/control_window.h"

namespace brimwork::windows {

/// What the two kinds of lists do alike, each with messages of its own.
class ListWindow : public ControlWindow {
 public:
  struct Messages {
    UINT insert;
    UINT remove;
    UINT choose;
    UINT chosen;
    WORD isChosen;  // the notification
  };

  ListWindow(FormWindow& form, ListControl& list, const Messages& messages)
      : ControlWindow(form, list), list_(list), messages_(messages) {}
  void Show(PropertyId property) override;
  void OnCommand(WORD notification) override;

 protected:
  void ShowAll() override;
  virtual void ShowItems();

  ListControl& list_;

 private:
  void ShowChoice();

  const Messages& messages_;
  std::vector<std::string> shown_;
};

class ListBoxWindow : public ListWindow {
 public:
  ListBoxWindow(FormWindow& form, ListBox& list);

 protected:
  Design WindowDesign() const override;
};

class ComboBoxWindow : public ListWindow {
 public:
  ComboBoxWindow(FormWindow& form, ComboBox& list);
  void Show(PropertyId property) override;

 protected:
  Design WindowDesign() const override;
  /// Its place is that of the closed list.
  void ShowPlace() override;
  void ShowItems() override;
  /// Enter and Escape close the list while it is open.
  bool TakeKey(UINT message, WPARAM key) override;
};

}  // namespace brimwork::windows
