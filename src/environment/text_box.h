// A box that text is typed into. Positions and lengths are characters; a line end counts as two, CR
// and LF.
#pragma once

#include <functional>
#include <string_view>

#include "environment/control.h"

namespace brimwork {

class TextBox : public Control {
 public:
  using Control::Control;
  ControlKind Kind() const override { return ControlKind::kTextBox; }
  bool TakesFocus() const override { return true; }
  bool MultiLine() const { return Layout().isMultiLine; }

  int SelStart() const { return selStart_; }
  /// Moves the caret and ends the selection; a position behind the text is drawn back to its end.
  void SetSelStart(int position);
  int SelLength() const { return selLength_; }
  void SetSelLength(int length);

  /// The selected text.
  std::string_view SelText() const;
  /// Puts text in the place of the selected text; the caret goes behind it.
  void SetSelText(std::string_view text);

  // What the user does. A locked box takes the focus but keeps its text.

  /// Types at the caret, one character after the other. A line feed starts a new line in a box of
  /// several lines and is nothing in another one.
  void Type(std::string_view text);
  void SelectAll();
  /// The Backspace key: takes away the selected text, or the character before the caret.
  void Erase();

  /// Selects from a character on, with the caret behind the last one.
  void Select(int start, int length);
  /// Edits the text in a window of the host's, which gives the whole text and where its selection
  /// is now. What the box does not allow changes nothing; the host then shows what it has.
  void Edit(std::string_view text, int selStart, int selLength);

  /// A line end where the box has several lines.
  void PressEnter() override;

  TextProperty Text{*this, PropertyId::kText};
  Property<bool> Locked{*this, PropertyId::kLocked};

  /// Whenever Text has changed, by the user or by code.
  std::function<void()> OnChange;

 protected:
  void AfterChange(PropertyId property) override;
  void Design(const ControlLayout& layout) override;
  Color UsualForeColor() const override { return system_color::kWindowText; }
  Color UsualBackColor() const override { return system_color::kWindow; }

 private:
  bool HasRoomFor(std::string_view text) const;
  void SetSelection(int start, int length);
  void TypeCharacter(std::string_view character);
  void ReplaceSelection(std::string_view text);

  int selStart_ = 0;
  int selLength_ = 0;

  // The selection when Text changes next; code leaves the caret at the start.
  int nextStart_ = 0;
  int nextLength_ = 0;
};

}  // namespace brimwork
