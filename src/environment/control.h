// What all controls have in common: place, looks, focus, and whether the user can reach them.
#pragma once

#include <functional>
#include <string>
#include <string_view>
#include <utility>

#include "environment/form_layout.h"
#include "environment/property.h"

namespace brimwork {

class Form;

enum class ControlKind {
  kCheckBox,
  kComboBox,
  kCommandButton,
  kFrame,
  kImage,
  kImageList,
  kLabel,
  kListBox,
  kOptionButton,
  kPictureBox,
  kStatusBar,
  kTabStrip,
  kTextBox,
  kTimer,
};

/// A member of its form. The On... members are its events: the form sets those that it handles.
/// While the form is not loaded a control raises no events and does nothing for the user.
class Control : public PropertyOwner {
 public:
  Control(Form& form, std::string_view name, int index = kNoIndex);
  virtual ~Control() = default;
  Control(const Control&) = delete;
  Control& operator=(const Control&) = delete;

  virtual ControlKind Kind() const = 0;
  std::string_view Name() const { return name_; }
  int Index() const { return index_; }
  Form& Parent() const { return form_; }

  /// The control that it lies in; null for the form itself.
  Control* Container() const { return container_; }

  /// Its row in the form's table; an empty one before the form has first been loaded.
  const ControlLayout& Layout() const { return *layout_; }

  /// True when the user sees it and can use it: the form is visible, and it and every container
  /// around it are visible and enabled.
  bool CanBeUsed() const;

  /// True when it and every container around it are visible.
  bool IsShown() const;

  /// True for a kind of control that the focus can go to.
  virtual bool TakesFocus() const { return false; }

  /// True when the Tab key stops at it.
  virtual bool IsTabStop() const { return TakesFocus() && CanBeUsed() && Layout().isTabStop; }

  /// Moves the focus here. Raises error 5 when the control cannot have it.
  void SetFocus();

  void Move(int left, int top, int width, int height);

  /// Paints it at once.
  void Refresh();

  /// The lower-case letters that reach it together with Alt.
  virtual std::string AccessKeys() const { return {}; }

  /// What the user does: presses Alt and one of its access keys.
  virtual void PressAccessKey(char /*key*/) {}

  /// The Enter key comes here when no button takes it.
  virtual void PressEnter() {}

  Property<int> Left{*this, PropertyId::kPlace};
  Property<int> Top{*this, PropertyId::kPlace};
  Property<int> Width{*this, PropertyId::kPlace};
  Property<int> Height{*this, PropertyId::kPlace};
  Property<bool> Visible{*this, PropertyId::kVisible, true};
  Property<bool> Enabled{*this, PropertyId::kEnabled, true};
  Property<ControlFont> Font{*this, PropertyId::kFont};
  Property<Color> ForeColor{*this, PropertyId::kColor};
  Property<Color> BackColor{*this, PropertyId::kColor};
  TextProperty ToolTipText{*this, PropertyId::kToolTipText};
  TextProperty Tag{*this, PropertyId::kTag};

  std::function<void()> OnGotFocus;
  std::function<void()> OnLostFocus;
  /// Before the focus leaves for a control that causes validation; cancel = true keeps it here.
  std::function<void(bool& cancel)> OnValidate;

 protected:
  /// Whether what the user does here gets through: the control can be used and, where it takes the
  /// focus, has it now.
  bool IsReached();

  /// Tells the host of a change and raises its events. For changes that no property stands for.
  void Changed(PropertyId property) final;

  /// Raises the events that belong to a change, where there are any.
  virtual void AfterChange(PropertyId /*property*/) {}

  /// Takes what the table says, without an event.
  virtual void Design(const ControlLayout& layout);

  virtual Color UsualForeColor() const { return system_color::kButtonText; }
  virtual Color UsualBackColor() const { return system_color::kButtonFace; }

 private:
  friend class Form;

  Form& form_;
  std::string_view name_;
  int index_;
  Control* container_ = nullptr;
  const ControlLayout* layout_;
};

/// Calls an event's handler, if there is one.
template <class Handler, class... Arguments>
void Raise(const Handler& handler, Arguments&&... arguments) {
  if (handler) handler(std::forward<Arguments>(arguments)...);
}

/// The letter or digit behind the single "&" of a caption, in lower case; "" when there is none.
std::string AccessKeyOf(std::string_view caption);

/// A caption as it is painted: "&" before the access key left out, "&&" as one "&".
std::string ShownCaption(std::string_view caption);

}  // namespace brimwork
