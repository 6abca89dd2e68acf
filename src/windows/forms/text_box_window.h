// The window of a text box.
#pragma once

#include <string>

#include "environment/text_box.h"
#include "windows/forms/control_window.h"

namespace brimwork::windows {

class TextBoxWindow : public ControlWindow {
 public:
  TextBoxWindow(FormWindow& form, TextBox& box) : ControlWindow(form, box), box_(box) {}
  void Show(PropertyId property) override;
  void OnCommand(WORD notification) override;
  LRESULT OnColors(HDC context) override;

 protected:
  Design WindowDesign() const override;
  void ShowAll() override;
  LRESULT Receive(UINT message, WPARAM wide, LPARAM longer) override;
  bool TakeKey(UINT message, WPARAM key) override;

 private:
  /// Units of UTF-16 in the window's text, from start to end.
  struct Units {
    DWORD start = 0;
    DWORD end = 0;
    bool operator==(const Units&) const = default;
  };

  std::wstring WindowText() const;
  Units WindowSelection() const;
  Units DataSelection() const;

  void ShowBoxText();
  void ReplaceChangedPart(const std::wstring& before, const std::wstring& after);
  void ShowSelection();

  void TakeText();
  void TakeSelection();

  TextBox& box_;
  bool isShowingText_ = false;
};

}  // namespace brimwork::windows
