// A form: its controls, its life from Load to Unload, and what the user does with the keyboard. It
// is data; its host shows it.
#pragma once

#include <span>
#include <vector>

#include "environment/control.h"
#include "environment/form_host.h"

namespace brimwork {

class CommandButton;

enum class Key { kTab, kShiftTab, kEnter, kEscape };

/// Base of every form. The controls are members of the derived class; each names itself as its row
/// in the form's table does. Loading designs them from the table, so a form that is loaded again
/// looks as new.
class Form : public PropertyOwner {
 public:
  /// layout is used as long as the form lives.
  Form(FormHost& host, const FormLayout& layout);
  virtual ~Form();
  Form(const Form&) = delete;
  Form& operator=(const Form&) = delete;

  /// Makes the form's window and runs Form_Load; nothing for a form that is loaded. Raises the
  /// error that the host or Form_Load raised, and the form is then not loaded.
  void Load();

  /// Loads the form if need be and shows it; the first control in tab order takes the focus. Modal:
  /// returns when the form has been hidden or unloaded. Raises what Load and the host raise.
  void Show(ShowMode mode = ShowMode::kModeless);

  void Hide();

  /// Runs Form_Unload and removes the window; nothing for a form that is not loaded. An error that
  /// Form_Unload raises is raised once the form has gone.
  void Unload();

  bool IsLoaded() const { return isLoaded_; }
  bool Visible() const { return isVisible_; }
  WindowHandle hWnd() const { return window_; }  // 0 while it is not loaded

  /// The size of its inside, in pixels.
  int ScaleWidth() const { return width_; }
  int ScaleHeight() const { return height_; }

  Control* ActiveControl() const { return active_; }  // null when none has the focus

  TextProperty Caption{*this, PropertyId::kCaption};

  // What the user does. Nothing while the form is not visible.

  void Press(Key key);
  /// A letter or digit together with Alt.
  void PressAlt(char letter);
  /// Drags the edge of a sizable form; the size is that of the inside.
  void Resize(int width, int height);
  /// The close button.
  void Close();

  // For hosts and controls.

  const FormLayout& Layout() const { return layout_; }
  /// All controls, in the order of their declaration.
  std::span<Control* const> Controls() const { return controls_; }
  void Add(Control& control) { controls_.push_back(&control); }

  /// Moves the focus with the events that belong to it. False when the control that has it keeps
  /// it.
  bool MoveFocus(Control& target);
  /// Moves the focus to the next control in tab order that can have it.
  void FocusBehind(const Control& control);
  /// Moves the focus on when the control that has it can no longer be used.
  void LeaveUnusable();

  void Tell(Control& control, PropertyId property) { host_.Changed(*this, &control, property); }
  void Refresh(Control& control);
  TextExtent Measure(std::string_view text, const ControlFont& font) const {
    return host_.Measure(text, font);
  }

 protected:
  virtual void Form_Load() {}
  /// On the first Show and whenever the user has changed the size.
  virtual void Form_Resize() {}
  virtual void Form_Unload() {}

 private:
  void Changed(PropertyId property) final;
  void DesignControls();
  void Prepare();
  void Discard();

  /// The control of a name in the table. Throws std::logic_error when the form has none.
  Control& Find(const ControlName& name) const;
  std::vector<Control*> TabOrder() const;
  /// The nearest control in tab order that the Tab key stops at; null when there is none.
  Control* TabStopFrom(const Control* start, int step) const;
  void FocusTabStop(const Control* start, int step);
  void GiveFocus(Control* target);
  void PressEnter();
  void PressEscape();
  /// The usable button that the layout marks; null when there is none.
  CommandButton* MarkedButton(bool ControlLayout::*mark) const;

  FormHost& host_;
  const FormLayout& layout_;
  std::vector<Control*> controls_;
  WindowHandle window_ = 0;
  bool isLoaded_ = false;
  bool isVisible_ = false;
  bool isUnloading_ = false;
  bool wasShown_ = false;  // since it was loaded
  int width_ = 0;
  int height_ = 0;
  Control* active_ = nullptr;
};

}  // namespace brimwork
