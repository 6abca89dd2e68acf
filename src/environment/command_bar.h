// The environment's menus, pop-up menus and toolbars. Every operation may raise RunTimeError; on a
// bar or control that has been deleted every one does.
#pragma once

#include <functional>
#include <memory>
#include <string>
#include <string_view>

namespace brimwork {

/// Where a bar is docked.
namespace bar_position {
inline constexpr int kLeft = 0;
inline constexpr int kTop = 1;
inline constexpr int kRight = 2;
inline constexpr int kBottom = 3;
inline constexpr int kFloating = 4;
inline constexpr int kPopup = 5;
inline constexpr int kMenuBar = 6;
}  // namespace bar_position

namespace control_type {
inline constexpr int kButton = 1;
inline constexpr int kPopup = 10;
}  // namespace control_type

namespace button_style {
inline constexpr int kAutomatic = 0;
inline constexpr int kIcon = 1;
inline constexpr int kCaption = 2;
inline constexpr int kIconAndCaption = 3;
}  // namespace button_style

/// Numbers of the environment's own commands.
namespace control_id {
inline constexpr int kCustom = 1;  // none of them
inline constexpr int kCommentBlock = 192;
inline constexpr int kUncommentBlock = 2552;
}  // namespace control_id

class CommandBarControls;

/// An entry of a bar or of a popup: a button, or a popup with entries of its own.
class CommandBarControl {
 public:
  virtual ~CommandBarControl() = default;

  virtual int Type() = 0;   // control_type::k...
  virtual int Id() = 0;     // control_id::k...; a command added twice has one number
  virtual int Index() = 0;  // its place among its neighbours, from 1

  virtual std::string Caption() = 0;
  virtual void SetCaption(std::string_view caption) = 0;

  /// Free text. The environment takes controls with the same Id and Tag for one: a click on any of
  /// them reaches the handlers of all.
  virtual std::string Tag() = 0;
  virtual void SetTag(std::string_view tag) = 0;

  /// Whether a separator stands above it.
  virtual bool BeginGroup() = 0;
  virtual void SetBeginGroup(bool begins) = 0;

  /// Does what a click does.
  virtual void Execute() = 0;

  /// A popup's entries go with it.
  virtual void Delete() = 0;

  // Of a button; a popup raises an error.

  virtual int Style() = 0;  // button_style::k...
  virtual void SetStyle(int style) = 0;
  /// Makes the picture on the clipboard its face. Raises an error when there is none.
  virtual void PasteFace() = 0;

  // Of a popup; a button raises an error.

  virtual std::shared_ptr<CommandBarControls> Controls() = 0;
};

/// What a new control is to be.
struct NewControl {
  int type = control_type::kButton;
  int id = control_id::kCustom;
  int before = 0;           // the place of the control in front of which it goes, 0 for the end
  bool isTemporary = true;  // goes when the environment closes, if not before
};

/// The entries of a bar or a popup, numbered from 1.
class CommandBarControls {
 public:
  virtual ~CommandBarControls() = default;

  virtual int Count() = 0;

  /// Raises an error when there is no such entry.
  virtual std::shared_ptr<CommandBarControl> Item(int index) = 0;

  /// The first entry of that caption, access keys and letter case set aside. Raises an error when
  /// there is none.
  virtual std::shared_ptr<CommandBarControl> Item(std::string_view caption) = 0;

  /// Raises an error for a place, or for a number of a command, that there is not.
  virtual std::shared_ptr<CommandBarControl> Add(const NewControl& control) = 0;
};

class CommandBar {
 public:
  virtual ~CommandBar() = default;

  virtual std::string Name() = 0;
  virtual bool Visible() = 0;
  virtual void SetVisible(bool visible) = 0;

  // Its place on the screen; Left and Top are pixels.

  virtual int Position() = 0;  // bar_position::k...
  virtual void SetPosition(int position) = 0;
  virtual int RowIndex() = 0;  // among the docked bars of its side
  virtual void SetRowIndex(int row) = 0;
  virtual int Left() = 0;
  virtual void SetLeft(int left) = 0;
  virtual int Top() = 0;
  virtual void SetTop(int top) = 0;

  virtual std::shared_ptr<CommandBarControls> Controls() = 0;

  /// The environment's own bars raise an error.
  virtual void Delete() = 0;
};

/// What a new bar is to be. It is hidden at first.
struct NewCommandBar {
  std::string_view name;
  int position = bar_position::kTop;
  bool isTemporary = true;  // goes when the environment closes, if not before
};

using ClickHandler = std::function<void(CommandBarControl& clicked)>;

/// The binding of a control's clicks to a handler, for as long as it lives. The handler may end it.
class CommandBarEvents {
 public:
  virtual ~CommandBarEvents() = default;
};

}  // namespace brimwork
