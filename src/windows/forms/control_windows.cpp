// Which window a kind of control has.
#include "environment/controls.h"
#include "windows/forms/button_windows.h"
#include "windows/forms/control_window.h"
#include "windows/forms/label_windows.h"
#include "windows/forms/list_windows.h"
#include "windows/forms/picture_box_window.h"
#include "windows/forms/status_bar_window.h"
#include "windows/forms/tab_strip_window.h"
#include "windows/forms/text_box_window.h"

namespace brimwork::windows {
namespace {

template <class Window, class Kind>
std::unique_ptr<ControlWindow> Make(FormWindow& form, Control& control) {
  return std::make_unique<Window>(form, static_cast<Kind&>(control));
}

}  // namespace

std::unique_ptr<ControlWindow> MakeControlWindow(FormWindow& form, Control& control) {
  switch (control.Kind()) {
    case ControlKind::kCheckBox:
      return Make<CheckBoxWindow, CheckBox>(form, control);
    case ControlKind::kComboBox:
      return Make<ComboBoxWindow, ComboBox>(form, control);
    case ControlKind::kCommandButton:
      return Make<CommandButtonWindow, CommandButton>(form, control);
    case ControlKind::kFrame:
      return Make<FrameWindow, Frame>(form, control);
    case ControlKind::kImage:
      return Make<ImageWindow, Image>(form, control);
    case ControlKind::kLabel:
      return Make<LabelWindow, Label>(form, control);
    case ControlKind::kListBox:
      return Make<ListBoxWindow, ListBox>(form, control);
    case ControlKind::kOptionButton:
      return Make<OptionButtonWindow, OptionButton>(form, control);
    case ControlKind::kPictureBox:
      return Make<PictureBoxWindow, PictureBox>(form, control);
    case ControlKind::kStatusBar:
      return Make<StatusBarWindow, StatusBar>(form, control);
    case ControlKind::kTabStrip:
      return Make<TabStripWindow, TabStrip>(form, control);
    case ControlKind::kTextBox:
      return Make<TextBoxWindow, TextBox>(form, control);
    case ControlKind::kImageList:
    case ControlKind::kTimer:
      return nullptr;
  }
  return nullptr;
}

}  // namespace brimwork::windows
