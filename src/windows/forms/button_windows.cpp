#include "windows/forms/button_windows.h"

#include <algorithm>
#include <vector>

#include "windows/forms/form_window.h"

namespace brimwork::windows {
namespace {

/// Steps of the arrow keys along a row of controls; 0 for other keys.
int ArrowStep(WPARAM key) {
  if (key == VK_RIGHT || key == VK_DOWN) return 1;
  return key == VK_LEFT || key == VK_UP ? -1 : 0;
}

std::vector<OptionButton*> UsableGroupOf(const OptionButton& button) {
  std::vector<OptionButton*> group;
  for (Control* control : button.Parent().Controls()) {
    const bool isInGroup = control->Kind() == ControlKind::kOptionButton &&
                           control->Container() == button.Container() && control->CanBeUsed();
    if (isInGroup) group.push_back(static_cast<OptionButton*>(control));
  }
  return group;
}

}  // namespace

void ButtonWindow::ShowAll() {
  ControlWindow::ShowAll();
  Show(PropertyId::kCaption);
}

void ButtonWindow::Show(PropertyId property) {
  ControlWindow::Show(property);
  if (property == PropertyId::kCaption) ShowText(static_cast<CaptionedControl&>(control_).Caption);
}

// The system clicks an option button that it gives the focus to.
void ButtonWindow::OnCommand(WORD notification) {
  const bool isClick = notification == BN_CLICKED || notification == BN_DOUBLECLICKED;
  if (isClick && !form_.IsShowingFocus()) form_.Tell([this] { Click(); });
}

bool ButtonWindow::TakeKey(UINT message, WPARAM key) {
  const int step = message == WM_KEYDOWN ? ArrowStep(key) : 0;
  if (step == 0) return false;
  form_.Tell([&] { GoBeside(step); });
  return true;
}

void ButtonWindow::GoBeside(int step) { form_.Data().Press(step > 0 ? Key::kTab : Key::kShiftTab); }

ControlWindow::Design CommandButtonWindow::WindowDesign() const {
  return {L"BUTTON", BS_PUSHBUTTON | PictureStyle()};
}

void CommandButtonWindow::ShowAll() {
  ButtonWindow::ShowAll();
  ShowPicture();
}

void CommandButtonWindow::Show(PropertyId property) {
  ButtonWindow::Show(property);
  if (property == PropertyId::kPicture || property == PropertyId::kColor) ShowPicture();
}

void CommandButtonWindow::ShowPicture() {
  const HBITMAP bitmap = Kit().pictures.Bitmap(button_.Picture, button_.BackColor);
  Send(BM_SETIMAGE, IMAGE_BITMAP, reinterpret_cast<LPARAM>(bitmap));
}

void CommandButtonWindow::ShowAsDefault(bool isDefault) {
  const DWORD wanted = isDefault ? BS_DEFPUSHBUTTON : BS_PUSHBUTTON;
  const auto style = static_cast<DWORD>(GetWindowLongW(Handle(), GWL_STYLE));
  if ((style & BS_TYPEMASK) != wanted) Send(BM_SETSTYLE, wanted | PictureStyle(), TRUE);
}

void CheckBoxWindow::ShowAll() {
  ButtonWindow::ShowAll();
  Show(PropertyId::kValue);
}

void CheckBoxWindow::Show(PropertyId property) {
  ButtonWindow::Show(property);
  if (property == PropertyId::kValue) Send(BM_SETCHECK, box_.Value ? BST_CHECKED : BST_UNCHECKED);
}

void OptionButtonWindow::ShowAll() {
  ButtonWindow::ShowAll();
  Show(PropertyId::kValue);
}

void OptionButtonWindow::Show(PropertyId property) {
  ButtonWindow::Show(property);
  if (property == PropertyId::kValue) {
    Send(BM_SETCHECK, button_.Value ? BST_CHECKED : BST_UNCHECKED);
  }
}

void OptionButtonWindow::GoBeside(int step) {
  const std::vector<OptionButton*> group = UsableGroupOf(button_);
  const auto own = std::ranges::find(group, &button_);
  if (own == group.end()) return;
  const auto count = static_cast<int>(group.size());
  const int next = (static_cast<int>(own - group.begin()) + step + count) % count;
  group[static_cast<std::size_t>(next)]->Click();
}

}  // namespace brimwork::windows
