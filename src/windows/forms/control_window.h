// The window of one control: it shows the control's data and takes what the user does into it.
#pragma once

#include <windows.h>

#include <memory>
#include <optional>

#include "environment/control.h"

namespace brimwork::windows {

class FormWindow;
struct FormKit;

class ControlWindow {
 public:
  ControlWindow(FormWindow& form, Control& control) : form_(form), control_(control) {}
  ControlWindow(const ControlWindow&) = delete;
  ControlWindow& operator=(const ControlWindow&) = delete;
  virtual ~ControlWindow() = default;

  /// Makes the window, in front of its container's others. Raises error 5 when the system makes
  /// none.
  void Create(HWND container);

  HWND Handle() const { return handle_; }
  bool IsOf(const Control& control) const { return &control_ == &control; }
  Control& Data() const { return control_; }

  /// Shows a property's new value.
  virtual void Show(PropertyId property);

  // What the window sends to the one around it.

  virtual void OnCommand(WORD /*notification*/) {}
  virtual void OnNotification(UINT /*notification*/) {}
  /// Colours the window is to be painted in.
  virtual LRESULT OnColors(HDC context);

  /// Whether the Enter key belongs to this button now.
  virtual void ShowAsDefault(bool /*isDefault*/) {}

 protected:
  struct Design {
    const wchar_t* className = nullptr;
    DWORD style = 0;
    DWORD extendedStyle = 0;
  };
  virtual Design WindowDesign() const = 0;

  /// Shows what the design does not.
  virtual void ShowAll();

  virtual LRESULT Receive(UINT message, WPARAM wide, LPARAM longer);

  /// A key that means something to this kind of control. False for others.
  virtual bool TakeKey(UINT /*message*/, WPARAM /*key*/) { return false; }

  virtual void ShowPlace();
  virtual void ShowToolTip();
  virtual bool IsEnabled() const;

  /// Takes the focus for the user's click. False when the data keeps it elsewhere.
  bool TakeFocus();

  LRESULT Send(UINT message, WPARAM wide = 0, LPARAM longer = 0) const {
    return SendMessageW(handle_, message, wide, longer);
  }
  LRESULT Default(UINT message, WPARAM wide, LPARAM longer) {
    return CallWindowProcW(original_, handle_, message, wide, longer);
  }

  void ShowText(std::string_view text);
  void Repaint() { InvalidateRect(handle_, nullptr, TRUE); }
  HFONT Font() const;
  FormKit& Kit() const;

  FormWindow& form_;
  Control& control_;  // not to be looked into once the form is no longer loaded

 private:
  static LRESULT CALLBACK Procedure(HWND handle, UINT message, WPARAM wide, LPARAM longer) noexcept;

  LRESULT ReceiveLast(UINT message, WPARAM wide, LPARAM longer);
  LRESULT ReceiveWhileLoaded(UINT message, WPARAM wide, LPARAM longer);
  void TakeSystemFocus();

  HWND handle_ = nullptr;
  WNDPROC original_ = nullptr;
};

/// The window for a control of any kind; null for one that is not seen.
std::unique_ptr<ControlWindow> MakeControlWindow(FormWindow& form, Control& control);

}  // namespace brimwork::windows
